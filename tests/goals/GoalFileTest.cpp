// goals.cfg: how the file is read, and what the shipped file offers.
#include "core/GameError.h"
#include "goals/GoalTexts.h"
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct GoalFile : ::testing::Test {
    TempDir dir;
    std::unique_ptr<TestGame> session;

    goalManager& load(const std::string& text) {
        dir.write("goals.cfg", text);
        session = std::make_unique<TestGame>(dir.path().string());
        (*session)->goals.loadGoals();
        return (*session)->goals;
    }
};

} // namespace

TEST_F(GoalFile, FreePlayComesFirstThenTheGoalsBetweenTheirTagsInFileOrder) {
    goalManager& g = load("# a comment\r\n<goal>\r\nname=First\r\n</goal>\r\nname=Outside\r\n"
                          "<GOAL>\r\nname=Second\r\n</goal>\r\n<Goal>\r\n</goal>\r\n");
    EXPECT_EQ(g.getLastGoal(), 3);
    EXPECT_EQ(goalList(g), (std::vector<std::string>{"Free Play", "First", "Second", ""}));
    const goal& free = g.getGoal(0);
    EXPECT_EQ(std::tuple(free.getName(), free.getType(), free.getValue(), free.getDeadline(),
                         free.getDesc()),
              std::tuple("Free Play", "", 0, 0, "Play without any goals"));
    EXPECT_EQ(g.getSelected(), 0);
    EXPECT_THROW(g.getGoal(4), GameError);

    // Any line beginning with "</" closes a goal, the end of the file closes the last one,
    // and an opening line must be exactly the tag.
    EXPECT_EQ(goalList(load("<goal>\nname=A\n</whatever>\ntype=funds\n<goal>\nname=B\n")),
              (std::vector<std::string>{"Free Play", "A", "B"}));
    EXPECT_EQ((*session)->goals.getGoal(1).getType(), ""); // the type line stood outside
    EXPECT_EQ(goalList(load("<goal> \n name=x\n<goal>x\n <goal>\n")),
              std::vector<std::string>{"Free Play"});
}

TEST_F(GoalFile, KeysAndValuesAreReadAsWrittenAbsentOnesStayEmpty) {
    goalManager& g = load("<goal>\n"
                          "NAME=Big = Money\n"
                          "Type=FUNDS\n"
                          "value=  1500.5 dollars\n"
                          "deadline=2.5\n"
                          "desc=  Make it rain  \n"
                          "debt=$20,000\n"
                          "funds=abc\n"
                          "cs=45.5 points\n"
                          "payplan=\n"
                          "colour=red\n"
                          "=ignored\n"
                          "no equals sign\n"
                          " name=not a key\n"
                          "</goal>\n"
                          "<goal>\nname=Sloppy\ntype=rating\nvalue=lots\ndeadline=soon\n</goal>\n");
    const goal& big = g.getGoal(1);
    // The name split at the first "=", the deadline rounded half to even, debt and funds
    // taken as they stand, the score's leading number printed back, an empty value as 0.
    EXPECT_EQ(std::tuple(big.getName(), big.getType(), big.getValue(), big.getDeadline(),
                         big.getDesc(), big.getDebt(), big.getFunds(), big.getCs(),
                         big.getPayplan(), big.getAchieved()),
              std::tuple("Big = Money", "funds", 1500.5, 2, "  Make it rain  ", "$20,000", "abc",
                         "45.5", "0", false));
    // Absent keys stay empty, bad numbers read as 0: a mistyped deadline fails in the second
    // year.
    const goal& sloppy = g.getGoal(2);
    EXPECT_EQ(std::tuple(sloppy.getValue(), sloppy.getDeadline(), sloppy.getCs(),
                         sloppy.getPayplan(), sloppy.getDebt(), sloppy.getFunds()),
              std::tuple(0, 0, "", "", "", ""));
}

TEST_F(GoalFile, AMissingFileOrADeadlineBeyondSixteenBitsIsFatal) {
    TestGame game(dir.path().string());
    EXPECT_THROW(game->goals.loadGoals(), GameError);
    dir.write("goals.cfg", "<goal>\ndeadline=40000\n</goal>\n");
    try {
        game->goals.loadGoals();
        FAIL() << "no error";
    } catch (const GameError& e) {
        EXPECT_NE(std::string(e.what()).find("goals.cfg line 2"), std::string::npos) << e.what();
    }
}

// A starting figure counts as given only when its text is "0" or its leading number is above 0.
TEST(StartingFigure, IsGivenAsZeroOrAPositiveNumber) {
    for (const char* given : {"0", "15000", " 0.5"})
        EXPECT_TRUE(goal::isGiven(given)) << '"' << given << '"';
    for (const char* absent : {"", "0.0", "00", " 0", "-500", "$500"})
        EXPECT_FALSE(goal::isGiven(absent)) << '"' << absent << '"';
}

TEST_F(GoalFile, TheDetailsBoxText) {
    goalManager& g = load("<goal>\nname=Mogul\ntype=funds\nvalue=1000000\ndeadline=4\n"
                          "desc=A million in the bank.\n</goal>\n"
                          "<goal>\nname=Odd\nvalue=-2.75\ndeadline=-1\n</goal>\n");
    EXPECT_EQ(g.getGoal(1).popUpText(), "Goal name: Mogul\r\nType: funds\r\nValue: 1000000\r\n"
                                        "Deadline: 4\r\nAchieved: False\r\nDescription:\r\n"
                                        "A million in the bank.");
    // digitsOnly drops the signs.
    EXPECT_EQ(g.getGoal(2).popUpText(), "Goal name: Odd\r\nType: \r\nValue: 2.75\r\n"
                                        "Deadline: 1\r\nAchieved: False\r\nDescription:\r\n");
}

TEST(ShippedGoals, OfferEveryTypeWithStartingFiguresAndReasonableDeadlines) {
    DataFolder data;
    TestGame game(data.path().string());
    game->goals.loadGoals();
    const goalManager& g = game->goals;
    ASSERT_GE(g.getLastGoal(), 8);
    std::set<std::string> types, names;
    bool funds = false, debt = false, cs = false, payplan = false, loan = false;
    for (int i = 1; i <= g.getLastGoal(); ++i) {
        const goal& x = g.getGoal(i);
        types.insert(x.getType());
        names.insert(x.getName());
        EXPECT_FALSE(x.getName().empty()) << i;
        EXPECT_GE(x.getDesc().size(), 40u) << x.getName();
        EXPECT_GE(x.getDeadline(), 0) << x.getName(); // deadline 0: one year ...
        EXPECT_LE(x.getDeadline(), 4) << x.getName(); // ... deadline 4: five years
        funds |= goal::isGiven(x.getFunds());
        debt |= goal::isGiven(x.getDebt());
        cs |= goal::isGiven(x.getCs());
        payplan |= goal::isGiven(x.getPayplan());
        loan |= !x.getDebt().empty() && !x.getCs().empty() && !x.getPayplan().empty();
    }
    EXPECT_EQ(names.size(), static_cast<std::size_t>(g.getLastGoal())) << "names repeat";
    EXPECT_EQ(types, (std::set<std::string>{"funds", "rating", "purchase", "debt", "creditscore"}));
    EXPECT_TRUE(funds && debt && cs && payplan && loan);
}
