#pragma once
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace zorvane::test {

// A screen that also records which child screen was brought to the front.
struct BuildingScreen : RecordingScreen {
    std::vector<int> modes;
    bool visible = false;
    void switchMode(int mode) override { modes.push_back(mode); }
    bool buildingVisible() const override { return visible; }
    int refreshes(View v) const {
        return static_cast<int>(std::count(refreshed.begin(), refreshed.end(), v));
    }
};

// A game with no files: the building's keys are set by each test.
struct BuildingFixture : ::testing::Test {
    TempDir dir;
    BuildingScreen screen;
    ScriptedDialogs dialogs;
    std::unique_ptr<Game> game = makeGame(screen, dialogs);

    std::unique_ptr<Game> makeGame(BuildingScreen& s, ScriptedDialogs& d) {
        GameSetup setup;
        setup.folder = dir.path().string();
        setup.screen = &s;
        setup.dialogs = &d;
        auto g = std::make_unique<Game>(std::move(setup));
        MathVars& m = g->math;
        m.buildingconditioninit = Int16{90};
        m.buildingseating = Int16{120};
        m.buildingseatingmax = Int16{320};
        m.buildingremodelcost = 1500;
        m.buildingremodelseats = Int16{50};
        m.buildingremodelcondition = 10;
        m.buildingconditiondrop = 1;
        m.buildingbreakdownchance = 0.6;
        m.buildingrepaircost = Int16{60};
        m.buildingrenovationcost = Int16{800};
        m.buildingrent = 7500;
        m.buildingrentgrace = Int16{3};
        m.buildingpurchasebase = 250000;
        m.buildingpurchaseinc = 25000;
        m.inflation = 0;
        g->building.initBuilding();
        return g;
    }

    buildingManager& b() { return game->building; }
    Finances& money() { return game->finances; }

    static std::string rentWarning(int grace) {
        return "You have not paid your rent this month, if you go " + std::to_string(grace) +
               " month(s) without paying rent you will lose this game!";
    }
};

} // namespace zorvane::test
