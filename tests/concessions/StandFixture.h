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
        const std::array<const char*, 5> names = {"Popcorn", "Soda", "Candy", "Hot Dog", "Nachos"};
        std::string math = "concessqualcost=0.1; concessconsidercost=0.2; concessconsiderqual0=-10;"
                           "concessconsiderqual2=10; percentconcessions=8; inflation=3";
        for (std::size_t i = 0; i < 5; ++i) {
            const std::string n = "; concess" + std::to_string(i);
            math += "; concessname" + std::to_string(i) + "=" + names[i] + n + "price=3" + n +
                    "cost=0.7" + n + "qualinit=1" + n + "buy=10; imgconcession" +
                    std::to_string(i) + "=\\images\\concessions\\item" + std::to_string(i) + ".png";
            for (int q = 0; q < 3; ++q)
                math += n + "qual" + std::to_string(q) + "=" +
                        std::array{"low ", "mid ", "high "}[q] + std::to_string(i);
        }
        game.math(math);
        game->finances.setFunds(10000);
        stand().initConcessions();
    }

    // Customers who want every item: five rolls of 1 each.
    void allWant(int customers = 1) {
        for (int i = 0; i < 5 * customers; ++i)
            game->rng.force(0.0);
    }
};

} // namespace zorvane::test
