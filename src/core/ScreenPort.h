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

    // switchMode: brings the child screen of a mode (0 to 7) to the front.
    virtual void switchMode(int /*mode*/) {}
    // Whether the building screen is visible (the day refreshes it only then).
    virtual bool buildingVisible() const { return false; }

    // The goal-reached picture frmGoal, shown modally until its double click hides it.
    virtual void showGoal() {}
    // The Goal menu: the title screen shown modally; its "Play !" starts a goal again.
    virtual void showTitle() {}
    // showDetails: the title screen's status box text replaced by a goal's description.
    virtual void titleDetails(const std::string&) {}

    // The arcade room (the logic keeps every rectangle in game.arcades.room): a cabinet and
    // its title were created at an index, moved or changed their picture, caption or colour,
    // or were destroyed.
    virtual void createCabinet(int /*index*/) {}
    virtual void updateCabinet(int /*index*/) {}
    virtual void destroyCabinet(int /*index*/) {}
    // The details panel's sample picture shows this cabinet picture (the style slider).
    virtual void previewCabinet(const std::string& /*path*/) {}
    // The arcade screen turns to a tab: 0 the room, 1 the buy list.
    virtual void showArcadeTab(int /*tab*/) {}
};

} // namespace zorvane
