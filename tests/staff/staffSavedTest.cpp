#include "StaffFixture.h"

#include "core/GameError.h"

using namespace zorvane;
using namespace zorvane::test;

namespace {

class SavedStaffTest : public StaffTest {
  protected:
    std::string saveBoth(Game& game) {
        std::ostringstream out;
        LineWriter w(out);
        game.employees.savePositions(w);
        game.employees.saveEmployees(w);
        return out.str();
    }
    // Reads the two sections as the saved game hands them over: the opening tag has been
    // read by the container.
    static void loadBoth(Game& game, const std::string& text) {
        std::istringstream in(text);
        LineReader r(in, "test.zvn");
        std::string line;
        while (r.readLine(line)) {
            if (line == "<positions>")
                game.employees.loadPositions(r);
            else if (line == "<emps>")
                game.employees.loadEmployees(r);
        }
    }
};

} // namespace

TEST_F(SavedStaffTest, SaveThenLoadGivesTheSameStaffAndPosts) {
    setStaff({{"Ann Able", 1, 5, 1, 10, 3, 40, 50},
              {"Bob Brown", 9, 2, 7, 4, 0, 10, 12},
              {"Cy Cole", 2, 7, 0, 6, 17, 0, 3}});
    emp(1).angerreason = "Need more work";
    emp(2).paid = 1234.5;
    emp(2).trainingcost = 100;
    emp(3).sickdays = 2;
    emp(3).seniority = 3;
    staff.getPosition(4).setWage(9.99);
    staff.minWage = 6.25;
    const std::string first = saveBoth(g);

    TempDir other;
    TestGame fresh(other.path().string());
    setStaffMath(fresh->math);
    fresh->employees.positionsSetup();
    fresh->employees.monthsSinceRaise = 5;
    loadBoth(*fresh, first);
    employeeManager& s = fresh->employees;
    ASSERT_EQ(s.employeeCount(), 3);
    EXPECT_EQ(s.getMinWage(), 6.25);
    EXPECT_EQ(s.monthsSinceRaise, 0);
    EXPECT_EQ(s.getEmployee(2).name, "Bob Brown");
    EXPECT_EQ(s.getEmployee(2).exp, 9);
    EXPECT_EQ(s.getEmployee(1).angerreason, "Need more work");
    EXPECT_EQ(s.getPosition(7).getMyEmployee(), 2);
    EXPECT_EQ(s.getPosition(1).getMyEmployee(), 1);
    EXPECT_EQ(s.getPosition(4).getWage(), 9.99);
    EXPECT_EQ(saveBoth(*fresh), first);
}

TEST_F(SavedStaffTest, AnEmptyStaffHasNoClosingTagAndItsLoadSwallowsTheRest) {
    staff.minWage = 7.5;
    std::ostringstream out;
    LineWriter w(out);
    staff.saveEmployees(w);
    EXPECT_EQ(out.str(), "<emps>\r\nminWage= 7.5\r\n");

    const std::string file = out.str() + "<finances>\r\nfunds=5\r\n</finances>\r\n"
                                         "<calendar>\r\ncurrentday=3\r\n</calendar>\r\n";
    std::istringstream in(file);
    LineReader r(in, "test.zvn");
    std::string line;
    r.readLine(line); // "<emps>", read by the container
    staff.loadEmployees(r);
    EXPECT_TRUE(r.atEnd()); // the later sections went with it
    EXPECT_EQ(staff.getMinWage(), 7.5);
    EXPECT_EQ(staff.employeeCount(), 0);
}

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

TEST_F(SavedStaffTest, TheEmployeeNumbersOfTheFileAreIgnored) {
    std::string block = memberBlock({"Ann Able", 3, 5, 3});
    block.insert(std::string("<employee>\r\n").size(), "num= 42\r\n");
    std::istringstream in("minwage=6\r\n" + block + "</EMPS>\r\n<calendar>\r\n");
    LineReader r(in, "test.zvn");
    staff.loadEmployees(r);
    EXPECT_EQ(emp(1).num, 1);
    EXPECT_EQ(holder(3), 1);
    EXPECT_EQ(staff.getMinWage(), 6);
    std::string next;
    ASSERT_TRUE(r.readLine(next));
    EXPECT_EQ(next, "<calendar>");
}

TEST_F(SavedStaffTest, ThePositionsSectionHoldsSevenWages) {
    std::ostringstream out;
    LineWriter w(out);
    staff.savePositions(w);
    const std::string text = out.str();
    EXPECT_EQ(text.rfind("<positions>\r\n<position>\r\nwage= 5.5\r\n</position>\r\n", 0), 0u);
    EXPECT_EQ(text.substr(text.size() - 14), "</positions>\r\n");
    int blocks = 0;
    for (std::size_t at = 0; (at = text.find("<position>", at)) != std::string::npos; ++at)
        ++blocks;
    EXPECT_EQ(blocks, 7);
}
