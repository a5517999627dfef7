#include "ArcadeFixture.h"

#include "arcade/ArcadeTexts.h"
#include "core/GameError.h"

#include <tuple>

using namespace zorvane;
using namespace zorvane::test;

namespace {

using Machine = ArcadeFixture;

// Popularity, classic floor and style are rolled in that order; each span runs from the
// minimum to min plus max, on purpose.
TEST_F(Machine, InitRollsPopularityClassicStyleInOrder) {
    const struct {
        int popmin;
        double pop, classic, style;
        int wantPop, wantClassic, wantStyle, wantCost;
    } rows[] = {
        {1, 0.5, 0.25, 0.99, 51, 12, 6, 2040},  // 100 * 0.5 + 1, 30 * 0.25 + 5, 6 * 0.99 + 1
        {20, 0.999, 0.0, 0.0, 119, 5, 1, 4760}, // 100 * 0.999 + 20: min plus max, floored
    };
    for (const auto& r : rows) {
        arcade a(g());
        g().math.arcadepopmin = r.popmin;
        g().rng.force({r.pop, r.classic, r.style});
        a.init(7, "Zap");
        EXPECT_EQ(g().rng.forcedLeft(), 0u);
        EXPECT_EQ(std::vector<int>({a.Pop, a.Classic, a.CabinetImageFileNumber}),
                  std::vector<int>({r.wantPop, r.wantClassic, r.wantStyle}));
        EXPECT_EQ(a.cost, r.wantCost);
        EXPECT_EQ(std::vector<int>({a.Num, a.OriginalNum, a.Age, a.PricePerPlay}),
                  std::vector<int>({7, 7, 0, 2}));
        EXPECT_EQ(a.Name, "Zap");
    }
    arcade dear(g());
    g().math.arcadepricemod = 1000;
    g().rng.force({0.5, 0.5, 0.5}); // Pop 51 * 1000 does not fit 16 bits
    EXPECT_THROW(dear.init(1, "Dear"), GameError);
}

TEST_F(Machine, PlayChanceFallsWithPriceAndCrowdPlays) {
    arcade& a = addMachine(title(1, "Zap", 60));
    a.PricePerPlay = 2; // $0.50: base = floor(60 - 50 * 0.5) = 35
    // plays so far 5: chance 30. Roll 31 does not play and draws nothing more.
    g().rng.force(roll(31));
    EXPECT_FALSE(a.play(a.playTerms(), 5, g().rng));
    EXPECT_EQ(g().rng.forcedLeft(), 0u);
    EXPECT_EQ(a.TotalPlays, 0);
    // Roll 30 plays; then the breakdown roll.
    g().rng.force({roll(30), 0.9});
    EXPECT_TRUE(a.play(a.playTerms(), 5, g().rng));
    EXPECT_EQ(g().rng.forcedLeft(), 0u);
    EXPECT_EQ(a.TotalPlays, 1);
    EXPECT_EQ(a.Income, 0.5);
    EXPECT_EQ(g().finances.incdeparcade, 0.5);
    EXPECT_EQ(g().finances.funds, 10000.5);
    EXPECT_FALSE(a.IamBroke);
    // Free play plays at the popularity; a broken machine then draws nothing.
    a.PricePerPlay = 0;
    g().rng.force({roll(60), 0.0}); // the breakdown roll 1
    EXPECT_TRUE(a.play(a.playTerms(), 0, g().rng));
    EXPECT_EQ(a.Income, 0.5);
    EXPECT_TRUE(a.IamBroke);
    g().rng.force(roll(1));
    EXPECT_FALSE(a.play(a.playTerms(), 0, g().rng));
    EXPECT_EQ(g().rng.forcedLeft(), 1u);
    a.setPricePerPlay(5); // no range check when set, but a play looks the price up
    a.IamBroke = false;
    EXPECT_THROW(a.play(a.playTerms(), 0, g().rng), GameError);
}

TEST_F(Machine, BreakdownOnARollOfOneRefundsThePlayAndKeepsTheTotals) {
    arcade& a = addMachine(title(1, "Zap", 100));
    a.PricePerPlay = 4;            // $1.00
    g().rng.force({0.0, 0.00051}); // 2000 * r + 1 floors to 2: holds
    EXPECT_TRUE(a.play(a.playTerms(), 0, g().rng));
    EXPECT_FALSE(a.IamBroke);
    g().rng.force({0.0, 0.0004999}); // floors to 1
    EXPECT_TRUE(a.play(a.playTerms(), 0, g().rng));
    EXPECT_TRUE(a.IamBroke);
    EXPECT_TRUE(logged("The arcade machine Zap has broke down."));
    // Two earned, one paid back; the refund charges no department.
    const Finances& f = g().finances;
    EXPECT_EQ(std::tuple(f.funds, f.totalspent, f.deparcade, f.incdeparcade),
              std::tuple(10001, 1, 0, 2));
    EXPECT_EQ(std::tuple(a.TotalPlays, a.Income), std::tuple(2, 2));
    EXPECT_EQ(am().room.title(1).color, ArcadeRoom::titleBroken);
}

TEST_F(Machine, RefundThatFundsCannotCoverIsDroppedSilently) {
    arcade& a = addMachine(title(1, "Zap", 100));
    a.PricePerPlay = 2;
    g().finances.setFunds(0.6); // 0.6 + 0.5 - 0.5 would leave under 1
    g().rng.force({0.0, 0.0});
    EXPECT_TRUE(a.play(a.playTerms(), 0, g().rng));
    EXPECT_TRUE(a.IamBroke);
    EXPECT_DOUBLE_EQ(g().finances.funds, 1.1);
    EXPECT_EQ(g().finances.totalspent, 0);
    EXPECT_EQ(tg->screen.lines, std::vector<std::string>{"The arcade machine Zap has broke down."});
}

// A repair costs arcaderepaircost a month of age: a new machine's is $0, and even that needs
// a dollar left over.
TEST_F(Machine, RepairCostGrowsWithAge) {
    arcade& a = addMachine(title(1, "Zap", 50));
    a.IamBroke = true;
    g().finances.setFunds(0.5);
    a.repair();
    EXPECT_TRUE(a.IamBroke);
    EXPECT_TRUE(logged("Couldn't afford the $0 to fix arcade 'Zap'"));
    g().finances.setFunds(10000);
    a.Age = 7;
    a.Income = 100;
    a.repair();
    EXPECT_FALSE(a.IamBroke);
    EXPECT_EQ(g().finances.deparcade, 140); // 7 months * 20
    EXPECT_EQ(g().finances.funds, 10000 - 140);
    EXPECT_EQ(a.Income, -40);
    EXPECT_EQ(a.RepairBillsTotal, 140);
    EXPECT_TRUE(logged("Zap has been repaired for $140"));
    EXPECT_EQ(am().room.title(1).color, ArcadeRoom::titleWorking);
    // Repairs count twice in the profit figure, as the panel shows it.
    a.OriginalPrice = 1000;
    EXPECT_EQ(a.totalProfit(), -40 - 1000 - 140);
    a.Age = 2000; // 2000 * 20 does not fit 16 bits
    EXPECT_THROW(a.repair(), GameError);
}

// The details panel follows the plays and jumps to a breakdown; auto-repair mends one at once.
TEST_F(Machine, DetailsPanelFollowsPlaysAndJumpsToABreakdownThatAutoRepairMends) {
    addMachine(title(1, "One", 100));
    arcade& second = addMachine(title(2, "Two", 100));
    am().showGameDetails(1);
    g().rng.force({0.0, 0.9}); // machine 2 plays: the panel stays on machine 1
    EXPECT_TRUE(second.play(second.playTerms(), 0, g().rng));
    EXPECT_EQ(am().detailsNum, 1);
    g().rng.force({0.0, 0.0}); // machine 2 breaks: the panel jumps to it
    EXPECT_TRUE(second.play(second.playTerms(), 0, g().rng));
    EXPECT_EQ(am().detailsNum, 2);
    EXPECT_TRUE(arcadeDetails(am()).broken);
    EXPECT_EQ(arcadeDetails(am()).condition, "Broken");
    am().setAutoRepair(true);
    EXPECT_EQ(tg->settings.get("arcades", "autoRepair", ""), "1");
    second.IamBroke = false;
    second.Age = 3;
    g().rng.force({0.0, 0.0});
    EXPECT_TRUE(second.play(second.playTerms(), 0, g().rng));
    EXPECT_FALSE(second.IamBroke);
    EXPECT_EQ(tg->screen.count("The arcade machine Two has broke down."), 2);
    EXPECT_TRUE(logged("Two has been repaired for $60")); // 3 months * 20
    EXPECT_EQ(second.RepairBillsTotal, 60);
    EXPECT_EQ(am().room.title(2).color, ArcadeRoom::titleWorking);
}

TEST_F(Machine, MonthMovesPopularityTowardsClassic) {
    arcade& a = addMachine(title(1, "Zap", 50, 10));
    a.cost = 9999;      // inflation is discarded by the month
    g().rng.force(0.5); // drop floor(4 * 0.5 + 1) = 3
    a.nextMonth();
    EXPECT_EQ(a.Age, 1);
    EXPECT_EQ(a.Pop, 47);
    EXPECT_EQ(a.cost, 47 * 40);

    a.Pop = 11;
    g().rng.force(0.99); // drop 4: below the floor, back to 10
    a.nextMonth();
    EXPECT_EQ(a.Pop, 10);

    const auto draws = g().rng.draws();
    a.nextMonth(); // at the floor: no roll at all
    EXPECT_EQ(a.Pop, 10);
    EXPECT_EQ(a.Age, 3);
    a.Classic = 11; // one below the floor: raised to it, no roll either
    a.nextMonth();
    EXPECT_EQ(a.Pop, 11);
    EXPECT_EQ(a.cost, 440);
    EXPECT_EQ(g().rng.draws(), draws);
}

TEST_F(Machine, CabinetFileNamePadding) {
    EXPECT_EQ(arcade::cabinetFileName(1, false), "001L.gif");
    EXPECT_EQ(arcade::cabinetFileName(6, true), "006R.gif");
    EXPECT_EQ(arcade::cabinetFileName(12, false), "012L.gif");
    EXPECT_EQ(arcade::cabinetFileName(123, true), "123R.gif");
    EXPECT_EQ(arcade::cabinetFileName(1234, false), "1234L.gif");
}

// A cabinet faces the room's centre by the divider. Of the player's edits, an empty name and a
// style outside 1 to arcadeimages are ignored, and a new name is not re-centred.
TEST_F(Machine, CabinetFacesTheRoomCentreByTheDividerAndTakesThePlayersEdits) {
    auto t = title(1, "Zap", 50);
    t->CabinetImageFileNumber = 3;
    t->myCabLeft = ArcadeRoom::defaultDividerX; // on the line: still the left picture
    arcade& a = addMachine(t);
    EXPECT_EQ(am().room.cabinet(1).picture, g().dataPath("images/arcades/003L.gif"));
    EXPECT_EQ(am().room.cabinet(1).width, ArcadeRoom::templateWidth); // no file: its own size
    // One twip over the line flips it.
    am().moveCabinet(1, 101, 50, 100, 50);
    EXPECT_EQ(am().room.cabinet(1).left, ArcadeRoom::defaultDividerX + 1);
    EXPECT_EQ(am().room.cabinet(1).picture, g().dataPath("images/arcades/003R.gif"));
    EXPECT_EQ(a.cabinetPicturePath, am().room.cabinet(1).picture);
    // The saved place is not written by a move.
    EXPECT_EQ(a.myCabLeft, ArcadeRoom::defaultDividerX);
    const float left = am().room.title(1).left;
    am().renameGame(1, "");
    EXPECT_EQ(am().room.title(1).caption, "Zap");
    am().renameGame(1, "Longer Name");
    EXPECT_EQ(a.Name, "Longer Name");
    EXPECT_EQ(am().room.title(1).caption, "Longer Name");
    EXPECT_EQ(am().room.title(1).left, left);
    am().setCabinetNum(1, 0);
    am().setCabinetNum(1, 7);
    EXPECT_EQ(a.CabinetImageFileNumber, 3);
    am().setCabinetNum(1, 6);
    EXPECT_EQ(am().room.cabinet(1).picture, g().dataPath("images/arcades/006R.gif"));
}

// Here the picture is a GIF header of 80 x 100 pixels: the cabinet takes its size.
TEST_F(Machine, NewCabinetStandsAtTheTemplateWithItsTitleCentredAbove) {
    dir.write("images/arcades/001L.gif",
              std::string("GIF89a\x50\x00\x64\x00", 10) + std::string(20, '\0'));
    arcade& a = addMachine(title(1, "Zap", 50));
    const ArcadeCabinet& cab = am().room.cabinet(1);
    const ArcadeTitle& t = am().room.title(1);
    EXPECT_EQ(cab.left, ArcadeRoom::templateLeft);
    EXPECT_EQ(cab.top, ArcadeRoom::templateTop);
    EXPECT_EQ(cab.width, 1200);
    EXPECT_EQ(cab.height, 1500);
    EXPECT_TRUE(cab.visible && t.visible);
    EXPECT_EQ(t.caption, "Zap");
    EXPECT_EQ(t.top, cab.top - 360);
    // width 3 * 90 = 270; left = left + 1200 / 2 - Int(135)
    EXPECT_EQ(t.left, ArcadeRoom::templateLeft + 600 - 135);
    // An odd half width is floored: 5 characters, 450 wide, half 225.
    a.setName("Zappo");
    a.positionTitle(1);
    EXPECT_EQ(am().room.title(1).left, ArcadeRoom::templateLeft + 600 - 225);
    am().room.title(1).width = 301; // half 150.5 floors to 150
    a.positionTitle(1);
    EXPECT_EQ(am().room.title(1).left, ArcadeRoom::templateLeft + 600 - 150);
}

} // namespace
