#pragma once
#include "core/View.h"

#include <string>

namespace zorvane {

// What the logic tells the screens. Every operation does nothing here, so this class is
// also the null port of tests and the simulator; the Qt front end overrides what it shows.
class ScreenPort {
public:
    virtual ~ScreenPort() = default;

    // A view is stale; the screen repaints it once, on its next pass.
    virtual void refresh(View) {}

    // A line for the title screen's status box (sLog).
    virtual void titleStatus(const std::string&) {}
    // A line for the main log box; `cleared` when the box was emptied just before it.
    virtual void logLine(const std::string&, bool /*cleared*/) {}
    // The main log box was emptied (loading a game).
    virtual void logCleared() {}

    // The lost-game picture, shown modally; it changes no game state.
    virtual void showLose() {}

    // Whether the graph screen is visible (the day redraws it only then).
    virtual bool graphVisible() const { return false; }
};

} // namespace zorvane
