#include "StaffFixture.h"

#include "core/LineFile.h"

using namespace zorvane;
using namespace zorvane::test;

namespace {

// Loading a saved staff over the staff of the running game.
using SavedStaffTest = StaffTest;

} // namespace

TEST_F(SavedStaffTest, LoadingOverFiveKeepsTwoOfTheOldStaffInFront) {
    setStaff({{"Ann Able", 1, 5, 1},
              {"Bob Brown", 2, 5, 2},
              {"Cy Cole", 3, 5, 3},
              {"Dee Dunn", 4, 5, 4},
              {"Eve East", 5, 5, 5}});
    const std::string text = "minWage= 5.15\r\n" + memberBlock({"Kay King", 1, 5, 1}) +
                             memberBlock({"Lou Lane", 2, 5, 0}) + "</emps>\r\n";
    std::istringstream in(text);
    LineReader r(in, "test.zvn");
    staff.loadEmployees(r);
    EXPECT_EQ(names(), Names({"Bob Brown", "Dee Dunn", "Kay King", "Lou Lane"}));
    EXPECT_EQ(jobs(), Ints({2, 4, 1, 0})); // the kept staff keep their jobs
    // Post 1 is overwritten by the loaded person; Cy's post was cleared by the removal.
    EXPECT_EQ(holders(), Ints({3, 1, 0, 2, 0, 0, 0}));
    EXPECT_TRUE(log().empty()); // removals by loading say nothing
}

TEST_F(SavedStaffTest, ASavedFillInPutsTheLaterOfTwoIntoThePost) {
    setStaff({{"Ann Able", 2, 5, 2}, {"Hal Hunt", 2, 5, 2, 10, 0, 0, 0, true}});
    EXPECT_EQ(holder(2), 2);
    emp(2).nextDay(); // the fill-in ends while the post still names Hal
    EXPECT_EQ(jobs(), Ints({2, 0}));
    EXPECT_EQ(holder(2), 2);
}
