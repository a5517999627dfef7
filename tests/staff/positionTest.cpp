#include "StaffFixture.h"

#include "core/GameError.h"

#include <algorithm>

using namespace zorvane;
using namespace zorvane::test;

namespace {

const char* clampLine = "Cannot set wage below minimum wage, so set wage to minimum instead.";

class PositionTest : public StaffTest {};

// An input box that records what it was asked.
class RecordingDialogs : public ScriptedDialogs {
  public:
    std::string prompt, title, defaultText;
    std::string input(const std::string& p, const std::string& t, const std::string& d) override {
        prompt = p;
        title = t;
        defaultText = d;
        return ScriptedDialogs::input(p, t, d);
    }
};

} // namespace

TEST_F(PositionTest, AWageBelowTheMinimumIsRaisedToItWithAMessage) {
    position& post = staff.getPosition(3);
    post.setWage(5.14);
    EXPECT_EQ(post.getWage(), 5.15);
    EXPECT_EQ(logged(clampLine), 1);
    post.setWage(5.15); // exactly the minimum passes quietly
    post.setWage(7);
    EXPECT_EQ(post.getWage(), 7);
    EXPECT_EQ(logged(clampLine), 1);
}

TEST_F(PositionTest, OpeningWagesBelowTheMinimumAreClampedAtStartUp) {
    g.math.empposition[1] = 4;
    g.math.empposition[2] = 3;
    tg.screen.lines.clear();
    staff.positionsSetup();
    EXPECT_EQ(logged(clampLine), 2);
    EXPECT_EQ(staff.getPosition(1).getWage(), 5.15);
    EXPECT_EQ(staff.getPosition(7).getWage(), 13);
    EXPECT_EQ(staff.getPosition(5).getMyNum(), 5);
    ASSERT_EQ(staff.positionList().size(), 8u);
    EXPECT_EQ(staff.positionList()[0], "0-None");
    EXPECT_EQ(staff.positionList()[3], "3-Concessions Clerk");
}

TEST_F(PositionTest, TheInputBoxAsksForTheWageOfThePost) {
    TempDir folder;
    RecordingDialogs dialogs;
    GameSetup setup;
    setup.folder = folder.path().string();
    setup.dialogs = &dialogs;
    Game game(setup);
    setStaffMath(game.math);
    game.employees.positionsSetup();
    dialogs.inputs.push_back("8.75");
    game.employees.getPosition(4).setWageInput();
    EXPECT_EQ(dialogs.prompt, "Enter new wage for position of Ticket Seller");
    EXPECT_EQ(dialogs.title, "Set position wage");
    EXPECT_EQ(dialogs.defaultText, "7.25");
    EXPECT_EQ(game.employees.getPosition(4).getWage(), 8.75);
}

TEST_F(PositionTest, WhatThePlayerTypesIsReadAsItsLeadingNumber) {
    position& post = staff.getPosition(2);
    const auto enter = [&](const std::string& text) {
        tg.dialogs.inputs.push_back(text);
        post.setWageInput();
    };
    enter("9.5 an hour");
    EXPECT_EQ(post.getWage(), 9.5);
    EXPECT_EQ(logged(clampLine), 0);
    enter("lots"); // no number: a wish for 0, clamped
    EXPECT_EQ(post.getWage(), 5.15);
    EXPECT_EQ(logged(clampLine), 1);
    enter("12");
    enter("$12"); // a dollar sign first: no leading number either
    EXPECT_EQ(post.getWage(), 5.15);
    EXPECT_EQ(logged(clampLine), 2);
    enter("11");
    tg.screen.refreshed.clear();
    post.setWageInput(); // nothing queued: Cancel, an empty answer
    EXPECT_EQ(post.getWage(), 11);
    EXPECT_NE(std::find(tg.screen.refreshed.begin(), tg.screen.refreshed.end(), View::Positions),
              tg.screen.refreshed.end());
}

TEST_F(PositionTest, TheBlockHoldsTheWageOnly) {
    staff.getPosition(6).setWage(10.5);
    std::ostringstream out;
    LineWriter w(out);
    staff.getPosition(6).saveSelf(w);
    EXPECT_EQ(out.str(), "<position>\r\nwage= 10.5\r\n</position>\r\n");
}

TEST_F(PositionTest, LoadedWagesAreTakenAsTheyStandBelowTheMinimum) {
    std::istringstream in("<position>\r\nWAGE=1.5\r\n</position>\r\n<position>\r\nx=1\r\n"
                          "wage=$3\r\n</position>\r\n</positions>\r\nrest\r\n");
    LineReader r(in, "test");
    staff.loadPositions(r);
    EXPECT_EQ(staff.getPosition(1).getWage(), 1.5);
    EXPECT_EQ(staff.getPosition(2).getWage(), 0); // "$3" has no leading number
    EXPECT_EQ(staff.getPosition(3).getWage(), 6.5);
    EXPECT_EQ(logged(clampLine), 0);
    std::string next;
    ASSERT_TRUE(r.readLine(next));
    EXPECT_EQ(next, "rest");
}

TEST_F(PositionTest, ABlockPastTheSeventhPostIsABoundsError) {
    std::string text;
    for (int i = 0; i < 8; ++i)
        text += "<position>\r\nwage= 9\r\n</position>\r\n";
    std::istringstream in(text + "</positions>\r\n");
    LineReader r(in, "test");
    try {
        staff.loadPositions(r);
        FAIL() << "eight position blocks loaded";
    } catch (const GameError& e) {
        EXPECT_EQ(e.kind(), GameError::Kind::Bounds);
    }
}

TEST_F(PositionTest, ADaysPayIsSixteenHoursWhateverEmphoursSays) {
    g.math.emphours = 8;
    staff.getPosition(1).setWage(6);
    EXPECT_EQ(staff.getPosition(1).dayPay(), 96);
}
