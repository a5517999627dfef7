#pragma once
#include "frame/ChildFrame.h"

#include <QPixmap>

#include <map>
#include <string>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMouseEvent;
class QTableWidget;
class QTabWidget;

namespace zorvane::screens {

class ButtonLabel;
class CabinetPicture;
class CabinetTitle;
class RoomPicture;
class SliderLine;

// The screen of mode 3: "Arcade". Two tabs: "My Arcade", the room with a cabinet and a title
// for every machine, and "Buy New Games", the market. Where the cabinets stand is the game's
// (game.arcades.room); the screen mirrors it through the screen port and hands every drag,
// click and key to one arcade operation.
//
// - A cabinet is dragged by either mouse button; only the left one brings it to the front,
//   so a machine can be pulled out from behind others with the right button and stay behind.
// - A double click on a cabinet opens the details panel: the name (taken with every key
//   stroke, never empty), the cabinet-style slider, the play price, the figures, and the
//   Repair (while broken), Sell and Close buttons.
// - A double click on a row of the market buys that game, and the room comes to the front.
class frmArcade : public ChildFrame {
    Q_OBJECT
  public:
    frmArcade(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);

    void attach(QtScreen& screen) override;
    void addScreenshots(Screenshots& shots) override;

    // setSliderPosition: the style under the slider, and the handle upright at that style.
    void setSliderPosition(int style);
    // The handle's upper and lower ends, in twips from the details panel's left.
    int sliderTopX() const { return sliderX1_; }
    int sliderBottomX() const { return sliderX2_; }
    // A cabinet is being dragged.
    bool draggingCabinet() const { return dragging_; }

    // What the room's pictures do with the mouse and keys (the cabinets call these).
    void cabinetPress(int index, QMouseEvent* e);
    void cabinetMove(int index, QMouseEvent* e);
    void cabinetRelease();
    void cabinetDoubleClick(int index);
    void cabinetNudge(int index, int dxTwips, int dyTwips);
    // The picture of a cabinet file, as drawn at this screen's pixel ratio; null when the
    // file cannot be read (that cabinet then stands without a picture).
    const QPixmap& cabinetPixmap(const std::string& path, qreal ratio);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build();
    void buildDetails(QWidget* parent);
    void paintRoom();
    void paintBuyGrid();
    void paintDetails();
    void createCabinet(int index);
    void updateCabinet(int index);
    void destroyCabinet(int index);
    void previewCabinet(const std::string& path);
    void placeDetails(int index);
    void sliderMove(QMouseEvent* e);
    void sliderRelease();
    // The mouse's place relative to a cabinet's own corner, in twips, from the logic's
    // rectangle (a cabinet shown clipped at the room's edge still drags by its true place).
    QPointF cabinetPoint(int index, QMouseEvent* e) const;
    void click();

    QTabWidget* SSTab1_ = nullptr;
    QCheckBox* chkRepair_ = nullptr;
    RoomPicture* picRoom_ = nullptr;
    QTableWidget* grdBuyGames_ = nullptr;
    QWidget* frmDetails_ = nullptr;
    QLabel* lblGameDetailsNum_ = nullptr;
    QLineEdit* txtGameName_ = nullptr;
    QLabel* imgGameExample_ = nullptr;
    QLabel* lblSliderBack_ = nullptr;
    QLabel* lblSliderTop_ = nullptr;
    SliderLine* lnSlider_ = nullptr;
    QComboBox* ddPrice_ = nullptr;
    QLabel* lblDetailsPop_ = nullptr;
    QLabel* lblDetailsAge_ = nullptr;
    QLabel* lblDetailsCondition_ = nullptr;
    QLabel* lblDetailsPaid_ = nullptr;
    QLabel* lblDetailsRepairs_ = nullptr;
    QLabel* lblDetailsPlays_ = nullptr;
    QLabel* lblDetailsIncome_ = nullptr;
    QLabel* lblDetailsProfit_ = nullptr;
    QLabel* lblDetailsValue_ = nullptr;
    ButtonLabel* lbcRepair_ = nullptr;
    ButtonLabel* lbcSell_ = nullptr;
    ButtonLabel* lbcClose_ = nullptr;

    std::map<int, CabinetPicture*> imgGame_;
    std::map<int, CabinetTitle*> lblGameName_;
    std::map<std::pair<std::string, int>, QPixmap> pictures_; // by path and pixel ratio x 100

    // Form state: the cabinet drag and its grab point, the slider's drag and its handle.
    bool dragging_ = false;
    float grabX_ = 0, grabY_ = 0;
    bool sliding_ = false;
    int sliderX1_ = 0, sliderX2_ = 0;
    int panelNum_ = 0; // the machine the panel was last painted for
};

} // namespace zorvane::screens
