#include "frmMovies.h"

#include "Screenshots.h"
#include "core/Text.h"
#include "frame/ButtonLabel.h"
#include "frame/Labels.h"
#include "frame/Look.h"
#include "frame/Picture.h"
#include "frame/Twips.h"
#include "movies/MovieTexts.h"
#include "ports/QtScreen.h"
#include "session/Game.h"

#include <QApplication>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include <optional>
#include <string>
#include <vector>

namespace zorvane::screens {

namespace {

namespace cap = movieCaptions;

constexpr int screenHeight = 5600; // twips
constexpr int tabsMargin = 6;      // pixels from here on

// The showtime table: the check boxes, then the seven columns under lblChartHeader.
constexpr int chkLeft = 8, chkWidth = 22;
constexpr std::array<int, 7> columnLeft{30, 102, 138, 378, 430, 504, 550};
constexpr std::array<int, 7> columnWidth{72, 36, 240, 52, 74, 46, 46};
constexpr int headerTop = 6, headerHeight = 18, rowTop = 26, rowPitch = 20, rowHeight = 19;
constexpr int totalsTop = rowTop + 8 * rowPitch + 4;
constexpr int listTop = totalsTop + rowPitch + 6;
constexpr int gridRowHeight = 19;

enum Column { Time, Ads, Title, Sold, Income, Age, Pop };

// The system's window colour: the background of a window's content, white behind text, so a
// matinee's light grey stands out from it.
QColor systemWindow() {
    return QApplication::palette().color(QPalette::Base);
}
QColor systemWindowText() {
    return QApplication::palette().color(QPalette::WindowText);
}

QLabel* label(QWidget* parent, const QString& name, const QString& text, const QRect& r,
              const QFont& font, Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter) {
    return placeLabel(parent, name, text, r, font, align);
}

QLabel* hint(QWidget* parent, const char* text, const QRect& r) {
    auto* l = label(parent, QStringLiteral("lblHint"), QString::fromLatin1(text), r,
                    look::font(7.5), Qt::AlignLeft | Qt::AlignTop);
    l->setWordWrap(true);
    return l;
}

// A grid in the game's look: cream cells, a navy header row, brass lines; read only.
QTableWidget* grid(QWidget* parent, const QString& name, const int* widthsTwips, int columns) {
    auto* g = new QTableWidget(0, columns, parent);
    g->setObjectName(name);
    g->verticalHeader()->hide();
    g->verticalHeader()->setDefaultSectionSize(gridRowHeight);
    g->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* h = g->horizontalHeader();
    h->setFixedHeight(gridRowHeight + 2);
    h->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    h->setSectionResizeMode(QHeaderView::Fixed);
    h->setHighlightSections(false);
    h->setFont(look::font(7.5)); // the headers must fit the grid's own column widths
    for (int c = 0; c < columns; ++c)
        g->setColumnWidth(c, px(widthsTwips[c]));
    g->setEditTriggers(QAbstractItemView::NoEditTriggers);
    g->setSelectionBehavior(QAbstractItemView::SelectRows);
    g->setSelectionMode(QAbstractItemView::SingleSelection);
    g->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    g->setFont(look::font(8));
    g->setStyleSheet(
        QStringLiteral("QTableWidget { background: #FFFBF0; color: #2B1D14; gridline-color: "
                       "#C9A227; border: 1px solid #2B1D14;"
                       " selection-background-color: #F2C14E; selection-color: #2B1D14; }"
                       "QHeaderView::section { background: #1D2A44; color: #F2C14E; border: 0; "
                       "border-right: 1px solid #C9A227;"
                       " padding-left: 2px; }"));
    return g;
}

// Writes a grid's rows, touching only the cells whose text changed.
void fillGrid(QTableWidget* g, const GridText& text,
              Qt::Alignment firstColumn = Qt::AlignLeft | Qt::AlignVCenter) {
    g->setRowCount(static_cast<int>(text.rows.size()));
    g->horizontalHeader()->setVisible(!text.header.empty());
    for (std::size_t c = 0;
         c < text.header.size() && c < static_cast<std::size_t>(g->columnCount()); ++c) {
        const QString h = QString::fromStdString(text.header[c]);
        QTableWidgetItem* item = g->horizontalHeaderItem(static_cast<int>(c));
        if (!item)
            g->setHorizontalHeaderItem(static_cast<int>(c), new QTableWidgetItem(h));
        else if (item->text() != h)
            item->setText(h);
    }
    for (std::size_t r = 0; r < text.rows.size(); ++r) {
        for (std::size_t c = 0;
             c < text.rows[r].size() && c < static_cast<std::size_t>(g->columnCount()); ++c) {
            const QString cell = QString::fromStdString(text.rows[r][c]);
            QTableWidgetItem* item = g->item(static_cast<int>(r), static_cast<int>(c));
            if (!item) {
                item = new QTableWidgetItem(cell);
                item->setTextAlignment(c == 0 ? firstColumn : Qt::AlignLeft | Qt::AlignVCenter);
                g->setItem(static_cast<int>(r), static_cast<int>(c), item);
            } else if (item->text() != cell) {
                item->setText(cell);
            }
        }
    }
}

ButtonLabel* movieButton(QWidget* parent, const QString& name, const char* caption,
                         const QRect& r) {
    return placeButton(parent, name, QString::fromLatin1(caption), r, fromBgr(cap::buttonColour),
                       systemWindowText());
}

} // namespace

frmMovies::frmMovies(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 2, QStringLiteral("frmMovies"), QString::fromLatin1(cap::header), bgr,
                 parent) {
    SSTab1_ = new QTabWidget(body());
    SSTab1_->setObjectName(QStringLiteral("SSTab1"));
    SSTab1_->setFont(look::font(8.5, true));
    SSTab1_->setDocumentMode(false);
    QWidget* pages[4] = {buildCurrentShows(), buildBuyMovies(), buildTicketPrices(), buildAds()};
    for (int i = 0; i < 4; ++i) {
        pages[i]->setFont(look::font(8.5));
        SSTab1_->addTab(pages[i], QString::fromLatin1(cap::tabs[static_cast<std::size_t>(i)]));
    }
    connect(SSTab1_, &QTabWidget::currentChanged, this, [this] { routeClick(this); });

    auto* fill = new QVBoxLayout(body());
    fill->setContentsMargins(tabsMargin, tabsMargin, tabsMargin, tabsMargin);
    fill->addWidget(SSTab1_);
    resize(width(), px(screenHeight));
    paintBuyMovies();
    paintMyMovies();
    paintShowtimes();
    paintTicketPrices();
    paintAds();
}

// ------------------------------------------------------------------ the four tabs

QWidget* frmMovies::buildCurrentShows() {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("tabCurrentShows"));
    MovieManager& mm = game_.movies;

    chkShowtimeAssignAll_ = new QCheckBox(page);
    chkShowtimeAssignAll_->setObjectName(QStringLiteral("chkShowtimeAssignAll"));
    chkShowtimeAssignAll_->setAccessibleName(QStringLiteral("All showtimes"));
    chkShowtimeAssignAll_->setToolTip(QStringLiteral("Tick or clear all eight showtimes"));
    chkShowtimeAssignAll_->setGeometry(chkLeft + 3, headerTop, chkWidth - 3, headerHeight);
    connect(chkShowtimeAssignAll_, &QCheckBox::clicked, this, [this, &mm](bool on) {
        routeClick(this);
        mm.checkAllShowtimes(on);
        paintChecks();
    });

    for (std::size_t c = 0; c < cap::chartHeader.size(); ++c) {
        auto* h = label(page, QStringLiteral("lblChartHeader_%1").arg(c),
                        QString::fromLatin1(cap::chartHeader[c]),
                        QRect(columnLeft[c], headerTop, columnWidth[c] - 2, headerHeight),
                        look::font(8, true));
        h->setIndent(4);
        look::paint(h, look::navy, look::popcorn);
    }

    for (int s = 1; s <= 8; ++s) {
        const auto k = static_cast<std::size_t>(s - 1);
        const int top = rowTop + (s - 1) * rowPitch;
        auto* chk = new QCheckBox(page);
        chk->setObjectName(QStringLiteral("chkShowtimeAssign_%1").arg(s));
        chk->setGeometry(chkLeft + 3, top, chkWidth - 3, rowHeight);
        chk->setToolTip(
            QStringLiteral("Right click: book the selected movie on this showtime alone"));
        chk->installEventFilter(this);
        connect(chk, &QCheckBox::clicked, this, [&mm, s](bool on) { mm.checkShowtime(s, on); });
        chkShowtimeAssign_[k] = chk;

        auto* time = new ButtonLabel(QStringLiteral("lblShowtime_%1").arg(s), {}, page,
                                     ButtonLabel::Style::Immediate);
        time->setGeometry(columnLeft[Time], top, columnWidth[Time] - 2, rowHeight);
        time->setFont(look::font(8, true));
        time->setToolTip(QStringLiteral(
            "Click to switch this showtime between matinee (grey) and standard prices"));
        connect(time, &ButtonLabel::clicked, this, [&mm, s] { mm.showtimeAt(s).toggleMatinee(); });
        lblShowtime_[k] = time;

        const char* names[] = {nullptr,     "lblAds",         "lblMovieTitle", "lblTicketsSold",
                               "lblIncome", "lblDaysRunning", "lblPopularity"};
        std::array<QLabel*, 8>* columns[] = {nullptr,          &lblAds_,    &lblMovieTitle_,
                                             &lblTicketsSold_, &lblIncome_, &lblDaysRunning_,
                                             &lblPopularity_};
        for (int c = Ads; c <= Pop; ++c) {
            auto* v = label(page, QStringLiteral("%1_%2").arg(QLatin1String(names[c])).arg(s), {},
                            QRect(columnLeft[static_cast<std::size_t>(c)], top,
                                  columnWidth[static_cast<std::size_t>(c)] - 2, rowHeight),
                            look::font(8),
                            c == Title ? Qt::AlignLeft | Qt::AlignVCenter
                                       : Qt::AlignRight | Qt::AlignVCenter);
            v->setIndent(4);
            look::paint(v, look::cream, look::ink);
            (*columns[c])[k] = v;
        }
    }

    auto* rule = new QFrame(page);
    rule->setObjectName(QStringLiteral("lneTotals"));
    rule->setGeometry(columnLeft[Title], totalsTop - 3,
                      columnLeft[Pop] + columnWidth[Pop] - columnLeft[Title], 1);
    rule->setStyleSheet(QStringLiteral("background: #2B1D14;"));
    auto* totals = label(page, QStringLiteral("lblTotals"), QString::fromLatin1(cap::totals),
                         QRect(columnLeft[Title], totalsTop, columnWidth[Title] - 2, rowHeight),
                         look::font(8, true), Qt::AlignRight | Qt::AlignVCenter);
    totals->setIndent(4);
    lblTotalSold_ = label(page, QStringLiteral("lblTotalSold"), {},
                          QRect(columnLeft[Sold], totalsTop, columnWidth[Sold] - 2, rowHeight),
                          look::font(8, true), Qt::AlignRight | Qt::AlignVCenter);
    lblTotalSold_->setAccessibleName(QStringLiteral("Total sold"));
    lblTotalSold_->setIndent(4);
    lblTotalIncome_ =
        label(page, QStringLiteral("lblTotalIncome"), {},
              QRect(columnLeft[Income], totalsTop, columnWidth[Income] - 2, rowHeight),
              look::font(8, true), Qt::AlignRight | Qt::AlignVCenter);
    lblTotalIncome_->setAccessibleName(QStringLiteral("Total income"));
    lblTotalIncome_->setIndent(4);

    label(page, QStringLiteral("lblMyMovies"), QString::fromLatin1(cap::myMovies),
          QRect(chkLeft, listTop, 200, 16), look::font(8, true));
    lstMyMovies_ = new QListWidget(page);
    lstMyMovies_->setObjectName(QStringLiteral("lstMyMovies"));
    lstMyMovies_->setAccessibleName(QString::fromLatin1(cap::myMovies));
    lstMyMovies_->setGeometry(chkLeft, listTop + 17, 300, 78);
    lstMyMovies_->setFont(look::font(8));
    lstMyMovies_->setStyleSheet(QStringLiteral(
        "QListWidget { background: #FFFBF0; color: #2B1D14; border: 1px solid #2B1D14; }"
        "QListWidget::item:selected { background: #B3262E; color: #F6E7C1; }"));
    lstMyMovies_->installEventFilter(this);
    connect(lstMyMovies_, &QListWidget::currentRowChanged, this,
            [&mm](int row) { mm.selectMyMovie(row); });
    connect(lstMyMovies_, &QListWidget::clicked, this, [this] { routeClick(this); });

    const int buttonLeft = chkLeft + 312;
    auto* assign = movieButton(page, QStringLiteral("lbcAssign"), cap::assign,
                               QRect(buttonLeft, listTop + 2, 146, 24));
    connect(assign, &ButtonLabel::clicked, this, [this, &mm] {
        mm.assignShowtimes(0);
        paintChecks();
    });
    auto* stop = movieButton(page, QStringLiteral("lbcStopShowtimes"), cap::stop,
                             QRect(buttonLeft, listTop + 32, 146, 24));
    connect(stop, &ButtonLabel::clicked, this, [this, &mm] {
        mm.stopShowtimes(0);
        paintChecks();
    });
    auto* sell = movieButton(page, QStringLiteral("lbcSellMovie"), cap::sell,
                             QRect(buttonLeft, listTop + 62, 146, 24));
    connect(sell, &ButtonLabel::clicked, this, [&mm] { mm.sellMovie(); });
    hint(page, cap::showsHint, QRect(buttonLeft + 156, listTop, 134, 96));
    return page;
}

QWidget* frmMovies::buildBuyMovies() {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("tabBuyMovies"));
    grdBuyMovies_ = grid(page, QStringLiteral("grdBuyMovies"), cap::buyColumnWidths.data(), 3);
    grdBuyMovies_->setAccessibleName(QString::fromLatin1(cap::tabs[1]));
    int gridWidth = 0;
    for (const int w : cap::buyColumnWidths)
        gridWidth += px(w);
    grdBuyMovies_->setGeometry(8, 8, gridWidth + 2 + 14, 290);
    grdBuyMovies_->installEventFilter(this);
    connect(grdBuyMovies_, &QTableWidget::cellDoubleClicked, this, [this](int row, int) {
        routeClick(this);
        game_.movies.buyMovie(row + 1);
    });
    hint(page, cap::buyHint, QRect(gridWidth + 32, 10, 600 - gridWidth - 32, 90));
    return page;
}

QWidget* frmMovies::buildTicketPrices() {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("tabTicketPrices"));
    for (int i = 0; i < 3; ++i) {
        const auto k = static_cast<std::size_t>(i);
        const QString caption = QString::fromLatin1(cap::priceCaptions[k]);
        label(page, QStringLiteral("lblTicketPrice_%1").arg(i), caption,
              QRect(40, 44 + i * 40, 130, 24), look::font(9, true));
        auto* box = new QLineEdit(page);
        box->setObjectName(QStringLiteral("txtTicketPrice_%1").arg(i));
        box->setAccessibleName(caption.chopped(1));
        box->setGeometry(176, 44 + i * 40, 96, 24);
        box->setFont(look::font(9.5));
        box->setMaxLength(20);
        box->installEventFilter(this);
        txtTicketPrice_[k] = box;
    }
    hint(page, cap::pricesHint, QRect(40, 170, 290, 60));
    auto* booth = label(page, QStringLiteral("imgTicketBooth"), {}, QRect(380, 30, 200, 160),
                        font(), Qt::AlignCenter);
    booth->setAccessibleName(QStringLiteral("Ticket booth"));
    booth->setPixmap(loadPicture(game_, "images\\movies\\ticketbooth.png"));
    return page;
}

QWidget* frmMovies::buildAds() {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("tabAdvertisements"));
    gridAds_ = grid(page, QStringLiteral("gridAds"), cap::adsColumnWidths.data(), 4);
    gridAds_->setAccessibleName(QString::fromLatin1(cap::tabs[3]));
    gridAds_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    int gridWidth = 0;
    for (const int w : cap::adsColumnWidths)
        gridWidth += px(w);
    gridAds_->setGeometry(8, 8, gridWidth + 2, gridRowHeight + 2 + 9 * gridRowHeight + 2);
    gridAds_->installEventFilter(this);
    connect(gridAds_, &QTableWidget::cellDoubleClicked, this,
            [this](int row, int) { askAds(row + 1); });
    hint(gridAds_->parentWidget(), cap::adsHint, QRect(8, 222, gridWidth, 50));
    auto* img = label(page, QStringLiteral("Image1"), {}, QRect(380, 30, 200, 150), font(),
                      Qt::AlignCenter);
    img->setAccessibleName(QStringLiteral("Advertisements"));
    img->setPixmap(loadPicture(game_, "images\\movies\\ads.png"));
    return page;
}

// ------------------------------------------------------------------ what the controls do

// A price box applies its text through digitsValue: "$" and "," drop out, no digits is 0.
void frmMovies::applyTicketPrice(int index) {
    const QLineEdit* box = txtTicketPrice_[static_cast<std::size_t>(index)];
    game_.movies.setTicketPrice(index, digitsValue(box->text().toStdString()));
}

// Row numbers of the ads grid are showtime numbers. An empty answer (Cancel) changes nothing.
void frmMovies::askAds(int row) {
    routeClick(this);
    const std::optional<int> ads =
        adsAnswer(game_.dialogs().input(cap::adsPrompt, cap::adsTitle, ""));
    if (ads)
        game_.movies.setShowtimeAds(row, *ads);
}

bool frmMovies::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    // A showtime box: the click on any press; the right button books the selected movie
    // there alone.
    for (std::size_t k = 0; k < chkShowtimeAssign_.size(); ++k) {
        if (watched != chkShowtimeAssign_[k])
            continue;
        if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick) {
            routeClick(this);
            if (static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
                game_.movies.assignOnly(static_cast<int>(k) + 1);
                paintChecks();
                return true;
            }
        }
        // The menu key does from the keyboard what the right button does.
        if (type == QEvent::ContextMenu &&
            static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
            routeClick(this);
            game_.movies.assignOnly(static_cast<int>(k) + 1);
            paintChecks();
            return true;
        }
        return false;
    }
    // The own-movies list stops the clock while it has the focus. Focus that comes and goes
    // with the whole window (another screen activated) is not the list's.
    if (watched == lstMyMovies_ && (type == QEvent::FocusIn || type == QEvent::FocusOut)) {
        const Qt::FocusReason why = static_cast<QFocusEvent*>(event)->reason();
        if (why != Qt::ActiveWindowFocusReason && why != Qt::PopupFocusReason)
            game_.setSpeed(type == QEvent::FocusIn ? -1 : -2);
        return false;
    }
    for (std::size_t i = 0; i < txtTicketPrice_.size(); ++i) {
        if (watched != txtTicketPrice_[i])
            continue;
        const bool enter =
            type == QEvent::KeyPress && (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return ||
                                         static_cast<QKeyEvent*>(event)->key() == Qt::Key_Enter);
        if (enter || type == QEvent::FocusOut)
            applyTicketPrice(static_cast<int>(i));
        return enter;
    }
    // Enter on a grid is its double click, for the keyboard.
    if (type == QEvent::KeyPress && (watched == grdBuyMovies_ || watched == gridAds_)) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        auto* g = static_cast<QTableWidget*>(watched);
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && g->currentRow() >= 0) {
            emit g->cellDoubleClicked(g->currentRow(), 0);
            return true;
        }
    }
    return ChildFrame::eventFilter(watched, event);
}

// ------------------------------------------------------------------ painting the views

void frmMovies::paintChecks() {
    const MovieManager& mm = game_.movies;
    for (int s = 1; s <= 8; ++s) {
        QCheckBox* box = chkShowtimeAssign_[static_cast<std::size_t>(s - 1)];
        if (box->isChecked() != mm.isShowtimeChecked(s)) {
            const QSignalBlocker quiet(box);
            box->setChecked(mm.isShowtimeChecked(s));
        }
    }
    if (chkShowtimeAssignAll_->isChecked() != mm.allShowtimesChecked()) {
        const QSignalBlocker quiet(chkShowtimeAssignAll_);
        chkShowtimeAssignAll_->setChecked(mm.allShowtimesChecked());
    }
}

void frmMovies::paintShowtimes() {
    const ShowtimeTableText t = showtimeTable(game_.movies);
    const QColor grey = fromBgr(cap::matineeColour);
    for (std::size_t k = 0; k < t.rows.size(); ++k) {
        const ShowtimeRowText& row = t.rows[k];
        ButtonLabel* time = lblShowtime_[k];
        const QString caption = QString::fromStdString(row.showtime);
        if (time->text() != caption) {
            time->setText(caption);
            time->setAccessibleName(caption);
            chkShowtimeAssign_[k]->setAccessibleName(QStringLiteral("Choose ") + caption);
            const std::array<QLabel*, 8>* columns[] = {&lblAds_,         &lblMovieTitle_,
                                                       &lblTicketsSold_, &lblIncome_,
                                                       &lblDaysRunning_, &lblPopularity_};
            for (std::size_t c = 0; c < 6; ++c)
                (*columns[c])[k]->setAccessibleName(QString::fromLatin1(cap::chartHeader[c + 1]) +
                                                    QStringLiteral(", ") + caption);
        }
        time->setColours(row.matineeGrey ? grey : systemWindow(), systemWindowText());
        time->setAccessibleDescription(row.matineeGrey ? QStringLiteral("matinee prices")
                                                       : QStringLiteral("standard prices"));
        lblAds_[k]->setText(QString::fromStdString(row.ads));
        lblMovieTitle_[k]->setText(QString::fromStdString(row.title));
        lblTicketsSold_[k]->setText(QString::fromStdString(row.sold));
        lblIncome_[k]->setText(QString::fromStdString(row.income));
        lblDaysRunning_[k]->setText(QString::fromStdString(row.age));
        lblPopularity_[k]->setText(QString::fromStdString(row.popularity));
    }
    lblTotalSold_->setText(QString::fromStdString(t.totalSold));
    lblTotalIncome_->setText(QString::fromStdString(t.totalIncome));
    paintChecks();
}

void frmMovies::paintMyMovies() {
    const std::vector<std::string> lines = myMovieLines(game_.movies);
    const QSignalBlocker quiet(
        lstMyMovies_); // the selection is the game's; painting only mirrors it
    if (lstMyMovies_->count() != static_cast<int>(lines.size())) {
        lstMyMovies_->clear();
        for (const std::string& l : lines)
            lstMyMovies_->addItem(QString::fromStdString(l));
    } else {
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const QString text = QString::fromStdString(lines[i]);
            if (lstMyMovies_->item(static_cast<int>(i))->text() != text)
                lstMyMovies_->item(static_cast<int>(i))->setText(text);
        }
    }
    lstMyMovies_->setCurrentRow(game_.movies.selectedMyMovie());
}

void frmMovies::paintBuyMovies() {
    fillGrid(grdBuyMovies_, buyMoviesGrid(game_.movies));
}

void frmMovies::paintTicketPrices() {
    const std::array<std::string, 3> prices = ticketPriceTexts(game_.movies);
    for (std::size_t i = 0; i < prices.size(); ++i)
        txtTicketPrice_[i]->setText(QString::fromStdString(prices[i]));
}

void frmMovies::paintAds() {
    const GridText ads = adsGrid(game_.movies);
    fillGrid(gridAds_, ads, Qt::AlignCenter);
    // The first column and the header are fixed: they carry the header's colours; the last
    // row is the totals.
    for (int r = 0; r < gridAds_->rowCount(); ++r) {
        QTableWidgetItem* fixed = gridAds_->item(r, 0);
        if (fixed && fixed->background().color() != look::navy) {
            fixed->setBackground(look::navy);
            fixed->setForeground(look::popcorn);
            fixed->setFont(look::font(8, true));
        }
    }
    const int last = gridAds_->rowCount() - 1;
    for (int c = 1; last >= 0 && c < gridAds_->columnCount(); ++c)
        if (QTableWidgetItem* item = gridAds_->item(last, c); item && !item->font().bold())
            item->setFont(look::font(8, true));
}

void frmMovies::attach(QtScreen& screen) {
    screen.addPainter(View::BuyMovies, [this] { paintBuyMovies(); });
    screen.addPainter(View::MyMovies, [this] { paintMyMovies(); });
    screen.addPainter(View::Showtimes, [this] { paintShowtimes(); });
    screen.addPainter(View::TicketPrices, [this] { paintTicketPrices(); });
    screen.addPainter(View::Ads, [this] {
        paintAds();
        paintShowtimes(); // showAds also writes each row's ads label
    });
}

// A theater in business: three more movies bought and booked on the free showtimes, a
// matinee, some ads, and a day run so every booked showtime shows its sales.
void frmMovies::addScreenshots(Screenshots& shots) {
    shots.add([this](Screenshots& shot) {
        game_.switchMode(2);
        MovieManager& mm = game_.movies;
        for (int i = 0; i < 3 && mm.buyMoviesCount() > 0; ++i)
            mm.buyMovie(1);
        const int owned = mm.myMoviesCount();
        const int booking[8] = {owned, owned - 1, owned - 2, 0, 0, 0, 0, owned};
        for (int s = 1; s <= 8; ++s) {
            if (mm.showtimeAt(s).getMyMovie() >= 1 || booking[s - 1] < 1)
                continue;
            mm.checkShowtime(s, true);
            mm.assignShowtimes(booking[s - 1]);
        }
        if (mm.showtimeAt(3).isMatinee() == false)
            mm.showtimeAt(3).toggleMatinee();
        mm.setShowtimeAds(5, 2);
        mm.setShowtimeAds(6, 3);
        mm.setShowtimeAds(8, 1);
        game_.clockTick();
        for (int tab = 0; tab < 4; ++tab) {
            SSTab1_->setCurrentIndex(tab);
            shot.save(this, QStringLiteral("frmMovies-%1.png").arg(tab));
        }
        SSTab1_->setCurrentIndex(0);
    });
}

} // namespace zorvane::screens
