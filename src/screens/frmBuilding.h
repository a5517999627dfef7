#pragma once
#include "frame/ChildFrame.h"

#include <array>

class QLabel;

namespace zorvane::screens {

class ButtonLabel;

// The screen of mode 7: "Building". The nine figures of the house beside their descriptions,
// the house with its out-of-order sign over it while the building is broken, and the four
// buttons that remodel, renovate, repair or buy it.
class frmBuilding : public ChildFrame {
    Q_OBJECT
  public:
    frmBuilding(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);

    // Writes the figures and shows or hides the sign.
    void paintBuilding();

    void attach(QtScreen& screen) override;
    void addScreenshots(Screenshots& shots) override;

  private:
    std::array<QLabel*, 9> lblBuildingValue_{};
    QLabel* imgScreen_;
    QLabel* imgOOO_;
};

} // namespace zorvane::screens
