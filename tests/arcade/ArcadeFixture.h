#pragma once
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace zorvane::test {

// A game with the arcade's own math set by hand and a small games.lst, so the arcade can be
// driven without the rest of the start-up.
struct ArcadeFixture : ::testing::Test {
    TempDir dir;
    std::unique_ptr<TestGame> tg;

    void SetUp() override {
        dir.write("games.lst", "Alpha\r\nBravo\r\nCharlie\r\nDelta\r\nEcho\r\n");
        tg = std::make_unique<TestGame>(dir.path().string());
        MathVars& m = g().math;
        m.arcademax = 12;
        m.arcadeimages = 6;
        m.arcadenewgamespermonth = 3;
        m.arcademaxgamesonbuylist = 10;
        m.arcadeclassicmin = 5;
        m.arcadeclassicmax = 30;
        m.arcadepopmin = 1;
        m.arcadepopmax = 100;
        m.arcadepricemod = 40;
        m.arcadepricebroke = 25;
        m.arcadebreakchance = 2000;
        m.arcaderepaircost = 20;
        m.arcadeplayprice = {0, 0.25, 0.5, 0.75, 1.0};
        m.arcadeplaypricedefault = 2;
        m.arcadeplaychancepricemod = 50;
        m.arcadeplaychanceplayedmod = 1;
        m.arcadepopdropmin = 1;
        m.arcadepopdropmax = 4;
        m.percentarcade = 12;
        m.inflation = 3;
        g().finances.setFunds(10000);
    }

    Game& g() { return *tg->game; }
    arcadeManager& am() { return g().arcades; }
    RecordingScreen& screen() { return tg->screen; }

    // A title made by hand, no roll: popularity, classic floor, price index 0 (free play).
    std::shared_ptr<arcade> title(int originalNum, const std::string& name, int pop,
                                  int classic = 1) {
        auto t = std::make_shared<arcade>(g());
        t->Num = originalNum;
        t->OriginalNum = originalNum;
        t->Name = name;
        t->Pop = pop;
        t->Classic = classic;
        t->CabinetImageFileNumber = 1;
        t->PricePerPlay = 0;
        t->cost = pop * 40;
        return t;
    }

    // Puts a title into the room as a purchase would: last place, its cabinet made.
    arcade& addMachine(const std::shared_ptr<arcade>& t) {
        am().myGames.push_back(t);
        t->setNum(am().getMachineCount());
        t->makeCabinet();
        return *t;
    }

    // The draw that gives percent roll r (1 to 100).
    static double roll(int r) { return (r - 0.5) / 100.0; }

    bool logged(const std::string& line) const { return tg->screen.count(line) > 0; }
};

} // namespace zorvane::test
