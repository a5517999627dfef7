#include "frmBuilding.h"

#include "Screenshots.h"
#include "building/BuildingTexts.h"
#include "frame/ButtonLabel.h"
#include "frame/Look.h"
#include "frame/Picture.h"
#include "frame/Twips.h"
#include "ports/QtScreen.h"
#include "session/Game.h"

#include <QLabel>

namespace zorvane::screens {

namespace {
constexpr int rowTop = 150, rowPitch = 330, rowHeight = 300; // twips
constexpr int descLeft = 150, descWidth = 2800, valueLeft = 3000, valueWidth = 1650;
constexpr int houseLeft = 5100, houseTop = 150, houseWidth = 3600, houseHeight = 2700;
constexpr int buttonTop = 3300, buttonWidth = 1800, buttonPitch = 2000, buttonHeight = 400;
} // namespace

frmBuilding::frmBuilding(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 7, QStringLiteral("frmBuilding"), QString::fromLatin1(buildingHeader), bgr,
                 parent) {
    QWidget* b = body();
    for (std::size_t i = 0; i < lblBuildingValue_.size(); ++i) {
        const int top = rowTop + static_cast<int>(i) * rowPitch;
        const QString caption = QString::fromLatin1(buildingDescriptions[i]);
        auto* d = new QLabel(caption, b);
        d->setObjectName(QStringLiteral("lblBuildingDesc_%1").arg(i));
        d->setGeometry(pxRect(descLeft, top, descWidth, rowHeight));
        d->setFont(look::font(8, true));
        auto* v = new QLabel(b);
        v->setObjectName(QStringLiteral("lblBuildingValue_%1").arg(i));
        v->setAccessibleName(caption.chopped(1)); // without its colon
        v->setGeometry(pxRect(valueLeft, top, valueWidth, rowHeight));
        v->setFont(look::font(8));
        lblBuildingValue_[i] = v;
    }

    imgScreen_ = new QLabel(b);
    imgScreen_->setObjectName(QStringLiteral("imgScreen"));
    imgScreen_->setAccessibleName(QStringLiteral("The theater"));
    imgScreen_->setGeometry(pxRect(houseLeft, houseTop, houseWidth, houseHeight));
    imgScreen_->setPixmap(loadPicture(game_, "images\\building\\house.png"));
    // The sign is a picture of the same size over the house.
    imgOOO_ = new QLabel(b);
    imgOOO_->setObjectName(QStringLiteral("imgOOO"));
    imgOOO_->setAccessibleName(QStringLiteral("Out of order"));
    imgOOO_->setGeometry(imgScreen_->geometry());
    imgOOO_->setPixmap(loadPicture(game_, "images\\building\\outoforder.png"));
    imgOOO_->raise();

    buildingManager& house = game_.building;
    void (buildingManager::*const actions[4])() = {
        &buildingManager::remodel, &buildingManager::renovateBuilding,
        &buildingManager::repairBuilding, &buildingManager::purchaseBuilding};
    for (std::size_t i = 0; i < buildingButtons.size(); ++i) {
        const BuildingButton& def = buildingButtons[i];
        auto* btn =
            new ButtonLabel(QString::fromLatin1(def.control), QString::fromLatin1(def.caption), b);
        btn->setAccessibleName(QString::fromLatin1(def.caption));
        btn->setToolTip(QString::fromLatin1(def.tip));
        btn->setColours(fromBgr(buildingButtonColour), look::ink);
        btn->setFont(look::font(9, true));
        btn->setAlignment(Qt::AlignCenter);
        btn->setGeometry(pxRect(descLeft + static_cast<int>(i) * buttonPitch, buttonTop,
                                buttonWidth, buttonHeight));
        connect(btn, &ButtonLabel::clicked, this, [&house, act = actions[i]] { (house.*act)(); });
    }
    paintBuilding();
}

void frmBuilding::paintBuilding() {
    const BuildingTexts t = buildingTexts(game_.building, game_.calendar.getCurrentYear());
    for (std::size_t i = 0; i < lblBuildingValue_.size(); ++i)
        lblBuildingValue_[i]->setText(QString::fromStdString(t.values[i]));
    imgOOO_->setVisible(t.outOfOrder);
}

void frmBuilding::attach(QtScreen& screen) {
    screen.addPainter(View::Building, [this] { paintBuilding(); });
    screen.onBuildingVisible = [this] { return isVisible(); };
}

// The house as it stands, then with the out-of-order sign.
void frmBuilding::addScreenshots(Screenshots& shots) {
    shots.add([this](Screenshots& s) {
        game_.switchMode(7);
        for (const bool broken : {false, true}) {
            game_.building.IamBroken = broken;
            game_.building.showBuilding();
            s.save(this, broken ? QStringLiteral("frmBuilding-broken.png")
                                : QStringLiteral("frmBuilding.png"));
        }
    });
}

} // namespace zorvane::screens
