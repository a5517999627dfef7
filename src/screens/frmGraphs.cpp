#include "frmGraphs.h"

#include "Screenshots.h"
#include "frame/Look.h"
#include "frame/Twips.h"
#include "money/GraphManager.h"
#include "money/GraphTexts.h"
#include "ports/QtScreen.h"
#include "session/Game.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace zorvane::screens {

namespace {

QRect toPx(const GraphRect& r) {
    return {px(static_cast<int>(r.left)), px(static_cast<int>(r.top)),
            px(static_cast<int>(r.width)), px(static_cast<int>(r.height))};
}

// The drawing surface: the grid, the X marks and the lines joining them, as the last
// redraw left them (in twips from the picture's top left).
class GraphPicture : public QWidget {
  public:
    GraphPicture(const GraphManager& graph, QWidget* parent) : QWidget(parent), graph_(graph) {
        setObjectName(QStringLiteral("picFundsGraph"));
        setAccessibleName(QStringLiteral("Funds graph"));
        setAutoFillBackground(true);
        look::paint(this, look::cream, look::ink);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        // The marks stand where the rules put them, even off the picture: a month without
        // history plots at 0, which can lie below the bottom edge. The picture shows what
        // falls inside it; a line to such a mark runs out at the edge.
        p.setClipRect(rect());
        const std::size_t gridLines = 10 + 12; // the grid comes first in the drawing
        for (std::size_t i = 0; i < graph_.lines.size(); ++i) {
            const GraphLine& l = graph_.lines[i];
            p.setPen(i < gridLines ? QPen(look::brass, 0.5) : QPen(look::curtain, 1.5));
            p.drawLine(QLineF(l.x1 / double(twipsPerPixel), l.y1 / double(twipsPerPixel),
                              l.x2 / double(twipsPerPixel), l.y2 / double(twipsPerPixel)));
        }
        p.setPen(look::ink);
        p.setBrush(Qt::NoBrush);
        p.drawRect(rect().adjusted(0, 0, -1, -1));
    }

  private:
    const GraphManager& graph_;
};

QColor systemWindow() {
    return QApplication::palette().color(QPalette::Window);
}
QColor systemWindowText() {
    return QApplication::palette().color(QPalette::WindowText);
}

} // namespace

frmGraphs::frmGraphs(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 6, QStringLiteral("frmGraphs"), QString::fromLatin1(graphCaptions::header),
                 bgr, parent) {
    QWidget* b = body();
    picFundsGraph_ = new GraphPicture(game_.graph, b);
    for (std::size_t i = 0; i < lblGrfFunds_.size(); ++i) {
        auto* l = new QLabel(b);
        l->setObjectName(QStringLiteral("lblGrfFunds_%1").arg(i));
        l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        l->setFont(look::font(7));
        lblGrfFunds_[i] = l;
    }
    for (std::size_t i = 0; i < lblGrfFundsMonth_.size(); ++i) {
        auto* l = new QLabel(QString::fromLatin1(graphCaptions::month), b);
        l->setObjectName(QStringLiteral("lblGrfFundsMonth_%1").arg(i));
        l->setAlignment(Qt::AlignCenter);
        l->setFont(look::font(7.5, true));
        l->setCursor(Qt::PointingHandCursor);
        l->setAutoFillBackground(true);
        look::paint(l, systemWindow(), systemWindowText());
        l->installEventFilter(this);
        lblGrfFundsMonth_[i] = l;
    }

    frameFundsSummary_ = new QGroupBox(QString::fromLatin1(graphCaptions::summary), b);
    frameFundsSummary_->setObjectName(QStringLiteral("frameFundsSummary"));
    frameFundsSummary_->setAutoFillBackground(true);
    frameFundsSummary_->setGeometry(pxRect(7400, 200, 2000, 2400));
    const char* captions[3] = {graphCaptions::highest, graphCaptions::lowest,
                               graphCaptions::current};
    const char* values[3] = {"lblFundsSummaryHigh", "lblFundsSummaryLow", "lblFundsSummaryCurrent"};
    QLabel* made[3] = {};
    for (int i = 0; i < 3; ++i) {
        auto* c = new QLabel(QString::fromLatin1(captions[i]), frameFundsSummary_);
        c->setObjectName(QStringLiteral("Label%1").arg(i + 1));
        c->setGeometry(pxRect(120, 300 + i * 700, 1760, 300));
        c->setFont(look::font(8, true));
        auto* v = new QLabel(frameFundsSummary_);
        v->setObjectName(QString::fromLatin1(values[i]));
        v->setAccessibleName(QString::fromLatin1(captions[i]));
        v->setGeometry(pxRect(120, 600 + i * 700, 1760, 300));
        made[i] = v;
    }
    lblFundsSummaryHigh_ = made[0];
    lblFundsSummaryLow_ = made[1];
    lblFundsSummaryCurrent_ = made[2];
    paintGraph();
}

void frmGraphs::paintGraph() {
    const GraphManager& g = game_.graph;
    const GraphTexts t = graphTexts(g);
    picFundsGraph_->setGeometry(toPx(g.picture));
    for (std::size_t i = 0; i < lblGrfFunds_.size(); ++i) {
        lblGrfFunds_[i]->setGeometry(toPx(g.scaleLabels[i]));
        lblGrfFunds_[i]->setText(QString::fromStdString(t.scale[i]));
    }
    for (std::size_t i = 0; i < lblGrfFundsMonth_.size(); ++i) {
        QLabel* l = lblGrfFundsMonth_[i];
        l->setGeometry(toPx(g.monthLabels[i]));
        if (!t.months[i].empty())
            l->setText(QString::fromStdString(t.months[i]));
        l->setAccessibleName(QStringLiteral("Funds of %1").arg(l->text()));
    }
    lblFundsSummaryHigh_->setText(QString::fromStdString(t.high));
    lblFundsSummaryLow_->setText(QString::fromStdString(t.low));
    lblFundsSummaryCurrent_->setText(QString::fromStdString(t.current));
    picFundsGraph_->update();
}

bool frmGraphs::event(QEvent* e) {
    // On activation the summary frame takes the screen's colour.
    if (e->type() == QEvent::WindowActivate || e->type() == QEvent::Show)
        look::paint(frameFundsSummary_, palette().color(QPalette::Window), look::ink);
    return ChildFrame::event(e);
}

bool frmGraphs::eventFilter(QObject* watched, QEvent* event) {
    for (std::size_t i = 0; i < lblGrfFundsMonth_.size(); ++i) {
        QLabel* l = lblGrfFundsMonth_[i];
        if (watched != l)
            continue;
        if (event->type() == QEvent::MouseButtonPress ||
            event->type() == QEvent::MouseButtonDblClick) {
            if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
                l->setFrameStyle(QFrame::Panel | QFrame::Raised);
                l->setLineWidth(2);
                look::paint(l, systemWindow(), systemWindowText());
            }
            return true;
        }
        if (event->type() == QEvent::MouseButtonRelease) {
            l->setFrameStyle(QFrame::NoFrame);
            look::paint(l, systemWindow(), systemWindowText());
            if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
                game_.graph.showMonthFunds(static_cast<int>(i));
            return true;
        }
        return false;
    }
    return ChildFrame::eventFilter(watched, event);
}

void frmGraphs::attach(QtScreen& screen) {
    screen_ = &screen;
    screen.addPainter(View::Graph, [this] { paintGraph(); });
    screen.onGraphVisible = [this] { return isVisible(); };
}

void frmGraphs::addScreenshots(Screenshots& shots) {
    shots.addLast([this](Screenshots& s) {
        playYearForShot(s);
        game_.switchMode(6);
        game_.graph.drawGraph();
        s.save(this, QStringLiteral("frmGraphs.png"));
    });
}

// The graph is worth a look after a year: twelve months of history. The clock is paused
// first, so no day runs by itself while a later shot waits for its paint; during the year a
// lost game or a reached goal only counts, as its picture would wait for a double click.
// The shots' boxes are answered by script, so no question waits either.
void frmGraphs::playYearForShot(Screenshots& shots) {
    constexpr int yearDays = 12 * 4 * 7;
    game_.setSpeed(0);
    if (!screen_)
        return;
    const auto lose = std::exchange(screen_->onShowLose, [] {});
    const auto goal = std::exchange(screen_->onShowGoal, [] {});
    try {
        for (int d = 0; d < yearDays; ++d) {
            if (shots.beforeDay)
                shots.beforeDay();
            game_.calendar.nextDay();
        }
    } catch (const std::exception&) {
        // A run-time error of the game ends the year early; the graph shows what was played.
    }
    screen_->onShowLose = lose;
    screen_->onShowGoal = goal;
}

} // namespace zorvane::screens
