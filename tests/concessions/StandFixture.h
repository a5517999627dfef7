#pragma once
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace zorvane::test {

// A game whose stand is set up from chosen math values (no data files, no start-up): five
// items at $3.00 with a base cost of $0.70, quality 1, ten units a month.
struct StandFixture : ::testing::Test {
    TempDir dir;
    TestGame game{dir.path().string()};

    ConcessionManager& stand() { return game->concessions; }
    Concession& item(int i) { return game->concessions.item(i); }

    void SetUp() override {
        MathVars& m = game->math;
        const std::array<const char*, 5> names = {"Popcorn", "Soda", "Candy", "Hot Dog", "Nachos"};
        for (std::size_t i = 0; i < 5; ++i) {
            m.concessname[i] = names[i];
            m.concessqual[i] = {"low " + std::to_string(i), "mid " + std::to_string(i),
                                "high " + std::to_string(i), ""};
            m.concessprice[i] = 3;
            m.concesscost[i] = 0.7;
            m.concessqualinit[i] = 1;
            m.concessbuy[i] = 10;
            m.imgconcession[i] = "\\images\\concessions\\item" + std::to_string(i) + ".png";
        }
        m.concessqualcost = 0.1;
        m.concessconsidercost = 0.2;
        m.concessconsiderqual = {-10, 0, 10, 0};
        m.percentconcessions = 8;
        m.inflation = 3;
        game->finances.setFunds(10000);
        stand().initConcessions();
    }

    // One customer who wants every item (rolls of 1), or none (rolls of 100).
    void allWant(int customers = 1) {
        for (int i = 0; i < 5 * customers; ++i)
            game->rng.force(0.0);
    }
};

} // namespace zorvane::test
