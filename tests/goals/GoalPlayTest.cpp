// A goal in play: its starting figures, its daily test, its deadline, the won flow and the
// Goal menu.
#include "core/GameError.h"
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace zorvane;
using namespace zorvane::test;

namespace {

const std::string achievedLine = "You have achieved your goal!";
const std::string failedLine = "You have failed to achieve your goal in time";
const std::string continueQuestion = "Would you like to continue playing?";

std::string goalBlock(const std::string& lines) {
    return "<goal>\r\n" + lines + "</goal>\r\n";
}

struct GoalPlay : ::testing::Test {
    DataFolder data;
    std::unique_ptr<TestGame> session;

    void SetUp() override { restart(); }
    void restart() {
        session = std::make_unique<TestGame>(data.path().string(), 3);
        game().startup();
    }
    Game& game() { return **session; }
    goalManager& goals() { return game().goals; }
    RecordingDialogs& dialogs() { return session->dialogs; }
    RecordingScreen& screen() { return session->screen; }

    // Replaces goals.cfg and reads it again: targets can then be set from today's figures.
    void useGoals(const std::string& blocks) {
        data.write("goals.cfg", blocks);
        goals().loadGoals();
    }
    // "Play !" with goal 1 picked in the list.
    void play(int index = 1) {
        goals().selectGoal(index);
        game().startPlay(index);
    }
    int count(const std::string& line) const { return session->screen.count(line); }
    void setYear(int year) { game().calendar.currentyear = year; }
    // One daily test, answering the won question with `answer` should it come.
    void test(Answer answer = Answer::Yes) {
        dialogs().answers = {answer};
        goals().goalsNextDay();
        dialogs().answers.clear();
    }
};

std::string num(double v) {
    return numberText(v);
}

} // namespace

TEST_F(GoalPlay, AReachedGoalIsShownAndPlayGoesOnWithoutIt) {
    useGoals(goalBlock("name=Grand\r\ntype=funds\r\nvalue=1000\r\ndeadline=1\r\n"));
    play();
    game().finances.setFunds(1000);
    test(Answer::Yes);
    EXPECT_TRUE(goals().selected().getAchieved());
    EXPECT_EQ(count(achievedLine), 1);
    EXPECT_EQ(screen().goalPictures, 1);
    EXPECT_EQ(game().goalShown, 1);
    ASSERT_FALSE(dialogs().asked.empty());
    EXPECT_EQ(dialogs().asked.back(), continueQuestion);
    EXPECT_EQ(dialogs().buttons.back(), Buttons::YesNo);
    // Yes: play on as free play would, with the goal kept as reached and tested no more.
    EXPECT_EQ(goals().getSelected(), 1);
    setYear(5);
    test();
    EXPECT_EQ(count(achievedLine), 1);
    EXPECT_EQ(count(failedLine), 0);
    EXPECT_EQ(game().goalShown, 1);
    // No asks the quit question: Cancel there plays on, No ends the process.
    setYear(0);
    useGoals(goalBlock("type=funds\r\nvalue=1\r\ndeadline=3\r\n"));
    goals().selectGoal(1);
    dialogs().answers = {Answer::No, Answer::Cancel};
    goals().goalsNextDay();
    EXPECT_EQ(dialogs().asked.back(), "Save your theater before quitting?");
    EXPECT_TRUE(goals().selected().getAchieved());
    useGoals(goalBlock("type=funds\r\nvalue=1\r\ndeadline=3\r\n"));
    goals().selectGoal(1);
    dialogs().answers = {Answer::No, Answer::No};
    EXPECT_THROW(goals().goalsNextDay(), ProcessEnded);
}

TEST_F(GoalPlay, TheGoalIsTestedBeforeTheDaysFundsTest) {
    // Funds below the floor at the end of the day: the goal is still reached first.
    useGoals(goalBlock("name=Tiny\r\ntype=funds\r\nvalue=1\r\ndeadline=1\r\n"));
    play();
    ASSERT_GT(game().math.fundsmin, 2);
    game().finances.setFunds(game().math.fundsmin - 1);
    dialogs().answers = {Answer::Yes};
    game().calendar.nextDay();
    EXPECT_TRUE(goals().selected().getAchieved());
    const auto& lines = screen().lines;
    const auto won = std::find(lines.begin(), lines.end(), achievedLine);
    const auto warned = std::find(lines.begin(), lines.end(),
                                  "You're not going to make it, take out a loan now!!!");
    ASSERT_NE(won, lines.end());
    ASSERT_NE(warned, lines.end());
    EXPECT_LT(won - lines.begin(), warned - lines.begin());
}

TEST_F(GoalPlay, EveryTypeIsMetOnItsOwnSideOfTheTarget) {
    useGoals(goalBlock("type=debt\r\nvalue=0\r\ndeadline=3\r\n")); // no debt: met at once
    goals().selectGoal(1);
    test();
    EXPECT_TRUE(goals().selected().getAchieved());
    const double rating = game().rating.getRating();
    const double rent = game().building.getRent();
    const double score = game().loans.getCreditScore();
    game().loans.setupLoan(10000, 0, 12);
    game().loans.startLoan();
    const double balance = game().loans.getBalance();
    ASSERT_GT(balance, 0);
    const std::vector<std::pair<std::string, std::pair<double, double>>> cases = {
        // type, {a target that is met, the nearest that is not}
        {"rating", {rating, rating + 1}},
        {"purchase", {rent, rent - 0.5}},
        {"debt", {balance, balance - 0.01}},
        {"creditscore", {score, score + 0.01}},
        {"FUNDS", {game().finances.getFunds(), game().finances.getFunds() + 0.01}},
    };
    for (const auto& [type, targets] : cases) {
        useGoals(
            goalBlock("type=" + type + "\r\nvalue=" + num(targets.second) + "\r\ndeadline=3\r\n") +
            goalBlock("type=" + type + "\r\nvalue=" + num(targets.first) + "\r\ndeadline=3\r\n"));
        goals().selectGoal(1);
        test();
        EXPECT_FALSE(goals().selected().getAchieved()) << type << " " << targets.second;
        goals().selectGoal(2);
        test();
        EXPECT_TRUE(goals().selected().getAchieved()) << type << " " << targets.first;
    }
    EXPECT_EQ(game().goalShown, 6);
}

// An unknown type is never met; past the deadline a goal fails before its target is tested.
TEST_F(GoalPlay, PastTheDeadlineAGoalFailsUnmet) {
    useGoals(goalBlock("type=profit\r\nvalue=-1000000\r\ndeadline=0\r\n") +
             goalBlock("type=funds\r\nvalue=0\r\ndeadline=0\r\n"));
    play(1);
    test();
    EXPECT_FALSE(goals().selected().getAchieved());
    setYear(1);
    for (int g = 1; g <= 2; ++g) {
        play(g);
        test();
        EXPECT_EQ(count(failedLine), g);
        EXPECT_FALSE(goals().getGoal(g).getAchieved());
        EXPECT_EQ(goals().getSelected(), 0);
    }
    EXPECT_EQ(count(achievedLine), 0);
}

TEST_F(GoalPlay, ADeadlineFailsTheGoalIntoFreePlay) {
    useGoals(goalBlock("name=Rich\r\ntype=funds\r\nvalue=1e12\r\ndeadline=1\r\n"));
    play();
    setYear(1);
    test();
    EXPECT_EQ(count(failedLine), 0); // the deadline year itself is still in time
    setYear(2);
    test();
    EXPECT_EQ(count(failedLine), 1);
    EXPECT_EQ(goals().getSelected(), 0);
    EXPECT_EQ(game().loseShown, 0); // failing a goal is no loss
    setYear(30);
    test();
    EXPECT_EQ(count(failedLine), 1); // free play from now on, never tested
    EXPECT_EQ(count(achievedLine), 0);
    // It can be picked again through the Goal menu, and fails again at the next test.
    goals().selectGoal(1);
    test();
    EXPECT_EQ(count(failedLine), 2);
    // With no deadline line (deadline 0) the first day of the next year fails it.
    restart();
    useGoals(goalBlock("type=funds\r\nvalue=1e12\r\n"));
    play();
    Calendar& cal = game().calendar;
    cal.currentday = 6; // the year's last day
    cal.currentweek = 3;
    cal.currentmonth = 11;
    cal.nextDay();
    EXPECT_EQ(cal.currentyear, 1);
    EXPECT_EQ(count(failedLine), 1);
}

TEST_F(GoalPlay, StartingFundsOnlyWhenReallyGiven) {
    const double init = game().math.initfunds;
    const std::vector<std::pair<std::string, double>> cases = {
        {"funds=0\r\n", 0},
        {"funds=\r\n", init},
        {"", init},
        {"funds=0.0\r\n", init},
        {"funds=-5\r\n", init},
        {"funds=15000\r\n", 15000},
        {"funds=2500.75 or so\r\n", 2500.75},
    };
    for (const auto& [line, expected] : cases) {
        useGoals(goalBlock("name=x\r\n" + line));
        game().finances.setFunds(init);
        play();
        EXPECT_EQ(game().finances.getFunds(), expected) << line;
    }
}

// Debt, score and payments together start a loan (an empty key counts as given, but a score
// of 0 is not applied). The debt is offered before the goal's score stands, so the opening
// score's maximum cuts it.
TEST_F(GoalPlay, DebtScoreAndPaymentsTogetherStartTheLoan) {
    const double score = game().loans.getCreditScore(), funds = game().finances.getFunds();
    const double openingMax = score * game().math.loanmlv;
    ASSERT_GT(openingMax, 20000);
    struct Case {
        std::string lines;
        double score, balance;
        int payPlan;
    };
    const Case cases[] = {
        {"debt=20000\r\ncs=42\r\npayplan=24\r\n", 42, 20000, 24},
        {"cs=77\r\n", 77, 0, 0},
        {"debt=8000\r\ncs=\r\npayplan=12\r\n", score, 8000, 12},
        {"debt=" + num(openingMax * 2) + "\r\ncs=100\r\npayplan=18\r\n", 100, openingMax, 18},
        {"debt=5000\r\npayplan=12\r\n", score, 0, 0}, // the offer is still filled in
    };
    for (const Case& c : cases) {
        restart();
        useGoals(goalBlock(c.lines));
        play();
        loanManager& loans = game().loans;
        EXPECT_EQ(loans.getCreditScore(), c.score) << c.lines;
        EXPECT_EQ(loans.getBalance(), c.balance) << c.lines;
        EXPECT_EQ(game().finances.getFunds(), funds + c.balance) << c.lines;
        EXPECT_EQ(count("Congrats, you're now in debt!"), c.balance > 0 ? 1 : 0) << c.lines;
        if (c.balance > 0) {
            EXPECT_EQ(loans.loanAmount, c.balance) << c.lines;
            EXPECT_EQ(loans.payPlan, c.payPlan) << c.lines;
        }
    }
    EXPECT_EQ(game().loans.offerAmount, 5000);
}

TEST_F(GoalPlay, SelectingAndStartingFollowTheList) {
    useGoals(goalBlock("name=One\r\ndesc=First goal\r\nfunds=11111\r\n") +
             goalBlock("name=Two\r\ndesc=Second goal\r\nfunds=22222\r\n"));
    goals().selectGoal(2);
    EXPECT_EQ(goals().getSelected(), 2);
    EXPECT_EQ(screen().details.back(), "Second goal");
    goals().selectGoal(3); // beyond the list: nothing
    EXPECT_EQ(goals().getSelected(), 2);
    EXPECT_EQ(screen().details.size(), 1u);
    goals().selectGoal(-1); // no line picked: nothing
    EXPECT_EQ(goals().getSelected(), 2);
    EXPECT_EQ(screen().details.size(), 1u);

    game().finances.setFunds(5);
    goals().startGoal(-1); // no list selection
    goals().startGoal(3);
    EXPECT_EQ(game().finances.getFunds(), 5);
    goals().startGoal(1); // the list index counts, not the selection
    EXPECT_EQ(game().finances.getFunds(), 11111);
    EXPECT_EQ(goals().getSelected(), 2);
    game().finances.setFunds(5);
    game().startPlay(-1); // "Play !" with no line picked keeps the goal in force
    EXPECT_EQ(goals().getSelected(), 2);
    EXPECT_EQ(game().finances.getFunds(), 5);
    // The Goal menu shows the title screen, then the details.
    useGoals(
        goalBlock("name=Shown\r\ntype=rating\r\nvalue=60\r\ndeadline=2\r\ndesc=Be loved.\r\n"));
    goals().selectGoal(1);
    goals().showGoalInfo();
    EXPECT_EQ(screen().titleShown, 1);
    EXPECT_EQ(dialogs().asked.back(),
              "Goal name: Shown\r\nType: rating\r\nValue: 60\r\n"
              "Deadline: 2\r\nAchieved: False\r\nDescription:\r\nBe loved.");
    EXPECT_EQ(dialogs().buttons.back(), Buttons::Ok);
}
