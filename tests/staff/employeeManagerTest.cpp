#include "StaffFixture.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "staff/StaffTexts.h"

using namespace zorvane;
using namespace zorvane::test;

namespace {

class ManagerTest : public StaffTest {
  protected:
    // Seven holders, one per post, with the given experience (default: exactly qualified).
    std::vector<Member> fullStaff() {
        std::vector<Member> people;
        const char* names[] = {"Ann Able", "Bob Brown", "Cy Cole", "Dee Dunn",
                               "Eve East", "Fay Ford",  "Gus Gray"};
        for (int p = 1; p <= 7; ++p)
            people.push_back({names[p - 1], p, 5, p});
        return people;
    }
    // The draws that make the day's ten applicants the first ten of the twelve, in order.
    void forceFirstTenApplicants() {
        for (int i = 0; i < 10; ++i)
            g.rng.force((i + 0.5) / 12);
    }
};

double roll(int r) {
    return (r - 1) / 100.0 + 0.001;
}

std::string vinnyLine(const std::string& post) {
    return "I had to call in cousin vinny to fill the position of " + post +
           ".  I had to pay him $150.00";
}

} // namespace

// ---------------------------------------------------------------- fill-ins

// Three passes over the idle staff beside the seven holders: exactly qualified (most ambitious
// first, ambition 0 never), over-qualified (least ambitious first, ambition 100 never), then
// under-qualified (most ambitious); the first of equals keeps it.
struct FillInCase {
    const char* name;
    int post, sick, chosen;
    std::vector<Member> extra; // numbered from 8
};

// clang-format off
const FillInCase fillInCases[] = {
    {"ExactPassMostAmbitiousFirstOfEquals", 3, 3, 9,
     {{"Hal Hunt", 3, 0}, {"Ida Irving", 3, 6}, {"Jo Jones", 3, 6}, {"Kay King", 4, 1}}},
    {"OverPassLeastAmbitious", 3, 3, 10,
     {{"Hal Hunt", 2, 9}, {"Ida Irving", 6, 4}, {"Jo Jones", 9, 2}, {"Kay King", 5, 2}}},
    {"OverPassNeverAmbitionOfAHundred", 3, 3, 9, {{"Hal Hunt", 6, 100}, {"Ida Irving", 1, 1}}},
    {"UnderPassMostAmbitiousSkippingTheBusy", 4, 4, 9,
     {{"Hal Hunt", 1, 3}, {"Ida Irving", 2, 7}, {"Jo Jones", 2, 9, 5, 10, 0, 0, 0, true}}},
    // The sick person (9) is left out even when idle.
    {"NeverTheSickPerson", 4, 9, 8, {{"Hal Hunt", 1, 3}, {"Ida Irving", 2, 7}}},
};
// clang-format on

struct FillInTable : ManagerTest, ::testing::WithParamInterface<FillInCase> {};

TEST_P(FillInTable, TakesTheRightStandIn) {
    const FillInCase& c = GetParam();
    std::vector<Member> people = fullStaff();
    people.insert(people.end(), c.extra.begin(), c.extra.end());
    setStaff(people);
    EXPECT_EQ(staff.findFillIn(c.post, c.sick), c.chosen);
    EXPECT_EQ(emp(c.chosen).job, c.post);
    EXPECT_TRUE(emp(c.chosen).fillingin);
    EXPECT_EQ(holder(c.post), c.post); // the post's holder does not change
    EXPECT_EQ(log(),
              Names{emp(c.chosen).name + " filled in today, doing " + staff.positionName(c.post)});
}

INSTANTIATE_TEST_SUITE_P(Passes, FillInTable, ::testing::ValuesIn(fillInCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(ManagerTest, NobodyIdleCallsCousinVinnyWhoIsPaidUnderLabor) {
    setStaff(fullStaff());
    g.finances.funds = 100;
    EXPECT_EQ(staff.findFillIn(5, 5), 0);
    EXPECT_EQ(g.finances.funds, 100); // logged even when he cannot be paid
    EXPECT_EQ(g.finances.deplabor, 0);
    g.finances.funds = 1000;
    EXPECT_EQ(staff.findFillIn(6, 6), 0); // slot 1: charged but not logged a second time
    EXPECT_EQ(g.finances.deplabor, 150);
    g.resetLogSlots(); // the next day
    staff.findFillIn(6, 6);
    EXPECT_EQ(g.finances.deplabor, 300);
    EXPECT_EQ(log(), Names({vinnyLine("Projectionist"), vinnyLine("Assistant Manager")}));
    // His fee is printed with cents and no leading zero.
    EXPECT_EQ(vinnyMoney(0.5), "$.50");
    EXPECT_EQ(vinnyMoney(1234567.5), "$1,234,567.50");
    EXPECT_EQ(vinnyMoney(0), "$.00");
}

TEST_F(ManagerTest, TwoSickAndOneIdle) {
    staff.loadEmployeeDatabase();
    std::vector<Member> people = fullStaff();
    people[1].rel = 1; // Bob Brown, post 2
    people[4].rel = 1; // Eve East, post 5
    people.push_back({"Hal Hunt", 2, 5});
    setStaff(people);
    forceFirstTenApplicants();
    // The sick rolls of posts 1 to 7: attendance 100 for rel 10, 10 for rel 1.
    g.rng.force({roll(1), roll(50), roll(1), roll(1), roll(50), roll(1), roll(1)});
    const double before = g.finances.funds;
    staff.employeesNextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    // Eve's call is not logged: slot 3, once a day.
    EXPECT_EQ(log(), Names({"Bob Brown has called in sick today.",
                            "Hal Hunt filled in today, doing Usher", vinnyLine("Projectionist")}));
    // Sick days, days worked and pay of the two sick and the stand-in.
    EXPECT_EQ(std::tuple(emp(2).sickdays, emp(5).sickdays, emp(2).daysworked, emp(8).daysworked,
                         emp(8).paid, emp(5).paid),
              std::tuple(1, 1, 0, 1, 6 * 16, 0));
    // Wages of posts 1, 2 (to the stand-in), 3, 4, 6, 7 and the cousin's fee.
    const double wages = (5.5 + 6 + 6.5 + 7.25 + 10 + 13) * 16;
    EXPECT_DOUBLE_EQ(g.finances.deplabor, wages + 150);
    EXPECT_DOUBLE_EQ(g.finances.funds, before - wages - 150);
    // The stand-in is idle again after the next day's start.
    emp(8).nextDay();
    EXPECT_EQ(emp(8).job, 0);
    EXPECT_FALSE(emp(8).fillingin);
    EXPECT_EQ(holder(2), 2);
}

TEST_F(ManagerTest, NobodyIsPaidOrSickOnADayWithoutBusiness) {
    staff.loadEmployeeDatabase();
    std::vector<Member> people = fullStaff();
    people.pop_back(); // post 7 open, nobody idle to fill it
    setStaff(people);
    forceFirstTenApplicants();
    staff.employeesNextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u); // no sick rolls were made
    EXPECT_EQ(g.finances.deplabor, 0);
    EXPECT_EQ(logged("Cannot do business today: Not all employee positions are filled"), 1);
    EXPECT_EQ(logged("I was unable to fill the position of Manager, you may want to consider "
                     "highering more employees."),
              1);
}

// ---------------------------------------------------------------- removal and renumbering

TEST_F(ManagerTest, RemovalClosesUpTheListAndRenumbersThePosts) {
    setStaff({{"Ann Able", 1, 5, 1},
              {"Bob Brown", 2, 5, 2},
              {"Cy Cole", 1, 5, 0},
              {"Dee Dunn", 4, 5, 4}});
    staff.showEmployeeDetails(2);
    EXPECT_EQ(staff.selectedPosition(), 2); // the panel selects the person's post
    staff.fireEmployee(2);
    EXPECT_FALSE(staff.detailsVisible()); // the person shown is gone
    EXPECT_EQ(log(), Names{"Bob Brown has been canned."});
    EXPECT_EQ(names(), Names({"Ann Able", "Cy Cole", "Dee Dunn"}));
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(emp(i).num, i);
    EXPECT_EQ(holders(), Ints({1, 0, 0, 3, 0, 0, 0}));
    // A number above the count removes nobody and only renumbers.
    emp(2).num = 7;
    staff.removeEmployee(4, "has been canned.");
    EXPECT_EQ(staff.employeeCount(), 3);
    EXPECT_EQ(emp(2).num, 2);
    EXPECT_EQ(log().size(), 1u);
}

TEST_F(ManagerTest, WhoQuitsTakesHisPlaceFromTheNextPersonsDay) {
    g.math.empangrycalmdown = 1;
    setStaff({{"Ann Able", 1, 5, 1, 10, 101, 0, 5},
              {"Bob Brown", 2, 5, 2, 10, 50, 0, 5},
              {"Cy Cole", 3, 5, 3, 10, 50, 0, 5}});
    staff.loadEmployeeDatabase();
    forceFirstTenApplicants();
    staff.employeesNextDay();
    EXPECT_EQ(logged("Ann Able  quit saying 'I'm fed up with this job!!'"), 1);
    EXPECT_EQ(names(), Names({"Bob Brown", "Cy Cole"}));
    EXPECT_EQ(emp(1).daysemployed, 5); // took place 1 after its turn: missed the day
    EXPECT_EQ(emp(2).daysemployed, 6);
}

TEST_F(ManagerTest, AStaffMemberDrawnAsApplicantOnTheDayHeQuitsRemovesTheWrongPerson) {
    staff.loadEmployeeDatabase();
    forceFirstTenApplicants();
    staff.newCandidates();
    staff.hireEmployee(1); // Ann Able, straight into post 1
    staff.hireEmployee(1); // Bob Brown, into post 2
    ASSERT_EQ(staff.employeeCount(), 2);
    emp(2).anger = 200;
    // The next morning Bob is drawn first: his number becomes 1 until the grid renumbers.
    g.rng.force(1.5 / 12);
    for (int i : {0, 2, 3, 4, 5, 6, 7, 8, 9})
        g.rng.force((i + 0.5) / 12);
    staff.employeesNextDay();
    EXPECT_EQ(logged("Ann Able  quit saying 'I'm fed up with this job!!'"), 1);
    EXPECT_EQ(names(), Names{"Bob Brown"});
    EXPECT_EQ(emp(1).num, 1);
}

// ---------------------------------------------------------------- saved staff

// Loading a saved staff over the staff of the running game.
TEST_F(ManagerTest, LoadingOverFiveKeepsTwoOfTheOldStaffInFront) {
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

TEST_F(ManagerTest, ASavedFillInPutsTheLaterOfTwoIntoThePost) {
    setStaff({{"Ann Able", 2, 5, 2}, {"Hal Hunt", 2, 5, 2, 10, 0, 0, 0, true}});
    EXPECT_EQ(holder(2), 2);
    emp(2).nextDay(); // the fill-in ends while the post still names Hal
    EXPECT_EQ(jobs(), Ints({2, 0}));
    EXPECT_EQ(holder(2), 2);
}

// ---------------------------------------------------------------- assignment

// A person refuses to step down below his level (an idle person takes any post); moving up or
// sideways leaves the old post and bumps the holder to idle.
TEST_F(ManagerTest, AssigningRefusesAStepDownAndBumpsTheHolder) {
    setStaff({{"Ann Able", 5, 5, 4},
              {"Bob Brown", 6, 5, 6},
              {"Cy Cole", 5, 5, 0},
              {"Dee Dunn", 7, 5, 7}});
    staff.assignEmployee(1, 3);
    staff.assignEmployee(3, 3);
    staff.assignEmployee(4, 6); // 6 is below exp 7 and job 7
    EXPECT_EQ(log(), Names({"Ann Able: I'm too experienced for that position! No way!",
                            "Dee Dunn: I'm too experienced for that position! No way!"}));
    EXPECT_EQ(jobs(), Ints({4, 6, 3, 7}));
    EXPECT_EQ(holders(), Ints({0, 0, 3, 1, 0, 2, 4}));
    staff.assignEmployee(1, 6); // up: Bob is bumped to idle
    EXPECT_EQ(jobs(), Ints({6, 0, 3, 7}));
    EXPECT_EQ(holders(), Ints({0, 0, 3, 0, 0, 1, 4}));
    staff.assignEmployee(1, 5); // back down to exactly the level: allowed
    EXPECT_EQ(holders(), Ints({0, 0, 3, 0, 1, 0, 4}));
    EXPECT_EQ(log().size(), 2u);
}

TEST_F(ManagerTest, PostZeroTakesTheSelectedEntryOfThePositionList) {
    setStaff({{"Ann Able", 5, 5, 5}, {"Bob Brown", 3, 5, 0}});
    staff.selectPosition(0); // "0-None"
    staff.assignEmployee(1, 0);
    staff.selectPosition(2);
    staff.assignEmployee(2, 0);
    EXPECT_EQ(jobs(), Ints({0, 2}));
    EXPECT_EQ(holders(), Ints({0, 2, 0, 0, 0, 0, 0}));
    EXPECT_THROW(staff.assignEmployee(3, 4), GameError);
    EXPECT_THROW(staff.selectPosition(8), GameError);
}

// ---------------------------------------------------------------- filling open posts

TEST_F(ManagerTest, FillPositionPromotesAQualifiedHolderFromALowerPost) {
    setStaff({{"Ann Able", 5, 3, 2}, {"Bob Brown", 6, 9, 0}, {"Cy Cole", 5, 4, 3}});
    staff.fillPosition(5);
    // Pass 1: Ann (exp 5 > job 2, >= 5) and Cy (amb 4) qualify; Cy is more ambitious. The lower
    // post waits for the next walk.
    EXPECT_EQ(holders(), Ints({0, 1, 0, 0, 3, 0, 0}));
    EXPECT_EQ(log(), Names{"Cy Cole has been promoted to position: Projectionist"});
}

TEST_F(ManagerTest, FillPositionThenTakesIdleQualifiedThenAnyIdle) {
    setStaff({{"Ann Able", 2, 9, 0}, {"Bob Brown", 6, 1, 0}, {"Cy Cole", 1, 9, 0}});
    staff.fillPosition(5); // qualified beats more ambitious
    staff.fillPosition(7); // nobody qualified: the first of the most ambitious idle
    EXPECT_EQ(holders(), Ints({0, 0, 0, 0, 2, 0, 1}));
    EXPECT_EQ(logged("Ann Able has been promoted to position: Manager"), 1);
}

// Only posts at exactly 0 are filled; ambition 0 is passed over, and the failure said once a day.
TEST_F(ManagerTest, FillVacanciesFillsOnlyPostsAtExactlyZeroPassingOverAmbitionZero) {
    setStaff({{"Ann Able", 2, 5, 0}, {"Bob Brown", 3, 5, 0}, {"Cy Cole", 2, 0, 0}});
    staff.getPosition(1).setMyEmployee(9); // a stale number: vacant to readers, not filled
    staff.fillVacancies();
    // Ann and Bob qualify for post 2 with equal ambition: the first wins.
    EXPECT_EQ(holders(), Ints({9, 1, 2, 0, 0, 0, 0}));
    EXPECT_EQ(log(), Names({"Ann Able has been promoted to position: Usher",
                            "Bob Brown has been promoted to position: Concessions Clerk",
                            "I was unable to fill the position of Ticket Seller, you may want to "
                            "consider highering more employees."}));
}

// ---------------------------------------------------------------- hiring

TEST_F(ManagerTest, TheDaysApplicantsAreTenDifferentNamesAndAHireTakesTheOpenPostOfItsLevel) {
    // An empty pool first.
    EXPECT_EQ(thrown([&] { staff.newCandidates(); }).value().kind(), GameError::Kind::Bounds);
    staff.loadEmployeeDatabase();
    g.rng.force({0.5 / 12, 0.5 / 12, 1.5 / 12}); // the second draw repeats a name
    for (int i = 2; i < 10; ++i)
        g.rng.force((i + 0.5) / 12);
    staff.newCandidates();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    ASSERT_EQ(staff.candidateCount(), 10);
    EXPECT_EQ(staff.getCandidate(1).name, "Ann Able");
    EXPECT_EQ(staff.getCandidate(2).name, "Bob Brown");
    for (int r = 1; r <= 10; ++r)
        EXPECT_EQ(staff.getCandidate(r).num, r);
    EXPECT_EQ(staff.getCandidate(1).trainingcost, 900); // shown, so fixed
    // A hire goes straight into the open post of its level.
    g.finances.funds = 500;
    staff.hireEmployee(1); // 900: the applicant stays in the table
    EXPECT_EQ(staff.employeeCount(), 0);
    EXPECT_THROW(staff.hireEmployee(11), GameError);
    g.finances.funds = 5000;
    staff.hireEmployee(3); // Cy Cole, exp 3, 1000 - 300 = 700
    EXPECT_EQ(g.finances.funds, 4300);
    EXPECT_EQ(g.finances.deplabor, 700);
    ASSERT_EQ(staff.candidateCount(), 9);
    EXPECT_EQ(staff.getCandidate(1).name, "Ann Able");
    EXPECT_EQ(staff.getCandidate(3).name, "Dee Dunn");
    EXPECT_EQ(staff.getCandidate(3).num, 3);
    staff.hireEmployee(9); // Jo Jones, exp 3 too: post taken, starts idle
    EXPECT_EQ(log(), Names({"You cannot afford to train this employee!  You need to take out a "
                            "loan if you want to stay in business!!",
                            "Cy Cole is a new member of the team.",
                            "Jo Jones is a new member of the team."}));
    EXPECT_EQ(names(), Names({"Cy Cole", "Jo Jones"}));
    EXPECT_EQ(jobs(), Ints({3, 0}));
    EXPECT_EQ(emp(2).num, 2);
    EXPECT_EQ(holders(), Ints({0, 0, 1, 0, 0, 0, 0}));
}

// ---------------------------------------------------------------- the month

TEST_F(ManagerTest, WagesRiseTogetherEveryRaisePeriodAndKeepTheirDistance) {
    staff.employeesNextMonth(); // a month without staff is not counted
    EXPECT_EQ(staff.monthsSinceRaise, 0);
    setStaff({{"Ann Able", 1, 5, 1}});
    staff.getPosition(3).setWage(5.15); // at the minimum
    tg.screen.lines.clear();
    for (int m = 1; m <= 11; ++m)
        staff.employeesNextMonth();
    EXPECT_EQ(staff.monthsSinceRaise, 11);
    EXPECT_EQ(emp(1).seniority, 11);
    EXPECT_EQ(staff.getMinWage(), 5.15);
    staff.employeesNextMonth();
    EXPECT_EQ(staff.monthsSinceRaise, 0);
    EXPECT_DOUBLE_EQ(staff.getMinWage(), 5.40);
    EXPECT_DOUBLE_EQ(staff.getPosition(3).getWage(), 5.40);
    EXPECT_DOUBLE_EQ(staff.getPosition(7).getWage(), 13.25);
    EXPECT_EQ(log(), Names{"Wages just went up another $0.25"}); // no clamping message
}

// ---------------------------------------------------------------- averages and texts

TEST_F(ManagerTest, AverageAngerCountsAVacantPostAsTheQuitPoint) {
    setStaff({{"Ann Able", 1, 5, 1, 10, 10}, {"Bob Brown", 2, 5, 2, 10, 4}});
    // (10 + 4 + 5 * 100) / 7 = 73.4
    EXPECT_EQ(staff.getAverageAnger(), 73);
    staff.getPosition(3).setMyEmployee(5); // not a valid number: vacant
    EXPECT_EQ(staff.getAverageAnger(), 73);
    EXPECT_EQ(staff.getAverageAmbition(), 0);
    EXPECT_DOUBLE_EQ(staff.getAverageWage(), (5.5 + 6 + 6.5 + 7.25 + 8.25 + 10 + 13) / 7);
}

TEST_F(ManagerTest, TheChartRatesEachHoldersExperienceAgainstThePost) {
    setStaff({{"Ann Able", 2, 5, 1}, {"Bob Brown", 2, 5, 2}, {"Cy Cole", 2, 5, 3}});
    const PositionChart c = positionChart(staff);
    Names rated;
    for (const auto& row : c.rows)
        rated.push_back(row.experience);
    EXPECT_EQ(rated, Names({"Over", "Okay", "Under", "None", "None", "None", "None"}));
    EXPECT_EQ(c.rows[3].employee, "(Position not filled)");
}
