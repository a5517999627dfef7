#include "frmEmployees.h"

#include "Screenshots.h"
#include "frame/ButtonLabel.h"
#include "frame/Labels.h"
#include "frame/Look.h"
#include "frame/Twips.h"
#include "ports/QtScreen.h"
#include "session/Game.h"
#include "staff/StaffTexts.h"
#include "staff/employeeManager.h"

#include <QAbstractTableModel>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>

#include <algorithm>
#include <set>

namespace zorvane::screens {

// The staff grid's rows as the last refresh made them; the view asks only for the rows it
// shows, so a staff of hundreds costs one pass of the texts and a screenful of painting.
class StaffGridModel : public QAbstractTableModel {
  public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size()) - 1;
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : 10;
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid())
            return {};
        const std::string& cell = rows_[static_cast<std::size_t>(index.row() + 1)]
                                       [static_cast<std::size_t>(index.column())];
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
            return QString::fromStdString(cell);
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignLeft | Qt::AlignVCenter);
        if (role == Qt::AccessibleTextRole)
            return QString::fromStdString(rows_[0][static_cast<std::size_t>(index.column())] +
                                          ": " + cell);
        return {};
    }
    QVariant headerData(int section, Qt::Orientation o, int role) const override {
        if (o != Qt::Horizontal || section < 0 || section >= 10 || rows_.empty())
            return {};
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
            return QString::fromStdString(rows_[0][static_cast<std::size_t>(section)]);
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignLeft | Qt::AlignVCenter);
        return {};
    }

    // Takes the new rows (row 0 the header). Rows are added or taken at the end, so a row
    // keeps its number whoever stands in it now. Only the cells whose text changed are
    // repainted: a day changes a few figures of a few people.
    void setRows(std::vector<GridRow> rows) {
        const int before = rowCount();
        const int after = static_cast<int>(rows.size()) - 1;
        std::vector<GridRow> old = std::move(rows_);
        if (after > before) {
            beginInsertRows({}, before, after - 1);
            rows_ = std::move(rows);
            endInsertRows();
        } else if (after < before) {
            beginRemoveRows({}, after, before - 1);
            rows_ = std::move(rows);
            endRemoveRows();
        } else {
            rows_ = std::move(rows);
        }
        if (old.empty() || old[0] != rows_[0])
            emit headerDataChanged(Qt::Horizontal, 0, 9);
        const int common = std::min(before, after);
        for (int r = 1; r <= common; ++r) {
            const GridRow& was = old[static_cast<std::size_t>(r)];
            const GridRow& now = rows_[static_cast<std::size_t>(r)];
            int first = -1, last = -1;
            for (int c = 0; c < 10; ++c)
                if (was[static_cast<std::size_t>(c)] != now[static_cast<std::size_t>(c)]) {
                    if (first < 0)
                        first = c;
                    last = c;
                }
            if (first >= 0)
                emit dataChanged(index(r - 1, first), index(r - 1, last));
        }
    }

  private:
    std::vector<GridRow> rows_;
};

namespace {

// A grid cell's text, drawn plainly: the style's own item painting lays every cell's text
// out anew and costs several times more, and the grid repaints each day.
class PlainCellDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool selected = option.state & QStyle::State_Selected;
        if (selected)
            painter->fillRect(option.rect, option.palette.color(QPalette::Highlight));
        else if (option.features & QStyleOptionViewItem::Alternate)
            painter->fillRect(option.rect, option.palette.color(QPalette::AlternateBase));
        painter->setPen(
            option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(option.rect.adjusted(3, 0, -2, 0), Qt::AlignLeft | Qt::AlignVCenter,
                          index.data(Qt::DisplayRole).toString());
    }
};

constexpr int screenHeight = 5700; // twips; the hire table's ten rows need a little more
constexpr std::uint32_t buttonColour = 0xC0FFC0;
const QColor lightRed(255, 192, 192);
const QColor white(255, 255, 255);

// Tab 0's columns: left and width, in twips.
constexpr std::array<int, 7> chartLeft{120, 2130, 4190, 5400, 6410, 7270, 7980};
constexpr std::array<int, 7> chartWidth{1950, 2000, 1150, 950, 800, 650, 1100};
constexpr int chartTop = 120, chartRowTop = 480, chartPitch = 330, chartRowHeight = 300;
const char* const chartHeaders[7] = {"Position", "Employee", "Pay Rate", "Seniority",
                                     "Exp.",     "Sick",     "Paid"};

// Tab 2's columns.
constexpr std::array<int, 6> hireLeft{100, 2360, 4620, 6030, 7440, 8550};
constexpr std::array<int, 6> hireWidth{2200, 2200, 1350, 1350, 1050, 700};
constexpr int hireHeaderTop = 420, hireRowTop = 780, hirePitch = 330;
const char* const hireHeaders[5] = {"Name", "Experience", "Reliability", "Ambition", "Training $"};

// The details panel's captions and their value labels.
const char* const detailHeaders[10] = {
    "Experience:",  "Reliability:", "Ambition:",   "Current Job:", "Days Employed:",
    "Days Worked:", "Days Sick:",   "Total Paid:", "Seniority:",   "Anger Level:"};
const char* const detailNames[10] = {"lblDetlExp",       "lblDetlRel",          "lblDetlAmb",
                                     "lblDetlJob",       "lblDetlDaysEmployed", "lblDetlDaysWorked",
                                     "lblDetlDaysSick",  "lblDetlTotalPaid",    "lblDetlSeniority",
                                     "lblDetlAngerLevel"};
const char* const layerNames[9] = {"imgPicBackhair",   "imgPicTorso",   "imgPicHead",
                                   "imgPicEyeSockets", "imgPicEyes",    "imgPicNose",
                                   "imgPicMouth",      "imgPicGlasses", "imgPicHair"};

QLabel* makeLabel(QWidget* parent, const QString& name, const QString& text, const QRect& at,
                  double size = 8, bool bold = false) {
    return placeLabel(parent, name, text, at, look::font(size, bold));
}

ButtonLabel* makeButton(QWidget* parent, const QString& name, const QString& caption,
                        const QRect& at) {
    return placeButton(parent, name, caption, at, fromBgr(buttonColour), look::ink);
}

} // namespace

frmEmployees::frmEmployees(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 1, QStringLiteral("frmEmployees"), QStringLiteral("Employees"), bgr,
                 parent) {
    resize(width(), px(screenHeight));
    QWidget* b = body();
    SSTab1_ = new QTabWidget(b);
    SSTab1_->setObjectName(QStringLiteral("SSTab1"));
    SSTab1_->setFont(look::font(8.5, true));
    SSTab1_->setGeometry(pxRect(90, 60, 9420, screenHeight - 330 - 120));
    SSTab1_->setDocumentMode(false);
    const char* tabs[3] = {"Positions", "Current Employees", "Hire new employees"};
    QWidget* pages[3] = {};
    for (int i = 0; i < 3; ++i) {
        pages[i] = new QWidget;
        pages[i]->setObjectName(QStringLiteral("tab_%1").arg(i));
        pages[i]->setFont(look::font(8.5));
        SSTab1_->addTab(pages[i], QString::fromLatin1(tabs[i]));
    }
    // A click on a tab: the click, the panel closed, the grid refilled.
    connect(SSTab1_->tabBar(), &QTabBar::tabBarClicked, this, [this](int) {
        routeClick(this);
        game_.employees.hideEmployeeDetails();
        game_.employees.refreshEmployeeGrid();
    });
    buildPositionsTab(pages[0]);
    buildStaffTab(pages[1]);
    buildHireTab(pages[2]);

    paintPositions();
    paintEmployeeGrid();
    paintHireTable();
    paintEmployeeDetails();
}

frmEmployees::~frmEmployees() = default;

// ------------------------------------------------------------------ tab 0: the chart

void frmEmployees::buildPositionsTab(QWidget* page) {
    auto* chart = new QFrame(page);
    chart->setObjectName(QStringLiteral("frameChart"));
    chart->setGeometry(pxRect(60, 60, 9100, 3230));
    chart->setFrameShape(QFrame::Box);
    chart->setStyleSheet(
        QStringLiteral("QFrame#frameChart { background: #F6E7C1; border: 1px solid #C9A227; }"));
    chart->lower();

    for (int c = 0; c < 7; ++c) {
        QLabel* h = makeLabel(
            page, QStringLiteral("lblChartHeader_%1").arg(c), QString::fromLatin1(chartHeaders[c]),
            pxRect(chartLeft[c], chartTop, chartWidth[c], chartRowHeight), 8, true);
        look::paint(h, look::navy, look::popcorn);
        h->setIndent(4);
    }
    for (int p = 1; p <= 7; ++p) {
        const int top = chartRowTop + (p - 1) * chartPitch;
        const auto at = [&](int c) {
            return pxRect(chartLeft[c], top, chartWidth[c], chartRowHeight);
        };
        const auto idx = static_cast<std::size_t>(p - 1);
        lblPosition_[idx] =
            makeLabel(page, QStringLiteral("lblPosition_%1").arg(p), {}, at(0), 8, true);
        lblEmpName_[idx] = makeLabel(page, QStringLiteral("lblEmpName_%1").arg(p), {}, at(1));
        auto* rate = new ButtonLabel(QStringLiteral("lblPayRate_%1").arg(p), {}, page,
                                     ButtonLabel::Style::Immediate);
        rate->setGeometry(at(2));
        rate->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        rate->setFont(look::font(8, true));
        rate->setToolTip(QStringLiteral("Click to set this position's wage"));
        rate->setStyleSheet(QStringLiteral("color: #2F8F83; text-decoration: underline;"));
        connect(rate, &ButtonLabel::clicked, this,
                [this, p] { game_.employees.getPosition(p).setWageInput(); });
        lblPayRate_[idx] = rate;
        lblSeniority_[idx] = makeLabel(page, QStringLiteral("lblSeniority_%1").arg(p), {}, at(3));
        lblExperience_[idx] = makeLabel(page, QStringLiteral("lblExperience_%1").arg(p), {}, at(4));
        lblSickDays_[idx] = makeLabel(page, QStringLiteral("lblSickDays_%1").arg(p), {}, at(5));
        lblPaid_[idx] = makeLabel(page, QStringLiteral("lblPaid_%1").arg(p), {}, at(6));
        QLabel* row[7] = {lblPosition_[idx],   lblEmpName_[idx],  rate,         lblSeniority_[idx],
                          lblExperience_[idx], lblSickDays_[idx], lblPaid_[idx]};
        for (int c = 0; c < 7; ++c) {
            row[c]->setIndent(4);
            if (c > 0)
                row[c]->setAccessibleName(QString::fromLatin1(chartHeaders[c]) +
                                          QStringLiteral(", position %1").arg(p));
        }
    }
    const int totalsTop = chartRowTop + 7 * chartPitch + 60;
    auto* rule = new QFrame(page);
    rule->setObjectName(QStringLiteral("lneTotals"));
    rule->setGeometry(pxRect(120, totalsTop - 45, 8960, 15));
    rule->setStyleSheet(QStringLiteral("background: #C9A227;"));
    makeLabel(page, QStringLiteral("lblTotals_0"), QStringLiteral("Totals"),
              pxRect(chartLeft[0], totalsTop, chartWidth[0], chartRowHeight), 8, true)
        ->setIndent(4);
    lblTotalPayRate_ =
        makeLabel(page, QStringLiteral("lblTotalPayRate"), {},
                  pxRect(chartLeft[2], totalsTop, chartWidth[2], chartRowHeight), 8, true);
    lblTotalSick_ =
        makeLabel(page, QStringLiteral("lblTotalSick"), {},
                  pxRect(chartLeft[5], totalsTop, chartWidth[5], chartRowHeight), 8, true);
    lblTotalPaid_ =
        makeLabel(page, QStringLiteral("lblTotalPaid"), {},
                  pxRect(chartLeft[6], totalsTop, chartWidth[6], chartRowHeight), 8, true);
    for (QLabel* l : {lblTotalPayRate_, lblTotalSick_, lblTotalPaid_})
        l->setIndent(4);
    lblTotalPayRate_->setAccessibleName(QStringLiteral("Total Pay Rate"));
    lblTotalSick_->setAccessibleName(QStringLiteral("Total Sick"));
    lblTotalPaid_->setAccessibleName(QStringLiteral("Total Paid"));

    const int wageTop = totalsTop + 480;
    makeLabel(page, QStringLiteral("Label5"), QStringLiteral("Minimum Wage:"),
              pxRect(120, wageTop, 1800, 300), 8.5, true);
    lblMinWage_ = makeLabel(page, QStringLiteral("lblMinWage"), {},
                            pxRect(1920, wageTop, 1500, 300), 8.5, true);
    lblMinWage_->setAccessibleName(QStringLiteral("Minimum Wage"));
    QLabel* hint = makeLabel(page, QStringLiteral("Label6"),
                             QStringLiteral("Click on pay rate in chart to set it's rate."),
                             pxRect(4090, wageTop, 5000, 300), 8);
    hint->setStyleSheet(QStringLiteral("color: #7A1620; font-style: italic;"));
}

void frmEmployees::paintPositions() {
    const PositionChart chart = positionChart(game_.employees);
    for (std::size_t i = 0; i < 7; ++i) {
        const PositionRow& r = chart.rows[i];
        putText(lblPosition_[i], r.position);
        putText(lblEmpName_[i], r.employee);
        putText(lblPayRate_[i], r.payRate);
        putText(lblSeniority_[i], r.seniority);
        putText(lblExperience_[i], r.experience);
        const QString tip = QString::fromStdString(r.experienceTip);
        if (lblExperience_[i]->toolTip() != tip)
            lblExperience_[i]->setToolTip(tip);
        putText(lblSickDays_[i], r.sickDays);
        putText(lblPaid_[i], r.paid);
    }
    putText(lblMinWage_, chart.minWage);
    putText(lblTotalPayRate_, chart.totalPayRate);
    putText(lblTotalSick_, chart.totalSick);
    putText(lblTotalPaid_, chart.totalPaid);
}

// ------------------------------------------------------------------ tab 1: the staff

void frmEmployees::buildStaffTab(QWidget* page) {
    gridModel_ = new StaffGridModel(this);
    grdEmps_ = new QTableView(page);
    grdEmps_->setObjectName(QStringLiteral("grdEmps"));
    grdEmps_->setAccessibleName(QStringLiteral("Current employees"));
    grdEmps_->setModel(gridModel_);
    grdEmps_->setItemDelegate(new PlainCellDelegate(grdEmps_));
    grdEmps_->setGeometry(pxRect(60, 50, 9180, 4340));
    grdEmps_->setSelectionBehavior(QAbstractItemView::SelectRows);
    grdEmps_->setSelectionMode(QAbstractItemView::SingleSelection);
    grdEmps_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdEmps_->setAlternatingRowColors(true);
    grdEmps_->setWordWrap(false);
    grdEmps_->verticalHeader()->hide();
    grdEmps_->verticalHeader()->setDefaultSectionSize(px(285));
    grdEmps_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grdEmps_->horizontalHeader()->setHighlightSections(false);
    grdEmps_->horizontalHeader()->setFixedHeight(px(330));
    grdEmps_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    grdEmps_->horizontalHeader()->setStretchLastSection(true);
    // Colours by palette, not style sheet: the grid repaints every day and a style sheet
    // makes each cell's painting several times dearer.
    {
        QPalette pal = grdEmps_->palette();
        pal.setColor(QPalette::Base, Qt::white);
        pal.setColor(QPalette::AlternateBase, look::cream);
        pal.setColor(QPalette::Highlight, look::teal);
        pal.setColor(QPalette::HighlightedText, Qt::white);
        pal.setColor(QPalette::Text, look::ink);
        grdEmps_->setPalette(pal);
        QPalette head = pal;
        head.setColor(QPalette::Button, look::navy);
        head.setColor(QPalette::ButtonText, look::popcorn);
        head.setColor(QPalette::Window, look::navy);
        head.setColor(QPalette::WindowText, look::popcorn);
        grdEmps_->horizontalHeader()->setPalette(head);
        grdEmps_->horizontalHeader()->setFont(look::font(8, true));
        grdEmps_->setGridStyle(Qt::SolidLine);
    }
    const auto& widths = employeeGridWidths();
    for (int c = 0; c < 10; ++c)
        grdEmps_->setColumnWidth(c, px(widths[static_cast<std::size_t>(c)]));
    grdEmps_->viewport()->installEventFilter(this);
    grdEmps_->installEventFilter(this);
    connect(grdEmps_->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int) { clickGrid(-1); });
    connect(grdEmps_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& now, const QModelIndex&) {
                if (!holdRow_ && now.isValid())
                    gridRow_ = now.row() + 1;
            });
    buildDetailsPanel(page);
}

void frmEmployees::buildDetailsPanel(QWidget* page) {
    frmEmpDetails_ = new QGroupBox(QStringLiteral("Employee Details"), page);
    frmEmpDetails_->setObjectName(QStringLiteral("frmEmpDetails"));
    frmEmpDetails_->setFont(look::font(8.5, true));
    frmEmpDetails_->setGeometry(pxRect(60, 360, 9180, 4080));
    // The title sits on the top border, so the panel covers the grid right below its header.
    frmEmpDetails_->setStyleSheet(
        QStringLiteral("QGroupBox#frmEmpDetails { background: #F6E7C1; border: 2px solid #C9A227; "
                       "border-radius: 4px;"
                       " margin-top: 0px; }"
                       "QGroupBox#frmEmpDetails::title { subcontrol-origin: border; "
                       "subcontrol-position: top left; left: 10px;"
                       " padding: 0 4px; color: #F2C14E; background: #1D2A44; }"));
    QWidget* f = frmEmpDetails_;

    // The portrait: nine pictures of one size stacked on one spot, the first at the back.
    auto* portrait = new QFrame(f);
    portrait->setObjectName(QStringLiteral("framePortrait"));
    portrait->setGeometry(12, 24, 124, 148);
    portrait->setStyleSheet(
        QStringLiteral("QFrame#framePortrait { background: #1D2A44; border: 2px solid #C9A227; }"));
    for (int i = 0; i < 9; ++i) {
        auto* layer = new QLabel(portrait);
        layer->setObjectName(QString::fromLatin1(layerNames[i]));
        layer->setGeometry(2, 2, 120, 144);
        layer->setAttribute(Qt::WA_TransparentForMouseEvents);
        layer->setProperty("picture", QString());
        faceLayers_[static_cast<std::size_t>(i)] = layer;
    }
    portrait->setAccessibleName(QStringLiteral("Face"));
    lblEmpNum_ = makeLabel(f, QStringLiteral("lblEmpNum"), {}, QRect(16, 28, 26, 18), 7.5, true);
    lblEmpNum_->setAlignment(Qt::AlignCenter);
    lblEmpNum_->setAccessibleName(QStringLiteral("Employee number"));
    lblEmpNum_->setToolTip(QStringLiteral("Employee number"));
    lblEmpNum_->setStyleSheet(
        QStringLiteral("background: #C9A227; color: #2B1D14; border-radius: 8px;"));
    lblEmpNum_->raise();

    lblDetlName_ = makeLabel(f, QStringLiteral("lblDetlName"), QStringLiteral("(employee name)"),
                             QRect(150, 22, 300, 24), 11, true);
    lblDetlName_->setStyleSheet(QStringLiteral("color: #7A1620;"));
    lblDetlName_->setAccessibleName(QStringLiteral("Name"));
    for (int i = 0; i < 10; ++i) {
        const int top = 52 + i * 20;
        QLabel* h =
            makeLabel(f, QStringLiteral("lblDetlHeader_%1").arg(i),
                      QString::fromLatin1(detailHeaders[i]), QRect(150, top, 106, 18), 8, true);
        h->setStyleSheet(QStringLiteral("color: #2B1D14;"));
        QLabel* v =
            makeLabel(f, QString::fromLatin1(detailNames[i]), {}, QRect(258, top, 200, 18), 8);
        v->setAccessibleName(QString::fromLatin1(detailHeaders[i]).chopped(1));
        detailValues_[static_cast<std::size_t>(i)] = v;
    }

    lstPosition_ = new QListWidget(f);
    lstPosition_->setObjectName(QStringLiteral("lstPosition"));
    lstPosition_->setAccessibleName(QStringLiteral("Position"));
    lstPosition_->setFont(look::font(8));
    lstPosition_->setGeometry(470, 24, 138, 146);
    lstPosition_->setStyleSheet(
        QStringLiteral("QListWidget { background: #FFFFFF; border: 1px solid #C9A227; }"
                       "QListWidget::item:selected { background: #2F8F83; color: #FFFFFF; }"));
    // A click on the list only picks; nothing moves until the assign button.
    connect(lstPosition_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        routeClick(this);
        game_.employees.selectPosition(lstPosition_->row(item));
    });
    // The arrow keys pick as well (no click).
    connect(lstPosition_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row != game_.employees.selectedPosition())
            game_.employees.selectPosition(row);
    });

    ButtonLabel* assign =
        makeButton(f, QStringLiteral("lbcAssignPosition"), QStringLiteral("Assign to position"),
                   QRect(470, 178, 138, 24));
    connect(assign, &ButtonLabel::clicked, this, [this] {
        const int n = lblEmpNum_->text().toInt();
        game_.employees.assignEmployee(n, 0);
        game_.employees.showEmployeeDetails(n);
    });
    ButtonLabel* fire = makeButton(f, QStringLiteral("lbcFireEmp"),
                                   QStringLiteral("Fire this employee"), QRect(470, 208, 138, 24));
    connect(fire, &ButtonLabel::clicked, this, [this] { fireShownEmployee(); });
    ButtonLabel* close = makeButton(f, QStringLiteral("lbcCloseDetails"),
                                    QStringLiteral("Close Details"), QRect(470, 238, 138, 24));
    connect(close, &ButtonLabel::clicked, this, [this] { game_.employees.hideEmployeeDetails(); });
    frmEmpDetails_->hide();
}

// The question names the panel's person; the firing goes by the grid's row.
void frmEmployees::fireShownEmployee() {
    const std::string question = fireQuestion(lblDetlName_->text().toStdString());
    if (game_.dialogs().ask(question, Buttons::YesNo) != Answer::Yes)
        return;
    game_.employees.fireEmployee(gridRow_);
    game_.employees.hideEmployeeDetails();
}

void frmEmployees::clickGrid(int row) {
    const int count = game_.employees.employeeCount();
    // The header row is fixed while there are people below it.
    if (row >= 1 && row <= count)
        gridRow_ = row;
    else if (count == 0)
        gridRow_ = 0;
    game_.employees.showEmployeeDetails(gridRow_);
}

void frmEmployees::paintEmployeeGrid() {
    const int keep = gridRow_;
    holdRow_ = true;
    const int before = gridModel_->rowCount();
    gridModel_->setRows(employeeGridRows(game_.employees));
    const int count = gridModel_->rowCount();
    // Lay the rows out now, so the grid is painted once in this pass and not again when the
    // view's own delayed layout comes round.
    if (count != before)
        grdEmps_->doItemsLayout();
    gridRow_ = keep > count ? count : keep;
    if (gridRow_ >= 1 && grdEmps_->currentIndex().row() != gridRow_ - 1)
        grdEmps_->setCurrentIndex(gridModel_->index(gridRow_ - 1, 0));
    holdRow_ = false;
}

void frmEmployees::setLayer(int layer, const std::string& file) {
    QLabel* l = faceLayers_[static_cast<std::size_t>(layer)];
    const QString path = QString::fromStdString(file);
    if (path.isEmpty()) { // no picture on this layer: cleared
        l->clear();
        l->setProperty("picture", QString());
        return;
    }
    auto it = faceCache_.find(path);
    if (it == faceCache_.end()) {
        QPixmap pm(path);
        if (pm.isNull())
            return; // a picture that cannot be read leaves the layer as it was
        pm.setDevicePixelRatio(2.0);
        it = faceCache_.insert(path, pm);
    }
    l->setPixmap(*it);
    l->setProperty("picture", path);
}

void frmEmployees::paintEmployeeDetails() {
    const EmployeeDetails d = employeeDetails(game_.employees);
    frmEmpDetails_->setVisible(d.visible);
    if (!d.visible)
        return;
    frmEmpDetails_->raise();
    putText(lblEmpNum_, d.number);
    putText(lblDetlName_, d.name);
    const std::string* values[10] = {&d.exp,          &d.rel,        &d.amb,      &d.job,
                                     &d.daysEmployed, &d.daysWorked, &d.daysSick, &d.totalPaid,
                                     &d.seniority,    &d.angerLevel};
    for (std::size_t i = 0; i < 10; ++i)
        putText(detailValues_[i], *values[i]);
    // The list is the game's: "0-None" and the seven posts, made when the posts were set up.
    const std::vector<std::string>& entries = game_.employees.positionList();
    if (lstPosition_->count() != static_cast<int>(entries.size())) {
        lstPosition_->clear();
        for (const std::string& entry : entries)
            lstPosition_->addItem(QString::fromStdString(entry));
    }
    if (lstPosition_->currentRow() != d.positionEntry)
        lstPosition_->setCurrentRow(d.positionEntry);
    for (int i = 0; i < FaceLayers::count; ++i)
        setLayer(i, d.face.files[static_cast<std::size_t>(i)]);
}

// ------------------------------------------------------------------ tab 2: the applicants

void frmEmployees::buildHireTab(QWidget* page) {
    QLabel* note =
        makeLabel(page, QStringLiteral("Label1"),
                  QStringLiteral("Red indicates a position that still needs to be filled."),
                  pxRect(100, 90, 9000, 270), 8.5, true);
    note->setStyleSheet(QStringLiteral("color: #7A1620;"));
    auto* table = new QFrame(page);
    table->setObjectName(QStringLiteral("frameHire"));
    table->setGeometry(
        pxRect(60, hireHeaderTop - 60, 9240, hireRowTop + 10 * hirePitch - hireHeaderTop + 90));
    table->setStyleSheet(
        QStringLiteral("QFrame#frameHire { background: #F6E7C1; border: 1px solid #C9A227; }"));
    table->lower();
    for (int c = 0; c < 5; ++c) {
        QLabel* h = makeLabel(page, QStringLiteral("lblHireHeader_%1").arg(c),
                              QString::fromLatin1(hireHeaders[c]),
                              pxRect(hireLeft[static_cast<std::size_t>(c)], hireHeaderTop,
                                     hireWidth[static_cast<std::size_t>(c)], 300),
                              8, true);
        look::paint(h, look::navy, look::popcorn);
        h->setIndent(4);
    }
    for (int r = 1; r <= 10; ++r) {
        const int top = hireRowTop + (r - 1) * hirePitch;
        const auto at = [&](int c) {
            return pxRect(hireLeft[static_cast<std::size_t>(c)], top,
                          hireWidth[static_cast<std::size_t>(c)], 300);
        };
        const auto i = static_cast<std::size_t>(r - 1);
        QLabel** cells[5] = {&lblHireName_[i], &lblHireExp_[i], &lblHireRel_[i], &lblHireAmb_[i],
                             &lblHireTrain_[i]};
        const char* names[5] = {"lblHireName", "lblHireExp", "lblHireRel", "lblHireAmb",
                                "lblHireTrain"};
        for (int c = 0; c < 5; ++c) {
            QLabel* l =
                makeLabel(page, QStringLiteral("%1_%2").arg(QString::fromLatin1(names[c])).arg(r),
                          QStringLiteral("None"), at(c), 8, c == 0);
            l->setIndent(4);
            l->setAccessibleName(QString::fromLatin1(hireHeaders[c]) +
                                 QStringLiteral(", row %1").arg(r));
            *cells[c] = l;
        }
        look::paint(lblHireExp_[i], white, look::ink);
        ButtonLabel* hire =
            makeButton(page, QStringLiteral("lbcHireEmp_%1").arg(r), QStringLiteral("Hire"), at(5));
        hire->setAccessibleName(QStringLiteral("Hire, row %1").arg(r));
        connect(hire, &ButtonLabel::clicked, this, [this, r] { game_.employees.hireEmployee(r); });
        lbcHireEmp_[i] = hire;
    }
}

void frmEmployees::paintHireTable() {
    const std::array<HireRow, 10> rows = hireTableRows(game_.employees);
    for (std::size_t i = 0; i < 10; ++i) {
        const HireRow& r = rows[i];
        putText(lblHireName_[i], r.name);
        putText(lblHireExp_[i], r.exp);
        putText(lblHireRel_[i], r.rel);
        putText(lblHireAmb_[i], r.amb);
        putText(lblHireTrain_[i], r.train);
        look::paint(lblHireExp_[i], r.openPost ? lightRed : white, look::ink);
        lbcHireEmp_[i]->setVisible(r.button);
    }
}

// ------------------------------------------------------------------ the frame

bool frmEmployees::eventFilter(QObject* watched, QEvent* event) {
    if (watched == grdEmps_->viewport() && event->type() == QEvent::MouseButtonRelease) {
        auto* e = static_cast<QMouseEvent*>(event);
        if (e->button() == Qt::LeftButton) {
            const QModelIndex at = grdEmps_->indexAt(e->position().toPoint());
            clickGrid(at.isValid() ? at.row() + 1 : -1);
        }
        return false;
    }
    if (watched == grdEmps_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
            clickGrid(grdEmps_->currentIndex().isValid() ? grdEmps_->currentIndex().row() + 1 : -1);
            return true;
        }
        return false;
    }
    return ChildFrame::eventFilter(watched, event);
}

void frmEmployees::attach(QtScreen& screen) {
    screen_ = &screen;
    screen.addPainter(View::Positions, [this] { paintPositions(); });
    screen.addPainter(View::EmployeeGrid, [this] { paintEmployeeGrid(); });
    screen.addPainter(View::HireTable, [this] { paintHireTable(); });
    screen.addPainter(View::EmployeeDetails, [this] { paintEmployeeDetails(); });
}

// Seven people hired from the day's applicants, each straight into the post that fits if it
// is open; posts that no applicant fitted get someone by the assign operation.
void frmEmployees::hireSeven() {
    employeeManager& staff = game_.employees;
    game_.finances.earn(20000, "");
    std::set<std::string> onStaff;
    for (int i = 1; i <= staff.employeeCount(); ++i)
        onStaff.insert(staff.getEmployee(i).getMyName());
    for (int draw = 0; draw < 60 && staff.employeeCount() < 7; ++draw) {
        staff.newCandidates();
        for (int r = 1; r <= staff.candidateCount() && staff.employeeCount() < 7; ++r) {
            const employee& c = staff.getCandidate(r);
            const bool fits = staff.getPosition(c.getMyExp()).getMyEmployee() < 1;
            if (onStaff.count(c.getMyName()) || (!fits && draw < 40))
                continue;
            onStaff.insert(c.getMyName());
            staff.hireEmployee(r);
            --r; // the rows below closed up
        }
    }
    for (const int post : staff.vacantPositions())
        for (int i = 1; i <= staff.employeeCount(); ++i)
            if (staff.getEmployee(i).getMyJob() == 0) {
                staff.assignEmployee(i, post);
                break;
            }
}

// The chart, the grid with a person's details open, and the applicants.
void frmEmployees::addScreenshots(Screenshots& shots) {
    shots.add([this](Screenshots& s) {
        QtScreen& screen = *screen_;
        game_.switchMode(1);
        hireSeven();
        for (int d = 0; d < 3; ++d)
            game_.clockTick();
        SSTab1_->setCurrentIndex(0);
        screen.flush();
        s.save(this, QStringLiteral("frmEmployees-0.png"));
        SSTab1_->setCurrentIndex(1);
        game_.employees.refreshEmployeeGrid();
        screen.flush();
        clickGrid(3);
        screen.flush();
        s.save(this, QStringLiteral("frmEmployees-1.png"));
        game_.employees.hideEmployeeDetails();
        SSTab1_->setCurrentIndex(2);
        screen.flush();
        s.save(this, QStringLiteral("frmEmployees-2.png"));
        SSTab1_->setCurrentIndex(0);
        screen.flush();
    });
}

} // namespace zorvane::screens
