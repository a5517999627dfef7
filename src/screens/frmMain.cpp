#include "frmMain.h"

#include "frame/ButtonLabel.h"
#include "frame/ChildFrame.h"
#include "frame/Look.h"
#include "frame/Picture.h"
#include "frame/Twips.h"
#include "ports/QtScreen.h"
#include "reputation/ReputationTexts.h"
#include "session/Game.h"
#include "session/MainTexts.h"
#include "session/TitleScreen.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMetaObject>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>

namespace zorvane::screens {

namespace {

// The main screen's own places, in pixels. The day labels, the summary and the modes take
// theirs from the logic (mainLayout), which owns what expand() and the day bars set.
constexpr int mainWidth = 640;
constexpr int headerHeight = 22;
constexpr int menuTop = 24, menuHeight = 18;
constexpr int speedLeft = 256, speedTop = 50, speedWidth = 30, speedHeight = 26, speedPitch = 34;
constexpr int historyLeft = 12, historyPitch = 31, historyWidth = 28;
constexpr int logLeft = 396, logTop = 48, logWidth = 236, logHeight = 176;
constexpr int nextDayGap = 3;

const char* const summaryCaptions[] = {
    "Total Income: ",   "Total Spent: ",        "Profit/Loss: ", "Ticket Sales:  ",
    "Arcade Income:  ", "Concession Income:  ", "Funds: ",       "Promotions:  ",
    "Labor Costs:  ",   "Movie Purchases:  ",   "Arcades:  ",    "Concession:  ",
    "Loan Payment:  "};
// The figure labels in MoneySummary's order, with the caption index each stands beside.
struct Figure {
    const char* name;
    int caption;
};
const Figure figures[] = {
    {"lblIncome", 0},          {"lblSpent", 1},       {"lblProfit", 2},
    {"lblMyFunds", 6},         {"lblTicketSales", 3}, {"lblArcadeSales", 4},
    {"lblConcessionSales", 5}, {"lblDepPromo", 7},    {"lblDepLabor", 8},
    {"lblDepMovie", 9},        {"lblDepArcades", 10}, {"lblDepConcessions", 11},
    {"lblDepLoan", 12}};

QString captionName(int caption) {
    QString text = QString::fromLatin1(summaryCaptions[caption]).trimmed();
    if (text.endsWith(QLatin1Char(':')))
        text.chop(1);
    return text;
}

QLabel* makeLabel(QWidget* parent, const QString& name, const QString& text, const QRect& r) {
    auto* l = new QLabel(text, parent);
    l->setObjectName(name);
    l->setGeometry(r);
    return l;
}

QColor systemWindow() {
    return QApplication::palette().color(QPalette::Window);
}
QColor systemWindowText() {
    return QApplication::palette().color(QPalette::WindowText);
}

} // namespace

frmMain::frmMain(Game& game, QtScreen& screen, QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint), game_(game), screen_(screen) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Zorvane"));
    look::paint(this, look::navy, look::cream);
    build();

    screen_.addPainter(View::Finances, [this] { paintFinances(); });
    screen_.addPainter(View::DayBars, [this] { paintDayBars(); });
    screen_.addPainter(View::WeekArrows, [this] { paintDayBars(); });
    screen_.addPainter(View::MonthLabels, [this] { paintMonthLabels(); });
    screen_.addPainter(View::YearLabel, [this] { paintYear(); });
    screen_.addPainter(View::Speed, [this] { paintSpeed(); });
    screen_.addPainter(View::Rating, [this] { paintRating(); });
    screen_.addPainter(View::Expand, [this] { paintExpand(); });
    screen_.onLogLine.push_back(
        [this](const std::string& line, bool cleared) { appendLog(line, cleared); });
    screen_.onLogCleared.push_back([this] {
        pendingLog_.clear();
        logCleared_ = true;
        QMetaObject::invokeMethod(this, &frmMain::flushLog, Qt::QueuedConnection);
    });
    screen_.onSwitchMode = [this](int mode) { showMode(mode); };
}

// --- building the controls ---

void frmMain::build() {
    shpBorder_ = new QFrame(this);
    shpBorder_->setObjectName(QStringLiteral("shpBorder"));
    shpBorder_->setStyleSheet(QStringLiteral("QFrame#shpBorder { border: 2px solid #C9A227; }"));
    shpBorder_->setAttribute(Qt::WA_TransparentForMouseEvents);

    lblHeader_ = makeLabel(this, QStringLiteral("lblHeader"), QStringLiteral("Zorvane"),
                           QRect(0, 0, mainWidth - 26, headerHeight));
    lblHeader_->setFont(look::font(11, true));
    lblHeader_->setIndent(10);
    lblHeader_->setCursor(Qt::SizeAllCursor);
    lblHeader_->setAccessibleName(QStringLiteral("Zorvane"));
    look::paint(lblHeader_, look::wine, look::popcorn);
    lblHeader_->installEventFilter(this);

    auto* lbcClose = new ButtonLabel(QStringLiteral("lbcClose"), QStringLiteral("\u2715"), this,
                                     ButtonLabel::Style::Immediate);
    lbcClose->setGeometry(mainWidth - 26, 0, 26, headerHeight);
    lbcClose->setAccessibleName(QStringLiteral("Close"));
    lbcClose->setToolTip(QStringLiteral("Quit the game (Ctrl+Q)"));
    lbcClose->setColours(look::curtain, look::cream);
    connect(lbcClose, &ButtonLabel::clicked, this, [this] { game_.quitGame(); });

    auto* menuBar = new QLabel(this);
    menuBar->setGeometry(0, headerHeight, mainWidth, menuTop + menuHeight + 2 - headerHeight);
    look::paint(menuBar, look::cream, look::ink);
    const char* menus[] = {"File", "Help", "Goal", "Settings"};
    const char* menuTips[] = {"File (Ctrl+N, Ctrl+O, Ctrl+S, Ctrl+Shift+S, Ctrl+Q)", "Help (F1)",
                              "Goal", "Settings"};
    for (int i = 0; i < 4; ++i) {
        auto* b = new ButtonLabel(QStringLiteral("lbcMenu_%1").arg(i),
                                  QString::fromLatin1(menus[i]), this);
        b->setGeometry(6 + i * 70, menuTop, 64, menuHeight);
        b->setColours(systemWindow(), QColor(255, 0, 0));
        b->setToolTip(QString::fromLatin1(menuTips[i]));
        connect(b, &ButtonLabel::clicked, this, [this, i] { clickMenu(i); });
        lbcMenu_[static_cast<std::size_t>(i)] = b;
    }

    txtLog_ = new QPlainTextEdit(this);
    txtLog_->setObjectName(QStringLiteral("txtLog"));
    txtLog_->setAccessibleName(QStringLiteral("Game log"));
    txtLog_->setReadOnly(true);
    txtLog_->setGeometry(logLeft, logTop, logWidth, logHeight);
    txtLog_->setToolTip(QStringLiteral("Double Click here to activate an expandable log window."));
    txtLog_->setFont(look::font(7.5));
    look::paint(txtLog_, look::cream, look::ink);
    txtLog_->viewport()->installEventFilter(this);

    buildCalendar();
    buildRating();
    buildSummary();
    buildModes();
    buildShortcuts();

    tmrGo_ = new QTimer(this);
    tmrGo_->setObjectName(QStringLiteral("tmrGo"));
    connect(tmrGo_, &QTimer::timeout, this, [this] { game_.clockTick(); });

    resize(mainWidth, px(summaryLayout(game_).mainHeight));
}

void frmMain::buildCalendar() {
    using namespace mainLayout;
    for (int d = 0; d < 7; ++d) {
        auto* day = new ButtonLabel(QStringLiteral("lblDay_%1").arg(d),
                                    QString::fromLatin1(Calendar::dayName(d)), this,
                                    ButtonLabel::Style::Immediate);
        day->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        day->setToolTip(QStringLiteral("Click a day to run the next day (N)"));
        connect(day, &ButtonLabel::clicked, this, [this] { runDay(); });
        lblDay_[static_cast<std::size_t>(d)] = day;
    }
    lbcNextDay_ = new ButtonLabel(QStringLiteral("lbcNextDay"), QStringLiteral(">"), this,
                                  ButtonLabel::Style::Immediate);
    lbcNextDay_->setAccessibleName(QStringLiteral("Next day"));
    lbcNextDay_->setToolTip(QStringLiteral("Click here to advance to the next day (N)"));
    lbcNextDay_->setColours(look::popcorn, look::ink);
    lbcNextDay_->setFont(look::font(8, true));
    connect(lbcNextDay_, &ButtonLabel::clicked, this, [this] { runDay(); });

    const char* keys[] = {"Space", "1", "2", "3"};
    for (int i = 0; i < 4; ++i) {
        auto* img = new ButtonLabel(QStringLiteral("imgSpeed_%1").arg(i), QString(), this,
                                    ButtonLabel::Style::Immediate);
        img->setGeometry(speedLeft + i * speedPitch, speedTop, speedWidth, speedHeight);
        img->setAccessibleName(QString::fromLatin1(speedTips[static_cast<std::size_t>(i)]));
        img->setToolTip(QStringLiteral("%1 (%2)").arg(
            QString::fromLatin1(speedTips[static_cast<std::size_t>(i)]),
            QString::fromLatin1(keys[i])));
        img->setPixmap(loadPicture(game_, "images\\speed" + std::to_string(i) + ".png"));
        img->setFrameShape(QFrame::Panel);
        img->setLineWidth(2);
        connect(img, &ButtonLabel::clicked, this, [this, i] { clickSpeed(i); });
        imgSpeed_[static_cast<std::size_t>(i)] = img;
    }
    lblYears_ = makeLabel(this, QStringLiteral("lblYears"), QStringLiteral("0"),
                          QRect(speedLeft, speedTop + speedHeight + 6, 30, 16));
    lblYears_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblYears_->setFont(look::font(9, true));
    lblYears_->setAccessibleName(QStringLiteral("Years old"));
    look::paint(lblYears_, look::navy, look::popcorn);
    makeLabel(this, QStringLiteral("Label4"), QStringLiteral("Years old"),
              QRect(speedLeft + 34, speedTop + speedHeight + 6, 90, 16));
}

void frmMain::buildRating() {
    makeLabel(this, QStringLiteral("Label1"), QStringLiteral("Theater Rating"),
              QRect(historyLeft, 106, 96, 16));
    lblRatingBack_ =
        makeLabel(this, QStringLiteral("lblRatingBack"), QString(), QRect(110, 108, 200, 12));
    look::paint(lblRatingBack_, look::night, look::cream);
    lblRatingBack_->setFrameShape(QFrame::Box);
    lblRatingBar_ =
        makeLabel(lblRatingBack_, QStringLiteral("lblRatingBar"), QString(), QRect(0, 0, 0, 12));
    look::paint(lblRatingBar_, look::teal, look::cream);
    lblRatingCaption_ =
        makeLabel(this, QStringLiteral("lblRatingCaption"), QString(), QRect(316, 105, 60, 18));
    lblRatingCaption_->setAccessibleName(QStringLiteral("Theater Rating"));
    lblRatingCaption_->setFont(look::font(9, true));
    look::paint(lblRatingCaption_, look::navy, look::popcorn);

    makeLabel(this, QStringLiteral("Label2"), QStringLiteral("Rating History:"),
              QRect(historyLeft, 123, 120, 16));
    const int cellTop = px(ratingManager::barOffset);
    const int cellHeight = px(ratingManager::barBottom - ratingManager::barOffset);
    for (int m = 0; m < 12; ++m) {
        const int left = historyLeft + m * historyPitch;
        const QString month = QString::fromLatin1(Calendar::monthName(m));
        auto* cell = makeLabel(this, QStringLiteral("lblHistory_%1").arg(m), QString(),
                               QRect(left, cellTop, historyWidth, cellHeight));
        auto* bar = makeLabel(this, QStringLiteral("lblHistoryBar_%1").arg(m), QString(),
                              QRect(left + 6, cellTop + cellHeight, historyWidth - 12, 0));
        auto* caption = makeLabel(this, QStringLiteral("lblHistMonth_%1").arg(m), month,
                                  QRect(left, cellTop + cellHeight + 1, historyWidth, 14));
        caption->setAlignment(Qt::AlignCenter);
        caption->setFont(look::font(7));
        caption->setAccessibleName(QStringLiteral("Rating History: ") + month);
        lblHistory_[static_cast<std::size_t>(m)] = cell;
        lblHistoryBar_[static_cast<std::size_t>(m)] = bar;
        lblHistMonth_[static_cast<std::size_t>(m)] = caption;
    }
}

void frmMain::buildSummary() {
    frameSummary_ = new QGroupBox(QStringLiteral("Monthly Summary"), this);
    frameSummary_->setObjectName(QStringLiteral("frameSummary"));
    frameSummary_->setGeometry(8, px(mainLayout::summaryTop), mainWidth - 16,
                               px(mainLayout::summaryCollapsedHeight));
    // Three columns: the totals, the takings, then (open) the spending by department.
    auto place = [](int caption) -> QPoint {
        switch (caption) {
        case 0:
        case 1:
        case 2:
        case 6:
            return {10, 20 + (caption == 6 ? 3 : caption) * 15};
        case 3:
        case 4:
        case 5:
            return {232, 20 + (caption - 3) * 15};
        default: // the six spending totals, two columns under the divider
            return {caption < 10 ? 10 : 232, 112 + ((caption - 7) % 3) * 22};
        }
    };
    for (int c = 0; c < 13; ++c) {
        const QPoint p = place(c);
        auto* l = makeLabel(frameSummary_, QStringLiteral("lblSummary_%1").arg(c),
                            QString::fromLatin1(summaryCaptions[c]), QRect(p, QSize(124, 15)));
        if (c >= 7)
            spendingCaptions_[static_cast<std::size_t>(c - 7)] = l;
    }
    for (std::size_t i = 0; i < std::size(figures); ++i) {
        const QPoint p = place(figures[i].caption);
        auto* l = makeLabel(frameSummary_, QString::fromLatin1(figures[i].name), QString(),
                            QRect(p + QPoint(120, 0), QSize(90, 15)));
        l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        l->setAccessibleName(captionName(figures[i].caption));
        l->setFont(look::font(8.5, true));
        QPalette pal = l->palette();
        pal.setColor(QPalette::WindowText, look::popcorn);
        l->setPalette(pal);
        money_[i] = l;
    }
    lneExpand_ = new QFrame(frameSummary_);
    lneExpand_->setObjectName(QStringLiteral("lneExpand"));
    lneExpand_->setFrameShape(QFrame::HLine);
    lneExpand_->setStyleSheet(QStringLiteral("color: #C9A227;"));
    lneExpand_->setGeometry(10, 92, mainWidth - 40, 4);

    lbcExpand_ = new ButtonLabel(QStringLiteral("lbcExpand"), QStringLiteral(">>>"), frameSummary_);
    lbcExpand_->setGeometry(mainWidth - 16 - 80, 56, 70, 20);
    lbcExpand_->setAccessibleName(QStringLiteral("Expand details"));
    lbcExpand_->setToolTip(QStringLiteral("Expand details"));
    lbcExpand_->setColours(fromBgr(0xC0FFC0), systemWindowText());
    lbcExpand_->setFont(look::font(8.5, true));
    connect(lbcExpand_, &ButtonLabel::clicked, this, [this] { game_.expand(""); });
}

void frmMain::buildModes() {
    frameModes_ = new QGroupBox(QStringLiteral("Mode Selector"), this);
    frameModes_->setObjectName(QStringLiteral("frameModes"));
    const SummaryLayout l = summaryLayout(game_);
    frameModes_->setGeometry(8, px(l.modesTop), mainWidth - 16, px(mainLayout::modesHeight));
    const int width = (mainWidth - 16 - 10 - 3 * 8) / 4;
    for (int m = 0; m < 8; ++m) {
        auto* b = new ButtonLabel(QStringLiteral("lbcMode_%1").arg(m),
                                  QString::fromLatin1(modeCaptions[static_cast<std::size_t>(m)]),
                                  frameModes_);
        b->setGeometry(5 + (m % 4) * (width + 8), 18 + (m / 4) * 26, width, 22);
        b->setToolTip(QStringLiteral("%1 (F%2)")
                          .arg(QString::fromLatin1(modeCaptions[static_cast<std::size_t>(m)]))
                          .arg(m + 2));
        b->setFont(look::font(9, true));
        connect(b, &ButtonLabel::clicked, this, [this, m] { game_.switchMode(m); });
        lbcMode_[static_cast<std::size_t>(m)] = b;
    }
}

// Each key does exactly what the click on its control does: same sound, same call.
void frmMain::buildShortcuts() {
    addShortcut(Qt::Key_Space, [this] {
        const int target = game_.speed == 0 ? resumeSpeed_ : 0;
        imgSpeed_[static_cast<std::size_t>(target)]->trigger();
    });
    for (int s = 1; s <= 3; ++s)
        addShortcut(Qt::Key_0 + s,
                    [this, s] { imgSpeed_[static_cast<std::size_t>(s)]->trigger(); });
    addShortcut(Qt::Key_N, [this] { lbcNextDay_->trigger(); });
    for (int m = 0; m < 8; ++m)
        addShortcut(Qt::Key_F2 + m,
                    [this, m] { lbcMode_[static_cast<std::size_t>(m)]->trigger(); });
    const std::pair<QKeySequence, int> fileKeys[] = {
        {QKeySequence(Qt::CTRL | Qt::Key_N), 0},
        {QKeySequence(Qt::CTRL | Qt::Key_O), 1},
        {QKeySequence(Qt::CTRL | Qt::Key_S), 2},
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), 3}};
    for (const auto& [key, option] : fileKeys)
        addShortcut(key, [this, option = option] { runFileOption(game_, option); });
    addShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q),
                [this] { findChild<ButtonLabel*>(QStringLiteral("lbcClose"))->trigger(); });
    addShortcut(Qt::Key_F1, [this] { lbcMenu_[1]->trigger(); });
}

void frmMain::addShortcut(const QKeySequence& key, std::function<void()> action) {
    auto* s = new QShortcut(key, this);
    s->setContext(Qt::ApplicationShortcut);
    connect(s, &QShortcut::activated, this, std::move(action));
}

void frmMain::setModeScreens(const std::array<ChildFrame*, 8>& screens) {
    modes_ = screens;
    for (ChildFrame* child : modes_)
        connect(child, &ChildFrame::reglueRequested, this, [this] { alignForm(); });
}

void frmMain::setupForms() {
    for (std::size_t m = 0; m < modes_.size(); ++m) {
        ChildFrame* child = modes_[m];
        const std::uint32_t bgr = static_cast<std::uint32_t>(game_.formColours[m]) & 0xFFFFFFu;
        child->setFormColour(bgr);
        child->setGlued(true);
        lbcMode_[m]->setColours(fromBgr(bgr), systemWindowText());
    }
}

// --- what the clicks do ---

void frmMain::clickSpeed(int speed) {
    game_.setSpeed(speed);
    if (speed > 0)
        resumeSpeed_ = speed;
}

void frmMain::clickMenu(int index) {
    switch (index) {
    case 0:
        if (onFileMenu)
            onFileMenu();
        break;
    case 1:
        game_.dialogs().showHelp("contents");
        break;
    case 2:
        game_.goals.showGoalInfo();
        break;
    default:
        if (onSettingsMenu)
            onSettingsMenu();
        break;
    }
}

void frmMain::runDay() {
    game_.clockTick();
}

void frmMain::showMode(int mode) {
    ChildFrame* child = modeScreen(mode);
    if (!child)
        return;
    child->show();
    child->raise();
    child->activateWindow();
    alignForm();
}

void frmMain::alignForm() {
    const int mode = game_.currentMode;
    if (mode < 0 || mode > 7)
        return;
    ChildFrame* child = modeScreen(mode);
    if (!child || !child->getGlued())
        return;
    child->setGeometry(x(), y() + height(), width(), child->height());
}

// --- the drag by the header, the log box's double click ---

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtLog_->viewport() && event->type() == QEvent::MouseButtonDblClick) {
        if (onShowLog)
            onShowLog();
        return true;
    }
    if (watched != lblHeader_)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        auto* e = static_cast<QMouseEvent*>(event);
        if (e->button() == Qt::LeftButton) {
            dragging_ = true;
            grab_ = e->position().toPoint();
        }
        return true;
    }
    case QEvent::MouseMove:
        if (dragging_) {
            move(pos() + static_cast<QMouseEvent*>(event)->position().toPoint() - grab_);
            alignForm();
        }
        return true;
    case QEvent::MouseButtonRelease:
        if (dragging_)
            savePosition();
        dragging_ = false;
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void frmMain::savePosition() {
    game_.settings().set("other", "mainposition", std::to_string(x()) + "," + std::to_string(y()));
}

void frmMain::restorePosition() {
    const QString saved = QString::fromStdString(game_.settings().get("other", "mainposition", ""));
    const QStringList parts = saved.split(QLatin1Char(','));
    if (parts.size() == 2) {
        bool okX = false, okY = false;
        const QPoint p(parts[0].toInt(&okX), parts[1].toInt(&okY));
        // Only a place on one of today's screens: a monitor may have gone since.
        if (okX && okY && QGuiApplication::screenAt(p + QPoint(20, 10))) {
            move(p);
            return;
        }
    }
    if (const QScreen* s = QGuiApplication::primaryScreen()) {
        const QRect area = s->availableGeometry();
        move(area.left() + (area.width() - width()) / 2, area.top() + area.height() / 10);
    }
}

// --- painting the views ---

void frmMain::refreshAll() {
    paintFinances();
    paintDayBars();
    paintMonthLabels();
    paintYear();
    paintSpeed();
    paintRating();
    paintExpand();
    logCleared_ = true;
    pendingLog_.clear();
    flushLog();
}

void frmMain::paintFinances() {
    const MoneySummary s = moneySummary(game_);
    const std::string* values[] = {
        &s.income,      &s.spent,           &s.profit,   &s.funds,    &s.ticketSales,
        &s.arcadeSales, &s.concessionSales, &s.depPromo, &s.depLabor, &s.depMovie,
        &s.depArcades,  &s.depConcessions,  &s.depLoan};
    for (std::size_t i = 0; i < money_.size(); ++i)
        money_[i]->setText(QString::fromStdString(*values[i]));
}

void frmMain::paintDayBars() {
    const DayBars bars = dayBars(game_);
    for (std::size_t d = 0; d < 7; ++d) {
        const DayBar& bar = bars.days[d];
        lblDay_[d]->setGeometry(px(bar.left), px(mainLayout::dayTop), px(mainLayout::dayWidth),
                                px(bar.height));
        lblDay_[d]->setColours(fromBgr(bar.colour), look::ink);
        const bool bold = static_cast<int>(d) == bars.currentDay;
        if (lblDay_[d]->font().bold() != bold)
            lblDay_[d]->setFont(look::font(8, bold));
    }
    lbcNextDay_->setGeometry(px(bars.nextDayLeft),
                             px(mainLayout::dayTop + mainLayout::currentDayHeight) + nextDayGap,
                             px(mainLayout::dayWidth), px(mainLayout::otherDayHeight));
    lbcNextDay_->setText(QString::fromStdString(bars.nextDayCaption));
}

void frmMain::paintMonthLabels() {
    const auto labels = monthLabels(game_);
    for (std::size_t m = 0; m < 12; ++m)
        look::paint(lblHistory_[m], fromBgr(labels[m].colour), look::ink);
}

void frmMain::paintYear() {
    lblYears_->setText(QString::fromStdString(yearText(game_)));
}

// The running speed's picture stands raised, the others flat; the clock follows the speed.
void frmMain::paintSpeed() {
    for (int i = 0; i < 4; ++i) {
        ButtonLabel* img = imgSpeed_[static_cast<std::size_t>(i)];
        const bool raised = i == game_.speed;
        img->setFrameShadow(raised ? QFrame::Raised : QFrame::Plain);
        img->setLineWidth(raised ? 2 : 0);
        look::paint(img, raised ? look::wine : look::night, look::cream);
    }
    const int interval = game_.timerInterval();
    if (interval <= 0) {
        tmrGo_->stop();
    } else if (!tmrGo_->isActive() || tmrGo_->interval() != interval) {
        tmrGo_->start(interval);
    }
}

void frmMain::paintRating() {
    const ratingManager& rating = game_.rating;
    lblRatingCaption_->setText(QString::fromStdString(ratingCaption(rating)));
    lblRatingBar_->resize(ratingBarWidth(rating, lblRatingBack_->width()),
                          lblRatingBack_->height());
    const auto& bars = rating.bars();
    for (std::size_t m = 0; m < 12; ++m) {
        QLabel* bar = lblHistoryBar_[m];
        bar->setGeometry(bar->x(), px(bars[m].top), bar->width(), px(bars[m].height));
        bar->setVisible(bars[m].height > 0);
        look::paint(bar, fromBgr(bars[m].colour), look::ink);
        lblHistMonth_[m]->setToolTip(QString::fromStdString(bars[m].tip));
    }
}

void frmMain::paintExpand() {
    const SummaryLayout l = summaryLayout(game_);
    frameSummary_->resize(frameSummary_->width(), px(l.summaryHeight));
    lneExpand_->setVisible(l.lineVisible);
    for (QLabel* c : spendingCaptions_)
        c->setVisible(l.lineVisible);
    for (std::size_t i = 7; i < money_.size(); ++i)
        money_[i]->setVisible(l.lineVisible);
    lbcExpand_->setText(QString::fromStdString(l.expandCaption));
    frameModes_->move(frameModes_->x(), px(l.modesTop));
    resize(width(), px(l.mainHeight));
    shpBorder_->setGeometry(rect());
    shpBorder_->raise();
    alignForm();
}

// --- the log box: lines gather during a day and go into the box once per pass ---

void frmMain::appendLog(const std::string& line, bool cleared) {
    const bool scheduled = logCleared_ || !pendingLog_.isEmpty();
    if (cleared) {
        logCleared_ = true;
        pendingLog_.clear();
    } else if (!logCleared_) {
        if (!pendingLog_.isEmpty())
            pendingLog_ += QLatin1Char('\n');
        pendingLog_ += QString::fromStdString(line);
    }
    if (!scheduled)
        QMetaObject::invokeMethod(this, &frmMain::flushLog, Qt::QueuedConnection);
}

void frmMain::flushLog() {
    if (logCleared_) {
        QString all = QString::fromStdString(game_.logBox);
        all.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        txtLog_->setPlainText(all);
    } else if (!pendingLog_.isEmpty()) {
        txtLog_->appendPlainText(pendingLog_);
    } else {
        return;
    }
    logCleared_ = false;
    pendingLog_.clear();
    txtLog_->moveCursor(QTextCursor::End);
    txtLog_->verticalScrollBar()->setValue(txtLog_->verticalScrollBar()->maximum());
}

} // namespace zorvane::screens
