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
        tg->math("arcademax=12; arcadeimages=6; arcadenewgamespermonth=3;"
                 "arcademaxgamesonbuylist=10; arcadeclassicmin=5; arcadeclassicmax=30;"
                 "arcadepopmin=1; arcadepopmax=100; arcadepricemod=40; arcadepricebroke=25;"
                 "arcadebreakchance=2000; arcaderepaircost=20; arcadeplayprice1=0.25;"
                 "arcadeplayprice2=0.5; arcadeplayprice3=0.75; arcadeplayprice4=1;"
                 "arcadeplaypricedefault=2; arcadeplaychancepricemod=50;"
                 "arcadeplaychanceplayedmod=1; arcadepopdropmin=1; arcadepopdropmax=4;"
                 "percentarcade=12; inflation=3");
        g().finances.setFunds(10000);
    }

    Game& g() { return *tg->game; }
    arcadeManager& am() { return g().arcades; }

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
