#pragma once
#include "core/ScreenPort.h"

#include <QObject>

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace zorvane::screens {

// The screen port of the windowed game. The logic says "this view is stale"; the port marks
// it and, once per pass of the event loop, has each stale view repainted once by the screens
// that show it. A busy day that moves money four hundred times repaints the summary once.
//
// The direct operations (a log line, a picture, bring a screen to the front, ...) go to the
// screen that owns them through the hooks below; a hook that no screen has set does nothing.
class QtScreen : public QObject, public ScreenPort {
    Q_OBJECT
  public:
    // How a screen repaints a view. Several screens may paint the same view.
    void addPainter(View view, std::function<void()> paint);
    // Repaints every stale view now, each once. Runs by itself once per pass.
    void flush();
    bool isStale(View view) const { return stale_[static_cast<std::size_t>(view)]; }
    // How many views the last flush repainted (benchmarks and tests).
    int lastFlushCount() const { return lastFlushCount_; }

    void refresh(View view) override;
    void titleStatus(const std::string& line) override { call(onTitleStatus, line); }
    void logLine(const std::string& line, bool cleared) override;
    void logCleared() override;
    void showLose(LoseReason) override { call(onShowLose); }
    bool graphVisible() const override { return onGraphVisible && onGraphVisible(); }
    void switchMode(int mode) override { call(onSwitchMode, mode); }
    bool buildingVisible() const override { return onBuildingVisible && onBuildingVisible(); }
    void showGoal() override { call(onShowGoal); }
    void showTitle() override { call(onShowTitle); }
    void titleDetails(const std::string& text) override { call(onTitleDetails, text); }
    void createCabinet(int index) override { call(onCreateCabinet, index); }
    void updateCabinet(int index) override { call(onUpdateCabinet, index); }
    void destroyCabinet(int index) override { call(onDestroyCabinet, index); }
    void previewCabinet(const std::string& path) override { call(onPreviewCabinet, path); }
    void showArcadeTab(int tab) override { call(onShowArcadeTab, tab); }

    std::function<void(const std::string&)> onTitleStatus;
    // Every line of the game log as it comes (`cleared`: the main box was emptied first).
    // Several screens may listen: the main log box, the log window.
    std::vector<std::function<void(const std::string&, bool)>> onLogLine;
    std::vector<std::function<void()>> onLogCleared;
    std::function<void()> onShowLose;
    std::function<bool()> onGraphVisible;
    std::function<void(int)> onSwitchMode;
    std::function<bool()> onBuildingVisible;
    std::function<void()> onShowGoal;
    std::function<void()> onShowTitle;
    std::function<void(const std::string&)> onTitleDetails;
    std::function<void(int)> onCreateCabinet, onUpdateCabinet, onDestroyCabinet;
    std::function<void(const std::string&)> onPreviewCabinet;
    std::function<void(int)> onShowArcadeTab;

  private:
    template <class F, class... A> static void call(const F& f, A&&... args) {
        if (f)
            f(std::forward<A>(args)...);
    }

    std::array<std::vector<std::function<void()>>, viewCount> painters_;
    std::array<bool, viewCount> stale_{};
    bool scheduled_ = false;
    int lastFlushCount_ = 0;
};

} // namespace zorvane::screens
