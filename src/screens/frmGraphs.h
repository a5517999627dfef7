#pragma once
#include "frame/ChildFrame.h"

#include <array>

class QGroupBox;
class QLabel;

namespace zorvane::screens {

// The screen of mode 6: "Funds Graph (12 Month History)". The graph's state (where the
// labels stand, the lines of the picture, the texts) is the game's; this screen only shows it.
// A left click on a month label shows that month's funds in a box; there is no click sound
// here and no hover text.
class frmGraphs : public ChildFrame {
    Q_OBJECT
  public:
    frmGraphs(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);

    // Puts the last redraw on screen: labels, their places and the picture.
    void paintGraph();

    void attach(QtScreen& screen) override;
    void addScreenshots(Screenshots& shots) override;

  protected:
    bool event(QEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // Plays a year of days for the screenshot, the pictures that would wait for a double
    // click only counted.
    void playYearForShot(Screenshots& shots);

    QtScreen* screen_ = nullptr;
    QWidget* picFundsGraph_;
    std::array<QLabel*, 10> lblGrfFunds_{};
    std::array<QLabel*, 12> lblGrfFundsMonth_{};
    QGroupBox* frameFundsSummary_;
    QLabel* lblFundsSummaryHigh_;
    QLabel* lblFundsSummaryLow_;
    QLabel* lblFundsSummaryCurrent_;
};

} // namespace zorvane::screens
