#include "frmTutor.h"

#include "Screenshots.h"
#include "advisor/Tutor.h"
#include "frame/ButtonLabel.h"
#include "frame/Look.h"
#include "ports/QtScreen.h"
#include "session/Game.h"

#include <QGuiApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

namespace zorvane::screens {

namespace {
constexpr int panelWidth = 380;
constexpr int panelHeight = 200;
// The advisor's badge: a round portrait at the panel's left.
constexpr QRectF badge{14, 40, 64, 64};

void setPanelLook(QLabel* close, bool raised) {
    close->setFrameShape(QFrame::Panel);
    close->setFrameShadow(raised ? QFrame::Raised : QFrame::Plain);
    close->setLineWidth(raised ? 1 : 0);
}
} // namespace

frmTutor::frmTutor(Game& game, QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::Tool | Qt::FramelessWindowHint), game_(game) {
    setObjectName(QStringLiteral("frmTutor"));
    setWindowTitle(QStringLiteral("Business Advisor"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFixedSize(panelWidth, panelHeight);
    setCursor(Qt::SizeAllCursor);

    auto* title = new QLabel(QStringLiteral("Business Advisor"), this);
    title->setObjectName(QStringLiteral("lblAdvisor"));
    title->setFont(look::font(10, true));
    title->setGeometry(14, 8, panelWidth - 60, 24);
    look::paint(title, look::navy, look::popcorn);

    lblTalk_ = new QLabel(this);
    lblTalk_->setObjectName(QStringLiteral("lblTalk"));
    lblTalk_->setTextFormat(Qt::PlainText);
    lblTalk_->setWordWrap(true);
    lblTalk_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblTalk_->setFont(look::font(9));
    lblTalk_->setGeometry(92, 40, panelWidth - 106, panelHeight - 84);
    lblTalk_->setAccessibleName(QStringLiteral("Advisor"));
    look::paint(lblTalk_, look::cream, look::ink);

    lbcPrev_ = new ButtonLabel(QStringLiteral("lbcPrev"), QStringLiteral("\u25C0"), this,
                               ButtonLabel::Style::Immediate);
    lbcNext_ = new ButtonLabel(QStringLiteral("lbcNext"), QStringLiteral("\u25B6"), this,
                               ButtonLabel::Style::Immediate);
    lbcPrev_->setAccessibleName(QStringLiteral("Previous advice"));
    lbcNext_->setAccessibleName(QStringLiteral("Next advice"));
    for (ButtonLabel* arrow : {lbcPrev_, lbcNext_}) {
        arrow->setFont(look::font(13, true));
        arrow->setColours(look::brass, look::night);
        arrow->setAutoFillBackground(true);
    }
    lbcPrev_->setGeometry(panelWidth - 112, panelHeight - 36, 44, 26);
    lbcNext_->setGeometry(panelWidth - 58, panelHeight - 36, 44, 26);
    connect(lbcPrev_, &ButtonLabel::clicked, this, [this] { game_.tutor.prevStep(); });
    connect(lbcNext_, &ButtonLabel::clicked, this, [this] { game_.tutor.nextStep(); });

    // The cross: any button down clicks and raises it; the release flattens it and, with the
    // left button, closes the advisor. Its text is red throughout.
    // A button label for the keyboard (Space or Enter close it, with the click); the mouse
    // goes through the filter below.
    lbcClose_ = new ButtonLabel(QStringLiteral("lbcClose"), QStringLiteral("X"), this,
                                ButtonLabel::Style::Immediate);
    connect(lbcClose_, &ButtonLabel::clicked, this, [this] { game_.tutor.endTutor(); });
    lbcClose_->setAccessibleName(QStringLiteral("Close the advisor"));
    lbcClose_->setAlignment(Qt::AlignCenter);
    lbcClose_->setFont(look::font(11, true));
    lbcClose_->setGeometry(panelWidth - 36, 8, 24, 24);
    lbcClose_->setAutoFillBackground(true);
    look::paint(lbcClose_, look::cream, QColor(255, 0, 0));
    setPanelLook(lbcClose_, false);
    lbcClose_->installEventFilter(this);

    paintAdvisor();
}

void frmTutor::paintAdvisor() {
    lblTalk_->setText(QString::fromStdString(game_.tutor.shownText()));
    if (game_.tutor.visible == isVisible())
        return;
    if (game_.tutor.visible) {
        placeFirstTime();
        show();
        raise();
    } else {
        hide();
    }
}

// The first time it shows, the panel stands at the top right of the screen, out of the way
// of the main screen and its glued screens.
void frmTutor::placeFirstTime() {
    if (placed_)
        return;
    placed_ = true;
    if (const QScreen* s = QGuiApplication::primaryScreen()) {
        const QRect area = s->availableGeometry();
        move(area.right() - panelWidth - 24, area.top() + 24);
    }
}

void frmTutor::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), look::navy);
    p.setPen(QPen(look::brass, 3));
    p.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
    // The speech box behind the text.
    p.setPen(Qt::NoPen);
    p.setBrush(look::cream);
    p.drawRoundedRect(QRectF(86, 36, panelWidth - 98, panelHeight - 78), 8, 8);
    QPainterPath tail;
    tail.moveTo(86, 62);
    tail.lineTo(78, 70);
    tail.lineTo(86, 78);
    p.drawPath(tail);
    // The advisor: a head with a bow tie, in a brass frame.
    p.setBrush(look::brass);
    p.drawEllipse(badge);
    p.setBrush(look::wine);
    p.drawEllipse(badge.adjusted(4, 4, -4, -4));
    p.setBrush(look::popcorn);
    p.drawEllipse(QRectF(badge.center().x() - 13, badge.top() + 12, 26, 28));
    p.drawChord(QRectF(badge.left() + 12, badge.top() + 40, badge.width() - 24, 32), 0, 180 * 16);
    p.setBrush(look::ink);
    p.drawEllipse(QPointF(badge.center().x() - 5, badge.top() + 24), 2, 2);
    p.drawEllipse(QPointF(badge.center().x() + 5, badge.top() + 24), 2, 2);
    QPainterPath bow;
    const QPointF knot(badge.center().x(), badge.top() + 45);
    bow.moveTo(knot);
    bow.lineTo(knot + QPointF(-8, -4));
    bow.lineTo(knot + QPointF(-8, 4));
    bow.closeSubpath();
    bow.moveTo(knot);
    bow.lineTo(knot + QPointF(8, -4));
    bow.lineTo(knot + QPointF(8, 4));
    bow.closeSubpath();
    p.setBrush(look::curtain);
    p.drawPath(bow);
}

// Dragged by its background: the move of the mouse since the left button went down moves
// the panel by as much.
void frmTutor::mousePressEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton)
        return;
    dragStart_ = e->position();
    dragging_ = true;
}

void frmTutor::mouseMoveEvent(QMouseEvent* e) {
    if (!dragging_)
        return;
    const QPointF by = e->position() - dragStart_;
    move(x() + qRound(by.x()), y() + qRound(by.y()));
}

void frmTutor::mouseReleaseEvent(QMouseEvent*) {
    dragging_ = false;
}

bool frmTutor::eventFilter(QObject* watched, QEvent* event) {
    if (watched != lbcClose_)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        routeClick(this);
        setPanelLook(lbcClose_, true);
        return true;
    case QEvent::MouseButtonRelease:
        setPanelLook(lbcClose_, false);
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            game_.tutor.endTutor();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void frmTutor::attach(QtScreen& screen) {
    screen.addPainter(View::Advisor, [this] { paintAdvisor(); });
}

// A step with a live value: the rent, as the advisor tells it on the building screen.
void frmTutor::addScreenshots(Screenshots& shots) {
    shots.add([this](Screenshots& s) {
        Tutor& tutor = game_.tutor;
        tutor.startTutor();
        while (tutor.step < 40)
            tutor.nextStep();
        paintAdvisor();
        s.save(this, QStringLiteral("frmTutor.png"));
    });
}

} // namespace zorvane::screens
