#pragma once
#include "core/ScreenPort.h"

namespace zorvane {

// The screen of a game without a window (tests, the simulator, the balance lab): it shows
// nothing, and neither the graph nor the building screen is ever visible. Headless screens
// that watch one thing derive from it and override that one thing.
class NullScreen : public ScreenPort {
  public:
    void refresh(View) override {}
    void titleStatus(const std::string&) override {}
    void logLine(const std::string&, bool) override {}
    void logCleared() override {}
    void showLose(LoseReason) override {}
    bool graphVisible() const override { return false; }
    void switchMode(int) override {}
    bool buildingVisible() const override { return false; }
    void showGoal() override {}
    void showTitle() override {}
    void titleDetails(const std::string&) override {}
    void createCabinet(int) override {}
    void updateCabinet(int) override {}
    void destroyCabinet(int) override {}
    void previewCabinet(const std::string&) override {}
    void showArcadeTab(int) override {}
};

} // namespace zorvane
