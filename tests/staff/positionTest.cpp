#include "StaffFixture.h"

#include <algorithm>

using namespace zorvane;
using namespace zorvane::test;

namespace {

const char* clampLine = "Cannot set wage below minimum wage, so set wage to minimum instead.";

class PositionTest : public StaffTest {};

} // namespace

TEST_F(PositionTest, AWageBelowTheMinimumIsRaisedToItWithAMessageAlsoAtStartUp) {
    position& post = staff.getPosition(3);
    post.setWage(5.14);
    EXPECT_EQ(post.getWage(), 5.15);
    EXPECT_EQ(logged(clampLine), 1);
    post.setWage(5.15); // exactly the minimum passes quietly
    post.setWage(7);
    EXPECT_EQ(post.getWage(), 7);
    EXPECT_EQ(logged(clampLine), 1);
    g.math.empposition[1] = 4;
    g.math.empposition[2] = 3;
    staff.positionsSetup();
    EXPECT_EQ(logged(clampLine), 3);
    EXPECT_EQ(staff.getPosition(1).getWage(), 5.15);
    EXPECT_EQ(staff.getPosition(7).getWage(), 13);
    EXPECT_EQ(staff.getPosition(5).getMyNum(), 5);
    EXPECT_EQ(staff.positionList(),
              Names({"0-None", "1-Janitor", "2-Usher", "3-Concessions Clerk", "4-Ticket Seller",
                     "5-Projectionist", "6-Assistant Manager", "7-Manager"}));
}

TEST_F(PositionTest, TheInputBoxAsksForTheWageOfThePostAndReadsItsLeadingNumber) {
    tg.dialogs.inputs.push_back("8.75");
    staff.getPosition(4).setWageInput();
    EXPECT_EQ(tg.dialogs.prompt, "Enter new wage for position of Ticket Seller");
    EXPECT_EQ(tg.dialogs.title, "Set position wage");
    EXPECT_EQ(tg.dialogs.defaultText, "7.25");
    EXPECT_EQ(staff.getPosition(4).getWage(), 8.75);
    // What the player types is read as its leading number.
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

TEST_F(PositionTest, ADaysPayIsSixteenHoursWhateverEmphoursSays) {
    g.math.emphours = 8;
    staff.getPosition(1).setWage(6);
    EXPECT_EQ(staff.getPosition(1).dayPay(), 96);
}
