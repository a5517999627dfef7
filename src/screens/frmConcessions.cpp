#include "frmConcessions.h"

#include "Screenshots.h"
#include "concessions/ConcessionTexts.h"
#include "core/Text.h"
#include "frame/ButtonLabel.h"
#include "frame/Look.h"
#include "frame/Twips.h"
#include "ports/QtScreen.h"
#include "session/Game.h"

#include <QComboBox>
#include <QEvent>
#include <QFrame>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

namespace zorvane::screens {

namespace {

// Pixels on a tab's page. The screen is a little taller than the frame's default, so five
// rows of full-size pictures and the totals fit on the "Prices" tab.
constexpr int screenHeight = 5850; // twips
constexpr int headerTop = 4, headerHeight = 20;
constexpr int cellHeight = 24;

// "Prices": a row per item, a picture at its drawn size.
constexpr int priceTop = 26, pricePitch = 52, pictureSize = 48;
struct Column {
    int left, width;
};
constexpr Column pricePicture{14, pictureSize};
constexpr std::array<Column, 5> priceColumns{
    {{74, 150}, {236, 84}, {332, 88}, {430, 80}, {520, 90}}};

// "Stock": a row per item with a small picture and the item's name.
constexpr int stockTop = 28, stockPitch = 44, stockPicture = 36;
constexpr Column stockName{56, 84};
constexpr std::array<Column, 5> stockColumns{
    {{142, 70}, {214, 104}, {320, 112}, {434, 92}, {528, 84}}};

constexpr int stripLeft = 6, stripWidth = 608;

QLabel* makeLabel(QWidget* parent, const QString& name, Qt::Alignment align, bool bold = false) {
    auto* l = new QLabel(parent);
    l->setObjectName(name);
    l->setAlignment(align | Qt::AlignVCenter);
    l->setFont(look::font(8.5, bold));
    return l;
}

QLabel* columnHeader(QWidget* page, const char* caption, const Column& c) {
    QLabel* l = makeLabel(page, QString(), Qt::AlignHCenter, true);
    l->setText(QString::fromLatin1(caption));
    l->setGeometry(c.left, headerTop, c.width, headerHeight);
    look::paint(l, look::cream, look::navy);
    l->setAutoFillBackground(false);
    return l;
}

// The cream strip behind an item's row, with a brass edge: the stand's menu board.
void strip(QWidget* page, int top, int height) {
    auto* f = new QFrame(page);
    f->setObjectName(QStringLiteral("shpRow"));
    f->setStyleSheet(
        QStringLiteral("QFrame#shpRow { background: #F6E7C1; border: 1px solid #C9A227;"
                       " border-radius: 6px; }"));
    f->setGeometry(stripLeft, top, stripWidth, height);
    f->lower();
}

// A brass rule above a totals row.
void rule(QWidget* page, int top) {
    auto* f = new QFrame(page);
    f->setObjectName(QStringLiteral("lneTotals"));
    f->setStyleSheet(QStringLiteral("QFrame#lneTotals { background: #C9A227; }"));
    f->setGeometry(stripLeft, top, stripWidth, 2);
}

QLineEdit* makeBox(QWidget* parent, const QString& name, const Column& c, int top) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setAlignment(Qt::AlignCenter);
    box->setFont(look::font(8.5));
    QPalette p = box->palette();
    p.setColor(QPalette::Base, Qt::white);
    p.setColor(QPalette::Text, look::ink);
    box->setPalette(p);
    box->setGeometry(c.left + 6, top, c.width - 12, cellHeight);
    return box;
}

// What a text box shows, unless the player is typing into it: then the days that pass leave
// it alone until Enter or leaving the box has handed the text to the stand.
void showInBox(QLineEdit* box, const std::string& text) {
    if (box->hasFocus() && box->isModified())
        return;
    const QString t = QString::fromStdString(text);
    if (box->text() != t)
        box->setText(t);
}

void showIn(QLabel* label, const std::string& text) {
    label->setText(QString::fromStdString(text));
}

// The item's picture from its file, drawn at twice the size of the 48-pixel cell; a missing
// or unreadable file leaves the cell empty.
QPixmap itemPicture(const std::string& path, int size) {
    const QImage image = QImageReader(QString::fromStdString(path)).read();
    if (image.isNull())
        return {};
    QPixmap p = QPixmap::fromImage(image);
    p.setDevicePixelRatio(static_cast<double>(image.width()) / size);
    return p;
}

} // namespace

frmConcessions::frmConcessions(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 4, QStringLiteral("frmConcessions"), QString::fromLatin1(concessionsHeader),
                 bgr, parent) {
    resize(width(), px(screenHeight));
    SSTab1_ = new QTabWidget(body());
    SSTab1_->setObjectName(QStringLiteral("SSTab1"));
    SSTab1_->setFont(look::font(9, true));
    SSTab1_->setDocumentMode(false);
    SSTab1_->addTab(buildPricesTab(), QString::fromLatin1(concessionTabs[0]));
    SSTab1_->addTab(buildStockTab(), QString::fromLatin1(concessionTabs[1]));
    SSTab1_->setGeometry(8, 6, width() - 16, px(screenHeight) - px(330) - 14);
    connect(SSTab1_, &QTabWidget::tabBarClicked, this, [this] { routeClick(this); });
    paintListing();
    paintTables();
    paintTotals();
}

QWidget* frmConcessions::buildPricesTab() {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("tabPrices"));
    page->setAutoFillBackground(true); // the screen's own colour inside the tab
    for (std::size_t c = 0; c < priceColumns.size(); ++c)
        columnHeader(page, concessionPriceColumns[c], priceColumns[c]);
    ConcessionManager& stand = game_.concessions;
    for (int i = 0; i < itemCount; ++i) {
        Row& r = rows_[static_cast<std::size_t>(i)];
        const int top = priceTop + i * pricePitch;
        const int cell = top + (pictureSize - cellHeight) / 2;
        strip(page, top - 1, pictureSize + 2);
        r.imgConcession =
            makeLabel(page, QStringLiteral("imgConcession_%1").arg(i), Qt::AlignCenter);
        r.imgConcession->setGeometry(pricePicture.left, top, pricePicture.width, pictureSize);

        r.cmbQuality = new QComboBox(page);
        r.cmbQuality->setObjectName(QStringLiteral("cmbQuality_%1").arg(i));
        r.cmbQuality->setFont(look::font(8.5));
        r.cmbQuality->setGeometry(priceColumns[0].left + 4, cell, priceColumns[0].width - 8,
                                  cellHeight);
        connect(r.cmbQuality, &QComboBox::activated, this, [this, &stand, i](int position) {
            routeClick(this);
            stand.setItemQuality(i, position);
        });

        r.txtPrice = makeBox(page, QStringLiteral("txtPrice_%1").arg(i), priceColumns[1], cell);
        r.txtPrice->installEventFilter(this);
        connect(r.txtPrice, &QLineEdit::returnPressed, this, [this, i] { applyPrice(i); });

        QLabel** values[3] = {&r.lblMyCost, &r.lblSold, &r.lblProfit};
        const char* names[3] = {"lblMyCost_%1", "lblSold_%1", "lblProfit_%1"};
        for (std::size_t v = 0; v < 3; ++v) {
            *values[v] = makeLabel(page, QString::fromLatin1(names[v]).arg(i), Qt::AlignHCenter);
            (*values[v])
                ->setGeometry(priceColumns[v + 2].left, cell, priceColumns[v + 2].width,
                              cellHeight);
        }
    }
    const int totalsTop = priceTop + itemCount * pricePitch + 4;
    rule(page, totalsTop - 4);
    QLabel* caption = makeLabel(page, QStringLiteral("lblTotals"), Qt::AlignLeft, true);
    caption->setText(QString::fromLatin1(concessionPriceTotals));
    caption->setGeometry(pricePicture.left + 4, totalsTop, 120, cellHeight);
    QLabel** totals[3] = {&lblTotalMyCost_, &lblTotalSold_, &lblTotalProfit_};
    const char* names[3] = {"lblTotalMyCost", "lblTotalSold", "lblTotalProfit"};
    for (std::size_t v = 0; v < 3; ++v) {
        *totals[v] = makeLabel(page, QString::fromLatin1(names[v]), Qt::AlignHCenter, true);
        (*totals[v])
            ->setGeometry(priceColumns[v + 2].left, totalsTop, priceColumns[v + 2].width,
                          cellHeight);
        (*totals[v])
            ->setAccessibleName(QStringLiteral("%1, %2").arg(
                QString::fromLatin1(concessionPriceColumns[v + 2]), caption->text()));
    }
    return page;
}

QWidget* frmConcessions::buildStockTab() {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("tabStock"));
    page->setAutoFillBackground(true); // the screen's own colour inside the tab
    for (std::size_t c = 0; c < stockColumns.size(); ++c)
        columnHeader(page, concessionStockColumns[c], stockColumns[c]);
    for (int i = 0; i < itemCount; ++i) {
        Row& r = rows_[static_cast<std::size_t>(i)];
        const int top = stockTop + i * stockPitch;
        const int cell = top + (stockPicture - cellHeight) / 2;
        strip(page, top - 2, stockPicture + 4);
        r.imgStock = makeLabel(page, QStringLiteral("imgStock_%1").arg(i), Qt::AlignCenter);
        r.imgStock->setGeometry(pricePicture.left + 2, top, stockPicture, stockPicture);
        r.lblStockItem =
            makeLabel(page, QStringLiteral("lblStockItem_%1").arg(i), Qt::AlignLeft, true);
        r.lblStockItem->setGeometry(stockName.left, cell, stockName.width, cellHeight);

        r.lblInStock = makeLabel(page, QStringLiteral("lblInStock_%1").arg(i), Qt::AlignHCenter);
        r.lblInStock->setGeometry(stockColumns[0].left, cell, stockColumns[0].width, cellHeight);
        r.txtBuyPerMonth =
            makeBox(page, QStringLiteral("txtBuyPerMonth_%1").arg(i), stockColumns[1], cell);
        r.txtBuyPerMonth->installEventFilter(this);
        connect(r.txtBuyPerMonth, &QLineEdit::returnPressed, this, [this, i] { applyOrder(i); });
        QLabel** values[3] = {&r.lblLastMonthSales, &r.lblCostPerItem, &r.lblTotalCost};
        const char* names[3] = {"lblLastMonthSales_%1", "lblCostPerItem_%1", "lblTotalCost_%1"};
        for (std::size_t v = 0; v < 3; ++v) {
            *values[v] = makeLabel(page, QString::fromLatin1(names[v]).arg(i), Qt::AlignHCenter);
            (*values[v])
                ->setGeometry(stockColumns[v + 2].left, cell, stockColumns[v + 2].width,
                              cellHeight);
        }
    }
    const int totalTop = stockTop + itemCount * stockPitch + 4;
    rule(page, totalTop - 4);
    QLabel* caption = makeLabel(page, QStringLiteral("lblTotal"), Qt::AlignLeft, true);
    caption->setText(QString::fromLatin1(concessionStockTotal));
    caption->setGeometry(pricePicture.left + 4, totalTop, 120, cellHeight);
    lblTotalTotalCost_ =
        makeLabel(page, QStringLiteral("lblTotalTotalCost"), Qt::AlignHCenter, true);
    lblTotalTotalCost_->setGeometry(stockColumns[4].left, totalTop, stockColumns[4].width,
                                    cellHeight);
    lblTotalTotalCost_->setAccessibleName(QStringLiteral("%1, %2").arg(
        QString::fromLatin1(concessionStockColumns[4]).trimmed(), caption->text()));

    QLabel* income = makeLabel(page, QStringLiteral("lblIncomeCaption"), Qt::AlignRight, true);
    income->setText(QString::fromLatin1(concessionIncomeCaption));
    const Column& last = stockColumns[4];
    income->setGeometry(stockColumns[2].left, totalTop + 30, last.left - stockColumns[2].left - 6,
                        cellHeight);
    lblTotalIncomeLastMonth_ =
        makeLabel(page, QStringLiteral("lblTotalIncomeLastMonth"), Qt::AlignHCenter, true);
    lblTotalIncomeLastMonth_->setGeometry(last.left, totalTop + 30, last.width, cellHeight);
    lblTotalIncomeLastMonth_->setAccessibleName(income->text().chopped(1)); // without its colon
    look::paint(lblTotalIncomeLastMonth_, look::cream, look::ink);
    lblTotalIncomeLastMonth_->setAutoFillBackground(true);
    return page;
}

void frmConcessions::paintListing() {
    const ConcessionManager& stand = game_.concessions;
    for (int i = 0; i < itemCount; ++i) {
        Row& r = rows_[static_cast<std::size_t>(i)];
        const ConcessionListing l = concessionListing(stand.item(i), game_.folder());
        if (l.picture != r.picture) {
            r.picture = l.picture;
            r.imgConcession->setPixmap(itemPicture(l.picture, pictureSize));
            r.imgStock->setPixmap(itemPicture(l.picture, stockPicture));
        }
        const QString name = QString::fromStdString(l.tip);
        if (r.lblStockItem->text() != name) {
            r.lblStockItem->setText(name);
            r.imgConcession->setToolTip(name);
            r.imgConcession->setAccessibleName(name);
            r.imgStock->setAccessibleName(name);
            const auto says = [&name](const char* column) {
                return QStringLiteral("%1, %2").arg(QString::fromLatin1(column).trimmed(), name);
            };
            r.cmbQuality->setAccessibleName(says(concessionPriceColumns[0]));
            r.txtPrice->setAccessibleName(says(concessionPriceColumns[1]));
            r.lblMyCost->setAccessibleName(says(concessionPriceColumns[2]));
            r.lblSold->setAccessibleName(says(concessionPriceColumns[3]));
            r.lblProfit->setAccessibleName(says(concessionPriceColumns[4]));
            r.lblInStock->setAccessibleName(says(concessionStockColumns[0]));
            r.txtBuyPerMonth->setAccessibleName(says(concessionStockColumns[1]));
            r.lblLastMonthSales->setAccessibleName(says(concessionStockColumns[2]));
            r.lblCostPerItem->setAccessibleName(says(concessionStockColumns[3]));
            r.lblTotalCost->setAccessibleName(says(concessionStockColumns[4]));
        }
        if (l.qualityList != r.qualityList) {
            r.qualityList = l.qualityList;
            r.cmbQuality->clear();
            for (const std::string& q : l.qualityList)
                r.cmbQuality->addItem(QString::fromStdString(q));
        }
        // A saved game's quality beyond the list leaves the list with no choice shown.
        const int position =
            l.qualityIndex >= 0 && l.qualityIndex < r.cmbQuality->count() ? l.qualityIndex : -1;
        if (r.cmbQuality->currentIndex() != position)
            r.cmbQuality->setCurrentIndex(position);
        showInBox(r.txtPrice, l.price);
        showIn(r.lblMyCost, l.yourCost);
        showIn(r.lblSold, l.soldToday);
        showIn(r.lblProfit, l.profit);
    }
}

void frmConcessions::paintTables() {
    const ConcessionManager& stand = game_.concessions;
    for (int i = 0; i < itemCount; ++i) {
        Row& r = rows_[static_cast<std::size_t>(i)];
        const ConcessionStockRow s = concessionStockRow(stand.item(i));
        showIn(r.lblInStock, s.inStock);
        showInBox(r.txtBuyPerMonth, s.buyPerMonth);
        showIn(r.lblLastMonthSales, s.lastMonthSales);
        showIn(r.lblCostPerItem, s.costPerItem);
        showIn(r.lblTotalCost, s.totalCost);
    }
}

void frmConcessions::paintTotals() {
    const ConcessionTotals t = concessionTotals(game_.concessions);
    showIn(lblTotalMyCost_, t.totalMyCost);
    showIn(lblTotalSold_, t.totalSold);
    showIn(lblTotalProfit_, t.totalProfit);
    showIn(lblTotalTotalCost_, t.totalTotalCost);
    showIn(lblTotalIncomeLastMonth_, t.incomeLastMonth);
}

// Digits and points only: "$1,250" is 1250 and a minus sign is dropped. The stand refuses
// 0 and shows the old price again.
void frmConcessions::applyPrice(int item) {
    QLineEdit* box = rows_[static_cast<std::size_t>(item)].txtPrice;
    box->setModified(false);
    game_.concessions.setItemPrice(item, digitsValue(box->text().toStdString()));
}

void frmConcessions::applyOrder(int item) {
    QLineEdit* box = rows_[static_cast<std::size_t>(item)].txtBuyPerMonth;
    box->setModified(false);
    game_.concessions.setItemBuyQuant(item, concessionOrderOf(box->text().toStdString()));
}

int frmConcessions::boxItem(QObject* box) const {
    for (int i = 0; i < itemCount; ++i) {
        const Row& r = rows_[static_cast<std::size_t>(i)];
        if (box == r.txtPrice || box == r.txtBuyPerMonth)
            return i;
    }
    return -1;
}

bool frmConcessions::eventFilter(QObject* watched, QEvent* event) {
    const int item = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut
                         ? boxItem(watched)
                         : -1;
    if (item < 0)
        return ChildFrame::eventFilter(watched, event);
    Row& r = rows_[static_cast<std::size_t>(item)];
    if (event->type() == QEvent::FocusOut) {
        if (watched == r.txtPrice)
            applyPrice(item);
        else
            applyOrder(item);
    } else if (watched == r.txtBuyPerMonth) {
        // After the click that brought the focus has placed the cursor.
        QMetaObject::invokeMethod(r.txtBuyPerMonth, &QLineEdit::selectAll, Qt::QueuedConnection);
    }
    return false;
}

void frmConcessions::attach(QtScreen& screen) {
    screen.addPainter(View::ConcessionListing, [this] { paintListing(); });
    screen.addPainter(View::ConcessionTables, [this] { paintTables(); });
    screen.addPainter(View::ConcessionTotals, [this] { paintTotals(); });
}

// The stand after a month in business and a busy evening: "Prices", then "Stock".
void frmConcessions::addScreenshots(Screenshots& shots) {
    shots.add([this](Screenshots& s) {
        game_.switchMode(4);
        ConcessionManager& stand = game_.concessions;
        stand.setItemQuality(0, 2);
        stand.setItemPrice(1, 2.75);
        stand.setItemBuyQuant(3, 300);
        for (int show = 0; show < 60; ++show)
            stand.doConcessionBusiness(40 + 15 * (show % 6));
        stand.concessionsNextMonth();
        stand.concessionsNextDay();
        for (const int crowd : {55, 80, 120})
            stand.doConcessionBusiness(crowd);
        for (int tab = 0; tab < 2; ++tab) {
            SSTab1_->setCurrentIndex(tab);
            s.save(this, QStringLiteral("frmConcessions-%1.png").arg(tab));
        }
        SSTab1_->setCurrentIndex(0);
    });
}

} // namespace zorvane::screens
