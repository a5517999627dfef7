#pragma once
#include <QWidget>

#include <array>
#include <functional>

class QFrame;
class QGroupBox;
class QLabel;
class QPlainTextEdit;
class QTimer;

namespace zorvane {
class Game;
}

namespace zorvane::screens {

class ButtonLabel;
class ChildFrame;
class QtScreen;

// The game's base screen: a borderless panel with the calendar, the speed buttons, the
// rating, the money summary, the log box and the eight mode buttons. The screen of each
// mode is glued below it. It shows what the logic's view functions give and passes every
// click to one game operation; the clock (tmrGo) is its timer.
class frmMain : public QWidget {
    Q_OBJECT
  public:
    frmMain(Game& game, QtScreen& screen, QWidget* parent = nullptr);

    // The eight mode screens, by mode number (created by the caller, glued by start-up).
    void setModeScreens(const std::array<ChildFrame*, 8>& screens);
    // Start-up's "setting up forms": each mode's screen glued, it and its button coloured.
    void setupForms();
    ChildFrame* modeScreen(int mode) const { return modes_[static_cast<std::size_t>(mode)]; }

    // The current mode's screen, when glued, goes under this one at its width.
    void alignForm();
    // Brings the mode's screen to the front (the logic's switchMode has checked it).
    void showMode(int mode);
    // Repaints every part from the game (first show, screenshots).
    void refreshAll();
    // Puts the screen where it was when the game last closed.
    void restorePosition();

    QTimer* clock() const { return tmrGo_; }
    ButtonLabel* speedImage(int speed) const { return imgSpeed_[static_cast<std::size_t>(speed)]; }

    // Hooks the other windows set: the file menu, the log window, the settings screen.
    std::function<void()> onFileMenu;
    std::function<void()> onShowLog;
    std::function<void()> onSettingsMenu;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build();
    void buildCalendar();
    void buildRating();
    void buildSummary();
    void buildModes();
    void buildShortcuts();
    void addShortcut(const QKeySequence& key, std::function<void()> action);

    void paintFinances();
    void paintDayBars();
    void paintMonthLabels();
    void paintYear();
    void paintSpeed();
    void paintRating();
    void paintExpand();
    void appendLog(const std::string& line, bool cleared);
    void flushLog();

    void clickSpeed(int speed);
    void clickMenu(int index);
    void runDay();
    void savePosition();

    Game& game_;
    QtScreen& screen_;
    std::array<ChildFrame*, 8> modes_{};

    QLabel* lblHeader_ = nullptr;
    QPlainTextEdit* txtLog_ = nullptr;
    QGroupBox* frameSummary_ = nullptr;
    QGroupBox* frameModes_ = nullptr;
    QFrame* lneExpand_ = nullptr;
    ButtonLabel* lbcExpand_ = nullptr;
    ButtonLabel* lbcNextDay_ = nullptr;
    QLabel* lblYears_ = nullptr;
    QLabel* lblRatingBack_ = nullptr;
    QLabel* lblRatingBar_ = nullptr;
    QLabel* lblRatingCaption_ = nullptr;
    QFrame* shpBorder_ = nullptr;
    std::array<ButtonLabel*, 7> lblDay_{};
    std::array<ButtonLabel*, 4> imgSpeed_{};
    std::array<ButtonLabel*, 8> lbcMode_{};
    std::array<ButtonLabel*, 4> lbcMenu_{};
    std::array<QLabel*, 12> lblHistory_{}, lblHistoryBar_{}, lblHistMonth_{};
    std::array<QLabel*, 13> money_{}; // the figures, in the order of MoneySummary
    std::array<QLabel*, 6> spendingCaptions_{};
    QTimer* tmrGo_ = nullptr;

    bool dragging_ = false;
    QPoint grab_;
    int resumeSpeed_ = 1; // what Space resumes after a pause
    QString pendingLog_;
    bool logCleared_ = false;
};

} // namespace zorvane::screens
