#pragma once
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

namespace zorvane::test {

// A game with no files: the building's keys as each test knows them.
struct BuildingFixture : ::testing::Test {
    TempDir dir;
    TestGame tg{dir.path().string()};
    std::unique_ptr<Game>& game = tg.game;
    RecordingScreen& screen = tg.screen;

    BuildingFixture() {
        tg.math("buildingconditioninit=90; buildingseating=120; buildingseatingmax=320;"
                "buildingremodelcost=1500; buildingremodelseats=50; buildingremodelcondition=10;"
                "buildingconditiondrop=1; buildingbreakdownchance=0.6; buildingrepaircost=60;"
                "buildingrenovationcost=800; buildingrent=7500; buildingrentgrace=3;"
                "buildingpurchasebase=250000; buildingpurchaseinc=25000; inflation=0");
        game->building.initBuilding();
    }

    buildingManager& b() { return game->building; }
    Finances& money() { return game->finances; }
};

} // namespace zorvane::test
