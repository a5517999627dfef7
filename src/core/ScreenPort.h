#pragma once
#include "core/View.h"

#include <string>

namespace zorvane {

// Why the game is lost: the funds ran out with a loan running, the rent went unpaid too long,
// or too many loan payments were missed in a row.
enum class LoseReason { Funds, Rent, Loan };

// What the logic tells the screens. Every operation is abstract, so a screen that forgets one
// does not compile; NullScreen (core/NullScreen.h) is the port that shows nothing.
class ScreenPort {
  public:
    virtual ~ScreenPort() = default;

    // A view is stale; the screen repaints it once, on its next pass.
    virtual void refresh(View) = 0;

    // A line for the title screen's status box (sLog).
    virtual void titleStatus(const std::string&) = 0;
    // A line for the main log box; `cleared` when the box was emptied just before it.
    virtual void logLine(const std::string&, bool cleared) = 0;
    // The main log box was emptied (loading a game).
    virtual void logCleared() = 0;

    // The lost-game picture, shown modally; it changes no game state.
    virtual void showLose(LoseReason why) = 0;

    // Whether the graph screen is visible (the day redraws it only then).
    virtual bool graphVisible() const = 0;

    // switchMode: brings the child screen of a mode (0 to 7) to the front.
    virtual void switchMode(int mode) = 0;
    // Whether the building screen is visible (the day refreshes it only then).
    virtual bool buildingVisible() const = 0;

    // The goal-reached picture frmGoal, shown modally until its double click hides it.
    virtual void showGoal() = 0;
    // The Goal menu: the title screen shown modally; its "Play !" starts a goal again.
    virtual void showTitle() = 0;
    // showDetails: the title screen's status box text replaced by a goal's description.
    virtual void titleDetails(const std::string&) = 0;

    // The arcade room (the logic keeps every rectangle in game.arcades.room): a cabinet and
    // its title were created at an index, moved or changed their picture, caption or colour,
    // or were destroyed.
    virtual void createCabinet(int index) = 0;
    virtual void updateCabinet(int index) = 0;
    virtual void destroyCabinet(int index) = 0;
    // The details panel's sample picture shows this cabinet picture (the style slider).
    virtual void previewCabinet(const std::string& path) = 0;
    // The arcade screen turns to a tab: 0 the room, 1 the buy list.
    virtual void showArcadeTab(int tab) = 0;
};

} // namespace zorvane
