#include "frame/ChildFrame.h"

#include "frame/Look.h"
#include "frame/Twips.h"
#include "session/Game.h"

#include <QLabel>
#include <QMouseEvent>

namespace zorvane::screens {

namespace {
constexpr int headerHeight = 330; // twips
constexpr int defaultHeight = 5400;
} // namespace

ChildFrame::ChildFrame(Game& game, int mode, const QString& name, const QString& caption,
                       std::uint32_t bgr, QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint), game_(game), mode_(mode) {
    setObjectName(name);
    setWindowTitle(caption);
    setAccessibleName(caption);

    lblHeader_ = new QLabel(caption, this);
    lblHeader_->setObjectName(QStringLiteral("lblHeader"));
    lblHeader_->setAccessibleName(caption);
    lblHeader_->setFont(look::font(10, true));
    lblHeader_->setIndent(8);
    lblHeader_->setCursor(Qt::SizeAllCursor);
    lblHeader_->setToolTip(QStringLiteral(
        "Drag to move this screen; double click to put it back under the main screen; "
        "right click to hide it."));
    look::paint(lblHeader_, look::navy, look::popcorn);
    lblHeader_->installEventFilter(this);

    body_ = new QWidget(this);
    body_->setObjectName(QStringLiteral("body"));

    // A thin brass rule around the whole screen, as on the main screen.
    auto* border = new QFrame(this);
    border->setObjectName(QStringLiteral("shpBorder"));
    border->setFrameShape(QFrame::Box);
    border->setStyleSheet(QStringLiteral("QFrame#shpBorder { border: 1px solid #C9A227; }"));
    border->setAttribute(Qt::WA_TransparentForMouseEvents);
    border->lower();

    setFormColour(bgr);
    resize(px(9600), px(defaultHeight));
}

void ChildFrame::setFormColour(std::uint32_t bgr) {
    look::paint(this, fromBgr(bgr), look::ink);
}

void ChildFrame::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    lblHeader_->setGeometry(0, 0, width() - px(150), px(headerHeight));
    body_->setGeometry(0, px(headerHeight), width(), height() - px(headerHeight));
    if (auto* border = findChild<QFrame*>(QStringLiteral("shpBorder"), Qt::FindDirectChildrenOnly))
        border->setGeometry(rect());
}

bool ChildFrame::eventFilter(QObject* watched, QEvent* event) {
    if (watched != lblHeader_)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        auto* e = static_cast<QMouseEvent*>(event);
        if (e->button() == Qt::LeftButton) {
            dragging_ = true;
            grab_ = e->position().toPoint();
            glued_ = false; // moving a screen tears it off
        } else if (e->button() == Qt::RightButton) {
            hide();
        }
        return true;
    }
    case QEvent::MouseMove: {
        auto* e = static_cast<QMouseEvent*>(event);
        if (dragging_)
            move(pos() + e->position().toPoint() - grab_);
        return true;
    }
    case QEvent::MouseButtonRelease: {
        dragging_ = false;
        // A left click on the header brings the screen to the front through its mode.
        auto* e = static_cast<QMouseEvent*>(event);
        if (e->button() == Qt::LeftButton && lblHeader_->rect().contains(e->position().toPoint()))
            game_.switchMode(mode_);
        return true;
    }
    case QEvent::MouseButtonDblClick:
        glued_ = true;
        emit reglueRequested();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

} // namespace zorvane::screens
