#include "ArcadeFixture.h"

#include "arcade/ArcadeTexts.h"
#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"

#include <filesystem>
#include <sstream>
#include <tuple>

using namespace zorvane;
using namespace zorvane::test;

namespace {

using Room = ArcadeFixture;

// The visitor-count rule itself is the stand's too (tested there); the arcade's share is
// percentarcade. Every visitor of this free-play room plays its machine on a roll of 1.
TEST_F(Room, VisitorsFollowTheCrowdRuleWithTheArcadesShare) {
    EXPECT_NO_THROW(am().doArcadeBusiness(0)); // an empty room never divides
    arcade& a = addMachine(title(1, "Zap", 100));
    g().math.arcadeplaychanceplayedmod = 0;
    const struct {
        int share, crowd, visitors;
    } rows[] = {{12, 200, 6}, {7, 200, 4} /* 3.5 */, {12, 2500, 0} /* 0.48: nobody comes */};
    for (const auto& r : rows) {
        g().math.percentarcade = r.share;
        a.TotalPlays = 0;
        const auto before = g().rng.draws();
        for (int i = 0; i < r.visitors; ++i)
            g().rng.force({0.0, 0.9});
        am().doArcadeBusiness(r.crowd);
        EXPECT_EQ(a.TotalPlays, r.visitors) << r.share << " " << r.crowd;
        EXPECT_EQ(g().rng.draws() - before, 2u * r.visitors);
    }
    EXPECT_THROW(am().doArcadeBusiness(0), GameError);
}

// Two visitors meet two machines of popularity 10, and every play of the crowd lowers every
// later chance by one. A machine that breaks draws no more rolls, unless auto-repair mends it
// at once, and then it plays on at the crowd's lowered chance.
TEST_F(Room, PlaysOfTheWholeCrowdLowerEveryLaterChance) {
    const struct {
        const char* what;
        bool autoRepair;
        std::vector<double> rolls; // visitor 1 meets machines 1 and 2, then visitor 2
        int onePlays;
        bool oneBroken;
    } cases[] = {
        {"a miss at chance 8", false, {roll(10), .9, roll(9), .9, roll(9), roll(8), .9}, 1, false},
        {"machine 1 breaks", false, {roll(10), 0, roll(9), .9, roll(8), .9}, 1, true},
        {"and is mended", true, {roll(10), 0, roll(9), .9, roll(8), .9, roll(7), .9}, 2, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        am().setAutoRepair(c.autoRepair);
        g().finances.setFunds(1000);
        while (am().getMachineCount() > 0)
            am().removeFromMyGames(1);
        arcade& one = addMachine(title(1, "One", 10));
        arcade& two = addMachine(title(2, "Two", 10));
        g().math.percentarcade = 2; // a crowd of 100: two visitors
        for (const double r : c.rolls)
            g().rng.force(r);
        am().doArcadeBusiness(100);
        EXPECT_EQ(g().rng.forcedLeft(), 0u);
        EXPECT_EQ(one.TotalPlays, c.onePlays);
        EXPECT_EQ(one.getIamBroke(), c.oneBroken);
        EXPECT_EQ(two.TotalPlays, 2);
    }
}

TEST_F(Room, AveragePopularityIsFloored) {
    EXPECT_EQ(am().getAveragePop(), 0);
    addMachine(title(1, "One", 10));
    addMachine(title(2, "Two", 11));
    addMachine(title(3, "Three", 11));
    EXPECT_EQ(am().getAveragePop(), 10); // 32 / 3
}

// The trim drops the weakest (the first of equals) until the month's titles fit, and is
// refused when it cannot choose or cannot make room.
TEST_F(Room, TrimDropsTheWeakestFirstOfEqualsOrIsRefused) {
    const int pops[] = {50, 20, 70, 20, 90, 15, 60, 40, 80};
    for (int i = 0; i < 9; ++i) {
        am().buyGames.push_back(title(i + 1, "T" + std::to_string(i + 1), pops[i]));
        am().buyGames.back()->setNum(i + 1);
    }
    am().trimBuyList(); // 9 + 3 > 10: two must go, 15 then the first 20
    ASSERT_EQ(am().buyGames.size(), 7u);
    const int expected[] = {1, 3, 4, 5, 7, 8, 9};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(am().buyGameAt(i + 1).getOriginalNum(), expected[i]);
        EXPECT_EQ(am().buyGameAt(i + 1).getNum(), i + 1);
    }
    // With no title below arcadepopmax there is nothing to choose.
    for (const auto& t : am().buyGames)
        t->Pop = 100;
    am().buyGames.push_back(title(10, "T", 100));
    EXPECT_THROW(am().trimBuyList(), GameError);
    am().buyGames.assign({title(1, "T", 5)});
    g().math.arcadenewgamespermonth = 11;
    // The one title goes, then an empty list still cannot make room.
    EXPECT_THROW(am().trimBuyList(), GameError);
    EXPECT_TRUE(am().buyGames.empty());
}

TEST_F(Room, ReleaseDrawsOnlyFreeTitlesGivesUpAfterAThousandAndNeedsItsList) {
    am().loadGamesList();
    ASSERT_EQ(am().allGames.size(), 5u);
    g().math.arcadenewgamespermonth = 2;
    am().buyGames.push_back(am().allGames[1]); // Bravo, line 2
    am().buyGames.back()->setNum(1);
    am().myGames.push_back(am().allGames[2]); // Charlie, line 3
    g().rng.force({0.2, 0.5, 0.0, 0.99});     // 2 and 3 are taken; then 1 and 5
    am().releaseGames();
    EXPECT_EQ(g().rng.forcedLeft(), 0u);
    ASSERT_EQ(am().buyGames.size(), 3u);
    EXPECT_EQ(am().buyGameAt(2).getName(), "Alpha");
    EXPECT_EQ(am().buyGameAt(3).getName(), "Echo");
    EXPECT_EQ(am().buyGameAt(3).getNum(), 3);
    EXPECT_EQ(am().buyGames[2], am().allGames[4]); // the very object of the list
    // With every title taken the draw gives up after a thousand tries.
    am().buyGames.push_back(am().allGames[3]);
    g().math.arcademaxgamesonbuylist = 100;
    const auto before = g().rng.draws();
    am().releaseGames();
    EXPECT_EQ(g().rng.draws() - before, 1000u);
    EXPECT_EQ(am().buyGames.size(), 4u);
    // An empty games list makes the draw fatal, a missing one the load.
    am().buyGames.clear();
    dir.write("games.lst", "");
    am().loadGamesList();
    EXPECT_TRUE(am().allGames.empty());
    EXPECT_THROW(am().releaseGames(), GameError);
    std::filesystem::remove(dir.file("games.lst"));
    EXPECT_THROW(am().loadGamesList(), GameError);
}

TEST_F(Room, InitArcadesReadsTheSettingAndReleases) {
    tg->settings.set("arcades", "autoRepair", "1");
    g().rng.reseed(5);
    am().initArcades();
    EXPECT_TRUE(am().getAutoRepair());
    EXPECT_EQ(am().allGames.size(), 5u);
    EXPECT_EQ(am().buyGames.size(), 3u);
    EXPECT_EQ(am().priceList,
              (std::vector<std::string>{"Free Play", "$0.25", "$0.50", "$0.75", "$1"}));
    const auto rows = arcadeBuyGrid(am());
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0][0], "Game Title");
    EXPECT_EQ(rows[1][0], am().buyGameAt(1).getName());
    EXPECT_EQ(rows[1][2], formatMoney(am().buyGameAt(1).getCost()));

    tg->settings.set("arcades", "autoRepair", "2"); // only a 1 is on
    am().initArcades();
    EXPECT_FALSE(am().getAutoRepair());
    EXPECT_EQ(tg->settings.get("arcades", "autoRepair", ""), "0");
}

TEST_F(Room, BuyingMovesTheTitleIntoTheRoomOrIsRefusedTheFullRoomFirst) {
    auto t = title(2, "Bravo", 50);
    am().buyGames.push_back(title(1, "Alpha", 30));
    am().buyGames.push_back(t);
    t->setNum(2);
    am().buyGame(2);
    ASSERT_EQ(am().getMachineCount(), 1);
    EXPECT_EQ(am().myGames[0], t);
    EXPECT_EQ(t->getNum(), 1);
    EXPECT_EQ(t->OriginalPrice, 2000);
    EXPECT_EQ(g().finances.deparcade, 2000);
    EXPECT_EQ(g().finances.funds, 8000);
    EXPECT_TRUE(logged("Purchased 'Bravo' for $2,000"));
    ASSERT_EQ(am().buyGames.size(), 1u);
    EXPECT_EQ(am().buyGameAt(1).getName(), "Alpha");
    EXPECT_TRUE(am().room.exists(1));
    EXPECT_EQ(am().room.cabinet(1).left, ArcadeRoom::templateLeft);
    // Refused: without the money (1200 - 1200 leaves less than 1), then with the room full,
    // which answers before the bad row is looked at.
    g().finances.setFunds(1200);
    am().buyGame(1);
    EXPECT_TRUE(logged("Couldn't afford to buy 'Alpha'"));
    g().math.arcademax = 1;
    am().buyGame(2);
    EXPECT_TRUE(logged("You cannot fit any more machines into your arcade room!"));
    EXPECT_EQ(g().finances.totalspent, 2000);
    EXPECT_EQ(am().buyGames.size(), 1u);
}

TEST_F(Room, SellingClosesTheRoomUp) {
    arcade& one = addMachine(title(1, "One", 10));
    auto twoPtr = title(2, "Two", 20);
    arcade& two = addMachine(twoPtr);
    arcade& three = addMachine(title(3, "Three", 30));
    am().moveCabinet(1, 100, 0, 0, 0);
    am().moveCabinet(2, 200, 100, 0, 0);
    am().moveCabinet(3, 5000, 300, 0, 0); // over the divider: the R picture
    three.IamBroke = true;
    const ArcadeCabinet cab3 = am().room.cabinet(3);
    const ArcadeTitle title3 = am().room.title(3);
    am().showGameDetails(2);

    am().sellGame(2);
    EXPECT_EQ(g().finances.funds, 10000 + 800);
    EXPECT_EQ(g().finances.incdeparcade, 0); // "arcades" is no income department
    EXPECT_FALSE(am().detailsVisible);
    ASSERT_EQ(am().getMachineCount(), 2);
    EXPECT_EQ(&am().myGameAt(1), &one);
    EXPECT_EQ(&am().myGameAt(2), &three);
    EXPECT_EQ(three.getNum(), 2);
    EXPECT_FALSE(am().room.exists(3));
    const ArcadeCabinet& cab2 = am().room.cabinet(2);
    const ArcadeTitle& title2 = am().room.title(2);
    EXPECT_EQ(std::tie(cab2.left, cab2.top, cab2.picture),
              std::tie(cab3.left, cab3.top, cab3.picture));
    EXPECT_EQ(std::tie(title2.caption, title2.left, title2.top, title2.color),
              std::tuple("Three", title3.left, title3.top, ArcadeRoom::titleBroken));
    EXPECT_EQ(am().room.cabinet(1).left, ArcadeRoom::templateLeft + 100);
    // The sold object keeps all it has; its saved place is left as it was.
    EXPECT_EQ(two.MyCabTop, 0);
    EXPECT_EQ(twoPtr.use_count(), 1);
    am().sellGame(2); // the last one: only its own cabinet goes
    EXPECT_TRUE(am().room.exists(1));
    EXPECT_FALSE(am().room.exists(2));
    EXPECT_EQ(am().room.title(1).caption, "One");
    EXPECT_THROW(am().sellGame(2), GameError);
}

TEST_F(Room, SoldTitleDrawnAgainComesBackAsItWas) {
    am().loadGamesList();
    g().math.arcadenewgamespermonth = 1;
    g().rng.force(0.0); // Alpha
    am().releaseGames();
    am().buyGame(1);
    arcade& alpha = am().myGameAt(1);
    alpha.Age = 4;
    alpha.IamBroke = true;
    alpha.TotalPlays = 17;
    am().renameGame(1, "Alpha Prime");
    am().setGamePrice(1, 3);
    am().sellGame(1);
    g().rng.force(0.0);
    am().releaseGames();
    ASSERT_EQ(am().buyGames.size(), 1u);
    const arcade& again = am().buyGameAt(1);
    EXPECT_EQ(&again, am().allGames[0].get());
    EXPECT_EQ(again.getName(), "Alpha Prime");
    EXPECT_EQ(again.Age, 4);
    EXPECT_EQ(again.TotalPlays, 17);
    EXPECT_EQ(again.PricePerPlay, 3);
    EXPECT_TRUE(again.IamBroke);
    EXPECT_EQ(arcadeBuyGrid(am())[1][2], formatMoney(again.getCost())); // the whole cost
    const double funds = g().finances.funds;
    am().buyGame(1);
    EXPECT_EQ(g().finances.funds, funds - again.getCost() * 25 / 100); // charged broken
    EXPECT_TRUE(am().myGameAt(1).IamBroke);
}

TEST_F(Room, MonthReleasesThenAgesTheRoomAndTheYearInflates) {
    am().loadGamesList();
    g().math.arcadenewgamespermonth = 1;
    addMachine(title(9, "Mine", 50, 10));
    am().buyGames.push_back(am().allGames[0]);
    am().buyGames.back()->setNum(1);
    const int onOfferAge = am().buyGameAt(1).Age;
    g().rng.force({0.99, 0.5}); // the release draws Echo, then the room's drop of 3
    am().arcadesNextMonth();
    EXPECT_EQ(g().rng.forcedLeft(), 0u);
    EXPECT_EQ(am().buyGameAt(2).getName(), "Echo");
    EXPECT_EQ(am().myGameAt(1).Pop, 47);
    EXPECT_EQ(am().myGameAt(1).Age, 1);
    EXPECT_EQ(am().buyGameAt(1).Age, onOfferAge);
    am().buyGameAt(1).cost = 2000;
    am().arcadesNextYear(); // the year inflates the market only
    EXPECT_DOUBLE_EQ(am().buyGameAt(1).getCost(), 2060);
    EXPECT_EQ(am().myGameAt(1).getCost(), 1880);
}

TEST_F(Room, LoadClosesADetailsPanelBeyondTheRoom) {
    addMachine(title(1, "One", 10));
    addMachine(title(2, "Two", 10));
    am().showGameDetails(2);
    std::istringstream in("<arcade_my>\r\nNum=1\r\nName=A\r\n</arcade_my>\r\n</arcades>\r\n");
    LineReader r(in, "saved");
    am().loadArcades(r);
    EXPECT_FALSE(am().detailsVisible);
}

TEST_F(Room, DetailsViewTexts) {
    arcade& a = addMachine(title(1, "Zap", 50));
    a.Age = 12;
    a.OriginalPrice = 2000;
    a.RepairBillsTotal = 120;
    a.TotalPlays = 1500;
    a.Income = 380.5;
    a.PricePerPlay = 2;
    am().showGameDetails(1);
    const ArcadeDetails d = arcadeDetails(am());
    EXPECT_EQ(std::vector<std::string>({d.name, d.pop, d.age, d.condition, d.paid, d.repairs,
                                        d.plays, d.income, d.profit, d.value}),
              std::vector<std::string>({"Zap", "50", "12 months", "Working", "$2,000", "$120",
                                        "1500", "$380.50", "-$1,739.50", "$2,000"}));
    EXPECT_EQ(d.conditionBack, 0xFFFF80u);
    EXPECT_EQ(d.priceIndex, 2);
    a.IamBroke = true;
    const ArcadeDetails broken = arcadeDetails(am());
    EXPECT_EQ(broken.condition, "Broken");
    EXPECT_EQ(broken.conditionBack, 0xFF0000u);
    EXPECT_EQ(broken.value, "$500");
}

// The style slider: where the handle stands for a style, and which style a handle's place
// stands for, on a track from 120 to 2520 twips with six styles.
TEST(ArcadeSlider, HandlePlaceAndStyle) {
    const int places[][2] = {{1, 420}, {3, 1260}, {6, 2520}, {9, 3780}};
    for (const auto& [style, x] : places)
        EXPECT_EQ(arcadeSliderX(120, 2400, style, 6), x) << style;
    const double styles[][2] = {{0, 1},    {120, 1},  {839, 1},  {840, 2},
                                {2099, 4}, {2520, 6}, {9000, 6}, {-50, 1}};
    for (const auto& [x, style] : styles)
        EXPECT_EQ(arcadeSliderStyle(x, 2520, 6), style) << x;
    // A style's own handle place gives the style back.
    for (int style = 1; style <= 6; ++style)
        EXPECT_EQ(arcadeSliderStyle(arcadeSliderX(120, 2400, style, 6), 2520, 6), style);
    EXPECT_EQ(arcadeSliderStyle(100, 2520, 0), 0); // no styles: no division
    EXPECT_EQ(arcadeSliderStyle(100, 0, 6), 1);
}

} // namespace
