#include "frmArcadePictures.h"

#include "frame/Look.h"
#include "frame/Picture.h"
#include "frame/Twips.h"
#include "frmArcade.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace zorvane::screens {

namespace {
// A cabinet moved by the arrow keys goes this far a key stroke.
constexpr int nudgeTwips = 8 * twipsPerPixel;
} // namespace

RoomPicture::RoomPicture(const Game& game, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picRoom"));
    setAccessibleName(QStringLiteral("Arcade room"));
    source_ = loadPicture(game, "images\\arcades\\room.png");
    setAttribute(Qt::WA_OpaquePaintEvent, !source_.isNull());
}

void RoomPicture::paintEvent(QPaintEvent* e) {
    QPainter p(this);
    const qreal ratio = devicePixelRatioF();
    if (source_.isNull()) {
        p.fillRect(e->rect(), look::night);
        return;
    }
    // Scaled once, then every repaint of a dragged cabinet copies only the strip it uncovered.
    if (scaled_.isNull() || scaled_.devicePixelRatio() != ratio) {
        scaled_ = source_.scaled(QSize(width(), height()) * ratio, Qt::IgnoreAspectRatio,
                                 Qt::SmoothTransformation);
        scaled_.setDevicePixelRatio(ratio);
    }
    p.drawPixmap(e->rect().topLeft(), scaled_,
                 QRectF(QPointF(e->rect().topLeft()) * ratio, QSizeF(e->rect().size()) * ratio));
}

CabinetPicture::CabinetPicture(frmArcade& owner, int index, QWidget* parent)
    : QWidget(parent), owner_(owner), index_(index) {
    setObjectName(QStringLiteral("imgGame_%1").arg(index));
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::OpenHandCursor);
    setToolTip(QStringLiteral("Drag to move; double click for details"));
}

void CabinetPicture::setPicture(const std::string& path) {
    if (path == path_)
        return;
    path_ = path;
    update();
}

void CabinetPicture::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const QPixmap& pix = owner_.cabinetPixmap(path_, devicePixelRatioF());
    if (!pix.isNull()) {
        p.drawPixmap(0, 0, pix);
    } else {
        p.setPen(QPen(look::popcorn, 1, Qt::DashLine));
        p.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (hasFocus()) {
        p.setPen(QPen(look::popcorn, 1, Qt::DotLine));
        p.drawRect(rect().adjusted(1, 1, -2, -2));
    }
}

void CabinetPicture::mousePressEvent(QMouseEvent* e) {
    owner_.cabinetPress(index_, e);
}
void CabinetPicture::mouseMoveEvent(QMouseEvent* e) {
    owner_.cabinetMove(index_, e);
}
void CabinetPicture::mouseReleaseEvent(QMouseEvent*) {
    owner_.cabinetRelease();
}
void CabinetPicture::mouseDoubleClickEvent(QMouseEvent*) {
    owner_.cabinetDoubleClick(index_);
}

void CabinetPicture::keyPressEvent(QKeyEvent* e) {
    switch (e->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        owner_.cabinetDoubleClick(index_);
        return;
    case Qt::Key_Left:
        owner_.cabinetNudge(index_, -nudgeTwips, 0);
        return;
    case Qt::Key_Right:
        owner_.cabinetNudge(index_, nudgeTwips, 0);
        return;
    case Qt::Key_Up:
        owner_.cabinetNudge(index_, 0, -nudgeTwips);
        return;
    case Qt::Key_Down:
        owner_.cabinetNudge(index_, 0, nudgeTwips);
        return;
    default:
        QWidget::keyPressEvent(e);
    }
}

CabinetTitle::CabinetTitle(int index, QWidget* parent) : QLabel(parent) {
    setObjectName(QStringLiteral("lblGameName_%1").arg(index));
    setFont(look::font(7, true));
    setAlignment(Qt::AlignCenter);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void CabinetTitle::setColour(const QColor& c) {
    if (c == palette().color(QPalette::WindowText))
        return;
    QPalette p = palette();
    p.setColor(QPalette::WindowText, c);
    setPalette(p);
}

void CabinetTitle::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(15, 22, 38, 200)); // night, a little see-through
    p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    p.setPen(palette().color(QPalette::WindowText));
    p.setFont(font());
    p.drawText(rect(), Qt::AlignCenter, text());
}

SliderLine::SliderLine(frmArcade& owner, QWidget* parent) : QWidget(parent), owner_(owner) {
    setObjectName(QStringLiteral("lnSlider"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void SliderLine::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double x1 = owner_.sliderTopX() / double(twipsPerPixel) - x();
    const double x2 = owner_.sliderBottomX() / double(twipsPerPixel) - x();
    for (const auto& [colour, width] : {std::pair{look::ink, 5}, std::pair{look::curtain, 3}}) {
        p.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(x1, 2), QPointF(x2, height() - 2));
    }
}

} // namespace zorvane::screens
