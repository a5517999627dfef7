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
    ASSERT_EQ(staff.employeeCount(), 4);
    EXPECT_EQ(emp(1).name, "Bob Brown");
    EXPECT_EQ(emp(2).name, "Dee Dunn");
    EXPECT_EQ(emp(3).name, "Kay King");
    EXPECT_EQ(emp(4).name, "Lou Lane");
    EXPECT_EQ(emp(1).job, 2); // the kept staff keep their jobs
    EXPECT_EQ(holder(2), 1);
    EXPECT_EQ(holder(4), 2);
    EXPECT_EQ(holder(1), 3); // overwritten by the loaded person
    EXPECT_EQ(holder(3), 0); // Cy's post was cleared by the removal
    EXPECT_EQ(holder(5), 0);
    EXPECT_TRUE(log().empty()); // removals by loading say nothing
}

TEST_F(SavedStaffTest, ASavedFillInPutsTheLaterOfTwoIntoThePost) {
    const std::string text = "minWage= 5.15\r\n" + memberBlock({"Ann Able", 2, 5, 2}) +
                             memberBlock({"Hal Hunt", 2, 5, 2, 10, 0, 0, 0, true}) + "</emps>\r\n";
    std::istringstream in(text);
    LineReader r(in, "test.zvn");
    staff.loadEmployees(r);
    EXPECT_EQ(holder(2), 2);
    emp(2).nextDay(); // the fill-in ends while the post still names Hal
    EXPECT_EQ(emp(2).job, 0);
    EXPECT_EQ(holder(2), 2);
}
