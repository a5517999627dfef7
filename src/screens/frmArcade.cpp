#include "frmArcade.h"

#include "frmArcadePictures.h"

#include "Screenshots.h"
#include "arcade/ArcadeTexts.h"
#include "frame/ButtonLabel.h"
#include "frame/Labels.h"
#include "frame/Look.h"
#include "frame/Picture.h"
#include "frame/Twips.h"
#include "ports/QtScreen.h"
#include "session/Game.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>

#include <algorithm>
#include <cmath>
#include <memory>

namespace zorvane::screens {

namespace {

// The room picture and the details panel over it, in pixels.
constexpr int roomWidth = static_cast<int>(ArcadeRoom::roomWidth) / twipsPerPixel;
constexpr int roomHeight = static_cast<int>(ArcadeRoom::roomHeight) / twipsPerPixel;
constexpr int panelWidth = 262, panelHeight = 316, panelMargin = 4;
constexpr int sliderLeft = 8, sliderTop = 146, sliderWidth = 246, sliderHeight = 18;
// A cabinet dragged past the room's edge keeps this much of itself in the room, so it can
// always be taken hold of and dragged back.
constexpr int keepInRoom = 14;

int toPx(float twipsValue) {
    return static_cast<int>(std::floor(twipsValue / twipsPerPixel));
}

QColor fromRgb(std::uint32_t rgb) {
    return QColor(static_cast<int>((rgb >> 16) & 0xFF), static_cast<int>((rgb >> 8) & 0xFF),
                  static_cast<int>(rgb & 0xFF));
}

QLabel* makeLabel(QWidget* parent, const QString& name, const QString& text, const QRect& r,
                  const QFont& font) {
    return placeLabel(parent, name, text, r, font);
}

// Sell and Close answer every mouse button: any press sinks them with the click, any
// release acts, wherever the mouse is let go (Repair keeps the left-only rule).
class AnyButtonLabel : public ButtonLabel {
  public:
    using ButtonLabel::ButtonLabel;

  protected:
    void mousePressEvent(QMouseEvent* e) override { ButtonLabel::mousePressEvent(asLeft(e).get()); }
    void mouseReleaseEvent(QMouseEvent* e) override {
        ButtonLabel::mouseReleaseEvent(asLeft(e).get());
    }

  private:
    static std::unique_ptr<QMouseEvent> asLeft(QMouseEvent* e) {
        return std::make_unique<QMouseEvent>(e->type(), e->position(), e->scenePosition(),
                                             e->globalPosition(), Qt::LeftButton, e->buttons(),
                                             e->modifiers());
    }
};

} // namespace

frmArcade::frmArcade(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 3, QStringLiteral("frmArcade"), QString::fromLatin1(arcadeHeader), bgr,
                 parent) {
    build();
}

void frmArcade::click() {
    routeClick(this);
}

// --- building the controls ---

void frmArcade::build() {
    SSTab1_ = new QTabWidget(body());
    SSTab1_->setObjectName(QStringLiteral("SSTab1"));
    SSTab1_->setDocumentMode(true);
    SSTab1_->setFont(look::font(8.5, true));
    SSTab1_->setStyleSheet(QStringLiteral(
        "QTabBar::tab { background: #1D2A44; color: #F6E7C1; padding: 4px 16px; margin: 3px 2px 0 "
        "4px;"
        " border: 1px solid #C9A227; border-bottom: 0px; border-top-left-radius: 5px;"
        " border-top-right-radius: 5px; }"
        "QTabBar::tab:selected { background: #B3262E; color: #F2C14E; }"
        "QTabBar::tab:!selected:hover { background: #2B3B5E; }"));
    connect(SSTab1_->tabBar(), &QTabBar::tabBarClicked, this, [this] { click(); });

    chkRepair_ = new QCheckBox(QString::fromLatin1(arcadeRepairCaption));
    chkRepair_->setObjectName(QStringLiteral("chkRepair"));
    chkRepair_->setToolTip(QString::fromLatin1(arcadeRepairTip));
    chkRepair_->setFont(look::font(8.5, true));
    chkRepair_->setStyleSheet(
        QStringLiteral("QCheckBox { background: #F6E7C1; color: #2B1D14; border: 1px solid #C9A227;"
                       " border-radius: 5px; padding: 2px 8px; margin: 3px 6px 2px 0; }"));
    connect(chkRepair_, &QCheckBox::clicked, this, [this](bool on) {
        click();
        game_.arcades.setAutoRepair(on);
    });
    SSTab1_->setCornerWidget(chkRepair_, Qt::TopRightCorner);

    // Tab 0: the room, with the details panel standing over it.
    auto* roomTab = new QWidget;
    roomTab->setObjectName(QStringLiteral("tabMyArcade"));
    picRoom_ = new RoomPicture(game_, roomTab);
    picRoom_->setGeometry(0, 0, roomWidth, roomHeight);
    buildDetails(roomTab);
    SSTab1_->addTab(roomTab, QString::fromLatin1(arcadeTabs[0]));

    // Tab 1: the market.
    auto* buyTab = new QWidget;
    buyTab->setObjectName(QStringLiteral("tabBuyNewGames"));
    look::paint(buyTab, look::cream, look::ink);
    grdBuyGames_ = new QTableWidget(buyTab);
    grdBuyGames_->setObjectName(QStringLiteral("grdBuyGames"));
    grdBuyGames_->setAccessibleName(QStringLiteral("Games to buy"));
    grdBuyGames_->setGeometry(8, 8, 448, roomHeight - 16);
    grdBuyGames_->setColumnCount(3);
    grdBuyGames_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdBuyGames_->setSelectionBehavior(QAbstractItemView::SelectRows);
    grdBuyGames_->setSelectionMode(QAbstractItemView::SingleSelection);
    grdBuyGames_->setAlternatingRowColors(true);
    grdBuyGames_->verticalHeader()->hide();
    grdBuyGames_->verticalHeader()->setDefaultSectionSize(20);
    grdBuyGames_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    grdBuyGames_->horizontalHeader()->setFont(look::font(7.5));
    grdBuyGames_->horizontalHeader()->setHighlightSections(false);
    const int widths[3] = {4400, 1000, 1000};
    int gridWidth = 0;
    for (int c = 0; c < 3; ++c) {
        grdBuyGames_->setColumnWidth(c, px(widths[c]));
        gridWidth += px(widths[c]);
    }
    // The table is as wide as its columns and the scroll bar it always keeps.
    grdBuyGames_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    grdBuyGames_->resize(gridWidth + 2 + grdBuyGames_->verticalScrollBar()->sizeHint().width(),
                         grdBuyGames_->height());
    grdBuyGames_->setStyleSheet(QStringLiteral(
        "QTableWidget { background: #FFFDF6; alternate-background-color: #F6E7C1;"
        " gridline-color: #E2CF9E; color: #2B1D14; selection-background-color: #2F8F83;"
        " selection-color: #FFFFFF; border: 1px solid #C9A227; }"
        "QHeaderView { background: #1D2A44; }"
        "QHeaderView::section { background: #1D2A44; color: #F2C14E; padding: 2px 3px;"
        " border: 0px; border-right: 1px solid #2B1D14; }"));
    connect(grdBuyGames_, &QTableWidget::cellDoubleClicked, this,
            [this](int row, int) { game_.arcades.buyGame(row + 1); });
    grdBuyGames_->installEventFilter(this);
    auto* hint = makeLabel(buyTab, QStringLiteral("lblBuyHint"),
                           QStringLiteral("Double click a game to buy it. It comes into "
                                          "your room at once, ready to play."),
                           QRect(470, 160, 160, 60), look::font(8));
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* sample = makeLabel(buyTab, QStringLiteral("imgBuySample"), {}, QRect(518, 50, 64, 96),
                             look::font(8));
    sample->setPixmap(loadPicture(game_, "images\\arcades\\003L@2x.gif"));
    SSTab1_->addTab(buyTab, QString::fromLatin1(arcadeTabs[1]));

    // The room fills the screen below the tabs, the frame's brass rule showing at its foot.
    const int tabBarHeight = SSTab1_->tabBar()->sizeHint().height();
    SSTab1_->setGeometry(0, 0, roomWidth, tabBarHeight + roomHeight);
    resize(width(), px(330) + tabBarHeight + roomHeight + 1);
    paintRoom();
    paintBuyGrid();
}

void frmArcade::buildDetails(QWidget* parent) {
    frmDetails_ = new QFrame(parent);
    frmDetails_->setObjectName(QStringLiteral("frmDetails"));
    frmDetails_->setAccessibleName(QStringLiteral("Machine details"));
    frmDetails_->resize(panelWidth, panelHeight);
    auto* f = static_cast<QFrame*>(frmDetails_);
    f->setFrameShape(QFrame::Box);
    f->setStyleSheet(QStringLiteral("QFrame#frmDetails { background: #F6E7C1;"
                                    " border: 2px solid #C9A227; border-radius: 4px; }"));
    const QFont bold = look::font(7.5, true), plain = look::font(7.5);
    QWidget* d = frmDetails_;

    txtGameName_ = new QLineEdit(d);
    txtGameName_->setObjectName(QStringLiteral("txtGameName"));
    txtGameName_->setAccessibleName(QStringLiteral("Machine name"));
    txtGameName_->setGeometry(8, 8, 196, 22);
    txtGameName_->setFont(look::font(9, true));
    connect(txtGameName_, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (!text.isEmpty())
            game_.arcades.renameGame(game_.arcades.detailsNum, text.toStdString());
    });
    lblGameDetailsNum_ = makeLabel(d, QStringLiteral("lblGameDetailsNum"), {},
                                   QRect(210, 8, 44, 22), look::font(9, true));
    lblGameDetailsNum_->setAccessibleName(QStringLiteral("Machine number"));
    lblGameDetailsNum_->setAlignment(Qt::AlignCenter);
    look::paint(lblGameDetailsNum_, look::navy, look::popcorn);

    imgGameExample_ =
        makeLabel(d, QStringLiteral("imgGameExample"), {}, QRect(8, 38, 64, 96), plain);
    imgGameExample_->setAccessibleName(QStringLiteral("Cabinet style"));
    imgGameExample_->setAlignment(Qt::AlignCenter);

    // The price drop-down and the first three figures, right of the picture.
    auto header = [&](int i, const QRect& r) {
        return makeLabel(d, QStringLiteral("lblDetlHeader_%1").arg(i),
                         QString::fromLatin1(arcadeDetailHeaders[static_cast<std::size_t>(i)]), r,
                         bold);
    };
    auto value = [&](const char* name, int i, const QRect& r) {
        QLabel* v = makeLabel(d, QString::fromLatin1(name), {}, r, plain);
        QString caption = QString::fromLatin1(arcadeDetailHeaders[static_cast<std::size_t>(i)]);
        caption.chop(1);
        v->setAccessibleName(caption);
        return v;
    };
    header(0, QRect(82, 40, 84, 18));
    ddPrice_ = new QComboBox(d);
    ddPrice_->setObjectName(QStringLiteral("ddPrice"));
    ddPrice_->setAccessibleName(QStringLiteral("Price per play"));
    ddPrice_->setGeometry(170, 38, 84, 22);
    ddPrice_->setFont(plain);
    connect(ddPrice_, &QComboBox::activated, this, [this](int index) {
        click();
        game_.arcades.setGamePrice(game_.arcades.detailsNum, index);
    });
    header(1, QRect(82, 66, 84, 16));
    lblDetailsPop_ = value("lblDetailsPop", 1, QRect(170, 66, 84, 16));
    header(2, QRect(82, 84, 84, 16));
    lblDetailsAge_ = value("lblDetailsAge", 2, QRect(170, 84, 84, 16));
    header(3, QRect(82, 104, 84, 16));
    lblDetailsCondition_ = value("lblDetailsCondition", 3, QRect(170, 102, 84, 19));
    lblDetailsCondition_->setAlignment(Qt::AlignCenter);
    lblDetailsCondition_->setFont(bold);
    lblDetailsCondition_->setFrameShape(QFrame::Box);

    // The style slider: the back shows the style's number, the top label takes the mouse,
    // the line is the handle.
    lblSliderBack_ = makeLabel(d, QStringLiteral("lblSliderBack"), {},
                               QRect(sliderLeft, sliderTop, sliderWidth, sliderHeight), bold);
    lblSliderBack_->setAccessibleName(QStringLiteral("Cabinet style"));
    lblSliderBack_->setIndent(6);
    lblSliderBack_->setStyleSheet(
        QStringLiteral("QLabel { background: #E9D7A8; color: #7A1620; border: 1px solid #C9A227;"
                       " border-radius: 3px; }"));
    lnSlider_ = new SliderLine(*this, d);
    lnSlider_->setGeometry(sliderLeft - 4, sliderTop - 4, sliderWidth + 8, sliderHeight + 8);
    lblSliderTop_ = makeLabel(d, QStringLiteral("lblSliderTop"), {},
                              QRect(sliderLeft, sliderTop, sliderWidth, sliderHeight), plain);
    lblSliderTop_->setAccessibleName(QStringLiteral("Cabinet style slider"));
    lblSliderTop_->setCursor(Qt::SizeHorCursor);
    lblSliderTop_->setToolTip(QString::fromLatin1(arcadeSliderCaption));
    lblSliderTop_->setFocusPolicy(Qt::TabFocus); // the arrow keys step through the styles
    lblSliderTop_->installEventFilter(this);
    auto* caption =
        makeLabel(d, QStringLiteral("Label1"), QString::fromLatin1(arcadeSliderCaption),
                  QRect(sliderLeft, sliderTop + sliderHeight + 4, sliderWidth, 14), look::font(7));
    caption->setAlignment(Qt::AlignCenter);

    // The money figures, one row each.
    struct Row {
        const char* name;
        int header; // index into the headers; -1: Label2
    };
    const Row rows[6] = {{"lblDetailsPaid", 4},   {"lblDetailsRepairs", 5},
                         {"lblDetailsPlays", 6},  {"lblDetailsIncome", 7},
                         {"lblDetailsProfit", 8}, {"lblDetailsValue", -1}};
    QLabel* made[6] = {};
    for (int r = 0; r < 6; ++r) {
        const int top = 190 + r * 16;
        const bool last = rows[r].header < 0;
        if (last)
            makeLabel(d, QStringLiteral("Label2"), QString::fromLatin1(arcadeValueHeader),
                      QRect(8, top, 140, 16), bold);
        else
            header(rows[r].header, QRect(8, top, 130, 16));
        QLabel* v = last ? makeLabel(d, QString::fromLatin1(rows[r].name), {},
                                     QRect(150, top, 104, 16), plain)
                         : value(rows[r].name, rows[r].header, QRect(150, top, 104, 16));
        if (last)
            v->setAccessibleName(QString::fromLatin1(arcadeValueHeader));
        v->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        made[r] = v;
    }
    lblDetailsPaid_ = made[0];
    lblDetailsRepairs_ = made[1];
    lblDetailsPlays_ = made[2];
    lblDetailsIncome_ = made[3];
    lblDetailsProfit_ = made[4];
    lblDetailsValue_ = made[5];
    lblDetailsValue_->setFont(bold);

    // The buttons: Repair only while broken, and on the left button; Sell and Close on any.
    const int buttonTop = 288, buttonHeight = 21;
    lbcRepair_ =
        new ButtonLabel(QStringLiteral("lbcRepair"), QString::fromLatin1(arcadeRepairButton), d);
    lbcRepair_->setGeometry(8, buttonTop, 76, buttonHeight);
    lbcRepair_->setColours(fromBgr(arcadeRepairColour), look::ink);
    connect(lbcRepair_, &ButtonLabel::clicked, this,
            [this] { game_.arcades.repairGame(game_.arcades.detailsNum); });
    lbcSell_ =
        new AnyButtonLabel(QStringLiteral("lbcSell"), QString::fromLatin1(arcadeSellButton), d);
    lbcSell_->setGeometry(92, buttonTop, 82, buttonHeight);
    lbcSell_->setColours(fromBgr(arcadeSellColour), look::ink);
    connect(lbcSell_, &ButtonLabel::clicked, this,
            [this] { game_.arcades.sellGame(game_.arcades.detailsNum); });
    lbcClose_ =
        new AnyButtonLabel(QStringLiteral("lbcClose"), QString::fromLatin1(arcadeCloseButton), d);
    lbcClose_->setGeometry(182, buttonTop, 72, buttonHeight);
    lbcClose_->setColours(fromBgr(arcadeSellColour), look::ink);
    connect(lbcClose_, &ButtonLabel::clicked, this, [this] { game_.arcades.closeDetailsPanel(); });
    for (ButtonLabel* b : {lbcRepair_, lbcSell_, lbcClose_})
        b->setFont(look::font(8, true));

    frmDetails_->hide();
}

// --- the views ---

void frmArcade::attach(QtScreen& screen) {
    screen.addPainter(View::ArcadeRoom, [this] { paintRoom(); });
    screen.addPainter(View::ArcadeBuyGrid, [this] { paintBuyGrid(); });
    screen.addPainter(View::ArcadeDetails, [this] { paintDetails(); });
    screen.onCreateCabinet = [this](int index) { createCabinet(index); };
    screen.onUpdateCabinet = [this](int index) { updateCabinet(index); };
    screen.onDestroyCabinet = [this](int index) { destroyCabinet(index); };
    screen.onPreviewCabinet = [this](const std::string& path) { previewCabinet(path); };
    screen.onShowArcadeTab = [this](int tab) { SSTab1_->setCurrentIndex(tab); };
}

// The auto-repair box and every cabinet as the room stands.
void frmArcade::paintRoom() {
    const QSignalBlocker quiet(chkRepair_);
    chkRepair_->setChecked(game_.arcades.getAutoRepair());
    const std::vector<int> standing = game_.arcades.room.indexes();
    for (auto it = imgGame_.begin(); it != imgGame_.end();) {
        const int index = (it++)->first;
        if (!std::binary_search(standing.begin(), standing.end(), index))
            destroyCabinet(index);
    }
    for (const int index : standing)
        updateCabinet(index);
}

void frmArcade::paintBuyGrid() {
    const auto rows = arcadeBuyGrid(game_.arcades);
    grdBuyGames_->clearContents();
    if (rows.empty()) {
        grdBuyGames_->setRowCount(0);
        grdBuyGames_->horizontalHeader()->hide();
        return;
    }
    grdBuyGames_->horizontalHeader()->show();
    QStringList headers;
    for (const std::string& h : rows[0])
        headers << QString::fromStdString(h);
    grdBuyGames_->setHorizontalHeaderLabels(headers);
    grdBuyGames_->setRowCount(static_cast<int>(rows.size()) - 1);
    for (std::size_t r = 1; r < rows.size(); ++r)
        for (int c = 0; c < 3; ++c) {
            auto* item =
                new QTableWidgetItem(QString::fromStdString(rows[r][static_cast<std::size_t>(c)]));
            item->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
            grdBuyGames_->setItem(static_cast<int>(r) - 1, c, item);
        }
}

// showDetails: the panel on the machine it shows, kept current as plays and repairs come.
// While the player holds the slider, the slider and its sample are left to the player.
void frmArcade::paintDetails() {
    const arcadeManager& arcades = game_.arcades;
    if (!arcades.detailsVisible || arcades.detailsNum < 1 ||
        arcades.detailsNum > arcades.getMachineCount()) {
        frmDetails_->hide();
        panelNum_ = 0;
        return;
    }
    const ArcadeDetails d = arcadeDetails(arcades);
    const bool newMachine = d.num != panelNum_ || !frmDetails_->isVisible();
    lblGameDetailsNum_->setText(QString::number(d.num));
    const QString name = QString::fromStdString(d.name);
    // A box the player has just emptied keeps its emptiness while the old name stays in force.
    const bool typingEmpty = txtGameName_->hasFocus() && txtGameName_->text().isEmpty();
    if (txtGameName_->text() != name && (newMachine || !typingEmpty)) {
        const QSignalBlocker quiet(txtGameName_);
        txtGameName_->setText(name);
    }
    if (!sliding_) {
        imgGameExample_->setPixmap(cabinetPixmap(d.picture, devicePixelRatioF()));
        setSliderPosition(d.style);
    }
    {
        const QSignalBlocker quiet(ddPrice_);
        const QStringList wanted = [&] {
            QStringList l;
            for (const std::string& p : arcades.priceList)
                l << QString::fromStdString(p);
            return l;
        }();
        QStringList shown;
        for (int i = 0; i < ddPrice_->count(); ++i)
            shown << ddPrice_->itemText(i);
        if (shown != wanted) {
            ddPrice_->clear();
            ddPrice_->addItems(wanted);
        }
        ddPrice_->setCurrentIndex(d.priceIndex < ddPrice_->count() ? d.priceIndex : -1);
    }
    lblDetailsPop_->setText(QString::fromStdString(d.pop));
    lblDetailsAge_->setText(QString::fromStdString(d.age));
    lblDetailsCondition_->setText(QString::fromStdString(d.condition));
    look::paint(lblDetailsCondition_, fromRgb(d.conditionBack), d.broken ? look::cream : look::ink);
    lblDetailsPaid_->setText(QString::fromStdString(d.paid));
    lblDetailsRepairs_->setText(QString::fromStdString(d.repairs));
    lblDetailsPlays_->setText(QString::fromStdString(d.plays));
    lblDetailsIncome_->setText(QString::fromStdString(d.income));
    lblDetailsProfit_->setText(QString::fromStdString(d.profit));
    lblDetailsValue_->setText(QString::fromStdString(d.value));
    lbcRepair_->setVisible(d.broken);
    if (newMachine)
        placeDetails(d.num);
    frmDetails_->show();
    frmDetails_->raise();
    panelNum_ = d.num;
}

// The panel stands on the side of the room away from its machine, so the machine stays in
// sight.
void frmArcade::placeDetails(int index) {
    const ArcadeRoom& room = game_.arcades.room;
    bool onLeft = false;
    if (room.exists(index)) {
        const ArcadeCabinet& c = room.cabinet(index);
        onLeft = c.left + c.width / 2 > ArcadeRoom::roomWidth / 2;
    }
    frmDetails_->move(onLeft ? panelMargin : roomWidth - panelWidth - panelMargin, 2);
}

void frmArcade::setSliderPosition(int style) {
    lblSliderBack_->setText(QString::number(style));
    const int x = arcadeSliderX(twips(lblSliderTop_->x()), twips(lblSliderTop_->width()), style,
                                game_.math.arcadeimages);
    sliderX1_ = sliderX2_ = x;
    lnSlider_->update();
}

// --- the room's objects, as the logic creates, changes and destroys them ---

const QPixmap& frmArcade::cabinetPixmap(const std::string& path, qreal ratio) {
    static const QPixmap none;
    if (path.empty())
        return none;
    const int key = static_cast<int>(std::lround(ratio * 100));
    auto found = pictures_.find({path, key});
    if (found != pictures_.end())
        return found->second;
    // The file the logic chose; for a sharp picture on a dense screen its twice-as-large
    // drawing beside it ("001L@2x.gif") when there is one.
    const QString file = QString::fromStdString(path);
    QImage image = QImageReader(file).read();
    QPixmap pix;
    if (!image.isNull()) {
        const QSize logical = image.size();
        if (ratio > 1.01) {
            QFileInfo info(file);
            const QImage large =
                QImageReader(info.dir().filePath(info.completeBaseName() + QStringLiteral("@2x.") +
                                                 info.suffix()))
                    .read();
            if (!large.isNull())
                image = large;
        }
        if (image.size() != logical * ratio)
            image = image.scaled(logical * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        pix = QPixmap::fromImage(image);
        pix.setDevicePixelRatio(ratio);
    }
    return pictures_.emplace(std::make_pair(path, key), pix).first->second;
}

void frmArcade::createCabinet(int index) {
    if (index < 1)
        return;
    destroyCabinet(index);
    auto* cab = new CabinetPicture(*this, index, picRoom_);
    auto* title = new CabinetTitle(index, picRoom_);
    imgGame_[index] = cab;
    lblGameName_[index] = title;
    updateCabinet(index);
}

// Puts cabinet and title where the logic has them. A cabinet out past the room's edge is
// drawn with a strip of itself still inside, its title beside it, so it can be dragged back.
void frmArcade::updateCabinet(int index) {
    const ArcadeRoom& room = game_.arcades.room;
    if (index < 1 || !room.exists(index))
        return;
    if (!imgGame_.count(index)) {
        createCabinet(index);
        return;
    }
    CabinetPicture* cab = imgGame_[index];
    CabinetTitle* title = lblGameName_[index];
    const ArcadeCabinet& c = room.cabinet(index);
    const ArcadeTitle& t = room.title(index);

    const int w = std::max(1, toPx(c.width)), h = std::max(1, toPx(c.height));
    const int x = std::clamp(toPx(c.left), keepInRoom - w, roomWidth - keepInRoom);
    const int y = std::clamp(toPx(c.top), keepInRoom - h, roomHeight - keepInRoom);
    cab->setGeometry(x, y, w, h);
    cab->setPicture(c.picture);
    cab->setVisible(c.visible);

    const QString caption = QString::fromStdString(t.caption);
    if (title->text() != caption) {
        title->setText(caption);
        cab->setAccessibleName(caption + QStringLiteral(" cabinet"));
    }
    title->setColour(fromRgb(t.color));
    // The label is as wide as its caption needs, centred where the logic centres it.
    const int textWidth = title->fontMetrics().horizontalAdvance(caption) + 8;
    const int tw = std::max(toPx(t.width), textWidth), th = std::max(toPx(t.height), 13);
    const int centre = toPx(t.left + t.width / 2);
    const int tx = std::clamp(centre - tw / 2 + (x - toPx(c.left)), 0, std::max(0, roomWidth - tw));
    const int ty = std::clamp(toPx(t.top) + (y - toPx(c.top)), 0, roomHeight - th);
    title->setGeometry(tx, ty, tw, th);
    title->setVisible(t.visible && !caption.isEmpty());
}

void frmArcade::destroyCabinet(int index) {
    for (QWidget* w :
         {static_cast<QWidget*>(imgGame_.count(index) ? imgGame_[index] : nullptr),
          static_cast<QWidget*>(lblGameName_.count(index) ? lblGameName_[index] : nullptr)}) {
        if (!w)
            continue;
        w->hide();
        w->setObjectName({});
        w->deleteLater(); // it may be the widget whose event is running
    }
    imgGame_.erase(index);
    lblGameName_.erase(index);
}

void frmArcade::previewCabinet(const std::string& path) {
    imgGameExample_->setPixmap(cabinetPixmap(path, devicePixelRatioF()));
}

// --- the mouse and the keys ---

QPointF frmArcade::cabinetPoint(int index, QMouseEvent* e) const {
    const ArcadeCabinet& c = game_.arcades.room.cabinet(index);
    const QPointF inRoom = e->position() + QPointF(imgGame_.at(index)->pos());
    return {inRoom.x() * twipsPerPixel - c.left, inRoom.y() * twipsPerPixel - c.top};
}

void frmArcade::cabinetPress(int index, QMouseEvent* e) {
    click();
    dragging_ = true;
    const QPointF grab = cabinetPoint(index, e);
    grabX_ = static_cast<float>(grab.x());
    grabY_ = static_cast<float>(grab.y());
    if (e->button() == Qt::LeftButton) {
        imgGame_[index]->raise();
        lblGameName_[index]->raise();
    }
    imgGame_[index]->setCursor(Qt::ClosedHandCursor);
}

void frmArcade::cabinetMove(int index, QMouseEvent* e) {
    if (!dragging_ || !game_.arcades.room.exists(index) || !imgGame_.count(index))
        return;
    const QPointF at = cabinetPoint(index, e);
    game_.arcades.moveCabinet(index, static_cast<float>(at.x()), static_cast<float>(at.y()), grabX_,
                              grabY_);
}

void frmArcade::cabinetRelease() {
    dragging_ = false;
    for (auto& [index, cab] : imgGame_)
        cab->setCursor(Qt::OpenHandCursor);
}

void frmArcade::cabinetDoubleClick(int index) {
    game_.arcades.showGameDetails(index);
}

void frmArcade::cabinetNudge(int index, int dxTwips, int dyTwips) {
    game_.arcades.moveCabinet(index, static_cast<float>(dxTwips), static_cast<float>(dyTwips), 0,
                              0);
}

// The slider: down takes hold (with the click), each move shows the style of where the handle
// stood before it, and letting go sets the handle upright and the machine's style.
bool frmArcade::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lblSliderTop_) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            sliding_ = true;
            click();
            return true;
        case QEvent::MouseMove:
            if (sliding_)
                sliderMove(static_cast<QMouseEvent*>(event));
            return true;
        case QEvent::MouseButtonRelease:
            sliderRelease();
            return true;
        case QEvent::KeyPress: {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key != Qt::Key_Left && key != Qt::Key_Right)
                break;
            const int style =
                std::clamp(lblSliderBack_->text().toInt() + (key == Qt::Key_Left ? -1 : 1), 1,
                           std::max(1, int(game_.math.arcadeimages)));
            setSliderPosition(style);
            game_.arcades.previewCabinet(style);
            sliderRelease();
            return true;
        }
        default:
            break;
        }
    } else if (watched == grdBuyGames_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && grdBuyGames_->currentRow() >= 0) {
            game_.arcades.buyGame(grdBuyGames_->currentRow() + 1);
            return true;
        }
    }
    return ChildFrame::eventFilter(watched, event);
}

void frmArcade::sliderMove(QMouseEvent* e) {
    const int left = twips(lblSliderTop_->x());
    const int right = left + twips(lblSliderTop_->width());
    const int images = game_.math.arcadeimages;
    const int style = arcadeSliderStyle(sliderX1_, right, images);
    const double mouse = (lblSliderTop_->x() + e->position().x()) * twipsPerPixel;
    sliderX1_ = static_cast<int>(std::clamp(mouse, double(left), double(right)));
    lnSlider_->update();
    lblSliderBack_->setText(QString::number(style));
    game_.arcades.previewCabinet(style);
}

void frmArcade::sliderRelease() {
    sliding_ = false;
    sliderX2_ = sliderX1_;
    lnSlider_->update();
    const arcadeManager& arcades = game_.arcades;
    if (arcades.detailsNum >= 1 && arcades.detailsNum <= arcades.getMachineCount())
        game_.arcades.setCabinetNum(arcades.detailsNum, lblSliderBack_->text().toInt());
}

// --- the pictures for --screenshots ---

// A room of six machines, one of them broken and one just dragged over the divider; the
// market; and the details of the broken machine.
void frmArcade::addScreenshots(Screenshots& shots) {
    shots.add([this](Screenshots& s) {
        Game& g = game_;
        arcadeManager& a = g.arcades;
        const double funds = g.finances.getFunds();
        g.finances.setFunds(1e6);
        for (int tries = 0; a.getMachineCount() < 6 && tries < 20; ++tries) {
            if (a.buyGames.empty())
                a.releaseGames();
            a.buyGame(1);
        }
        g.switchMode(3);
        // Where the player has set them: three left of the door, three right of it.
        const float places[6][2] = {{700, 1850},  {1900, 3150}, {3000, 1900},
                                    {6100, 1850}, {7900, 2300}, {3900, 3150}};
        for (int i = 1; i <= a.getMachineCount() && i <= 6; ++i) {
            const ArcadeCabinet& c = a.room.cabinet(i);
            a.moveCabinet(i, places[i - 1][0] - c.left, places[i - 1][1] - c.top, 0, 0);
        }
        // Machine 6 was dragged from the left half over the divider: it turned round.
        if (a.getMachineCount() >= 6)
            a.moveCabinet(6, 4890 - a.room.cabinet(6).left, 0, 0, 0);
        if (a.getMachineCount() >= 2) {
            arcade& broken = a.myGameAt(2);
            broken.IamBroke = true;
            broken.setTitleColor();
        }
        // The nearer a cabinet stands, the more it is in front.
        std::vector<int> byDepth = a.room.indexes();
        std::sort(byDepth.begin(), byDepth.end(),
                  [&a](int l, int r) { return a.room.cabinet(l).top < a.room.cabinet(r).top; });
        for (const int i : byDepth) {
            if (imgGame_.count(i)) {
                imgGame_[i]->raise();
                lblGameName_[i]->raise();
            }
        }
        a.closeDetailsPanel();
        SSTab1_->setCurrentIndex(0);
        s.save(this, QStringLiteral("frmArcade-0.png"));
        a.releaseGames(); // the next month's market
        SSTab1_->setCurrentIndex(1);
        s.save(this, QStringLiteral("frmArcade-1.png"));
        SSTab1_->setCurrentIndex(0);
        if (a.getMachineCount() >= 2)
            a.showGameDetails(2);
        s.save(this, QStringLiteral("frmArcade-details.png"));
        a.closeDetailsPanel();
        g.finances.setFunds(funds);
    });
}

} // namespace zorvane::screens
