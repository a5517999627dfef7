#pragma once
#include "core/GameError.h"
#include "core/LineFile.h"
#include "session/Game.h"
#include "staff/employeeManager.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

namespace zorvane::test {

using Ints = std::vector<int>;
using Names = std::vector<std::string>;

// The error `f` throws (no value, a failed test, if it throws none).
template <class F> std::optional<GameError> thrown(F f) {
    try {
        f();
    } catch (const GameError& e) {
        return e;
    }
    return std::nullopt;
}

// The staff's math, as each test knows it. Probation is long: no learning or anger unless a
// test says so.
inline const char* const staffMath =
    "minwage=5.15; emppos0name=None; emppos1name=Janitor; emppos2name=Usher;"
    "emppos3name=Concessions Clerk; emppos4name=Ticket Seller; emppos5name=Projectionist;"
    "emppos6name=Assistant Manager; emppos7name=Manager; empposition1=5.5; empposition2=6;"
    "empposition3=6.5; empposition4=7.25; empposition5=8.25; empposition6=10;"
    "empposition7=13; empraisemonths=12; empraisemin=0.25; emptraining=1000; empexpsave=700;"
    "emprelchance=10; empambchance=5; empexpchance=5; empexpoverlimit=1; empangrynowork=10;"
    "empangryoverqualified=20; empangrynopay=25; empangryquit=100; empangrycalmdown=2;"
    "empprobation=1000; empoverqualifiedquitchance=20; emphours=16; empvinnycost=150;"
    "empstat1name=Terrible; empstat2name=Awful; empstat3name=Poor; empstat4name=Mediocre;"
    "empstat5name=Average; empstat6name=Decent; empstat7name=Good; empstat8name=Great;"
    "empstat9name=Excellent; empstat10name=Superb";

// Twelve different candidates, one for each place a test may draw.
inline std::string twelveCandidates() {
    return "# test candidates\n"
           "Ann Able|1|10|5\nBob Brown|2|10|5\nCy Cole|3|10|5\nDee Dunn|4|10|5\n"
           "Eve East|5|10|5\nFay Ford|6|10|5\nGus Gray|7|10|5\nHal Hunt|1|10|6\n"
           "Ida Irving|2|10|7\nJo Jones|3|10|8\nKay King|4|10|9\nLou Lane|5|10|4\n";
}

// A staff member as a test writes it down.
struct Member {
    std::string name;
    int exp = 1;
    int amb = 5;
    int job = 0;
    int rel = 10;
    int anger = 0;
    int daysworked = 0;
    int daysemployed = 0;
    bool fillingin = false;
};

inline std::string memberBlock(const Member& m) {
    std::ostringstream s;
    s << "<employee>\r\nname=" << m.name << "\r\nexp=" << m.exp << "\r\nrel=" << m.rel
      << "\r\namb=" << m.amb << "\r\nanger=" << m.anger << "\r\nangerreason=\r\njob=" << m.job
      << "\r\ndaysworked=" << m.daysworked << "\r\ndaysemployed=" << m.daysemployed
      << "\r\nfillingin=" << (m.fillingin ? 1 : 0)
      << "\r\nmyPicSkin=1\r\nmyPicGlasses=1\r\nmyPicHair=1\r\n</employee>\r\n";
    return s.str();
}

// A game on an empty folder (plus a candidates' file), with the staff's math and the posts
// set up, and no day run: each test drives exactly the operations it is about.
class StaffTest : public ::testing::Test {
  protected:
    TempDir dir;
    TestGame tg{dir.path().string()};
    Game& g = *tg;
    employeeManager& staff = g.employees;

    void SetUp() override {
        dir.write("employees.cfg", twelveCandidates());
        tg.math(staffMath);
        staff.positionsSetup();
        g.finances.funds = 100000;
        tg.screen.lines.clear();
    }

    // Puts people on the staff the way a saved game does (their jobs fill the posts).
    void setStaff(const std::vector<Member>& people) {
        std::string text = "minWage= 5.15\r\n";
        for (const Member& m : people)
            text += memberBlock(m);
        text += "</emps>\r\n";
        std::istringstream in(text);
        LineReader reader(in, "test");
        staff.loadEmployees(reader);
        tg.screen.lines.clear();
    }

    employee& emp(int n) { return staff.getEmployee(n); }
    int holder(int p) { return staff.getPosition(p).getMyEmployee(); }
    // The holders of posts 1 to 7, and the staff's names and jobs in their order.
    template <class F> static auto each(int n, F f) {
        std::vector<decltype(f(1))> v;
        for (int i = 1; i <= n; ++i)
            v.push_back(f(i));
        return v;
    }
    Ints holders() {
        return each(7, [&](int p) { return holder(p); });
    }
    Names names() {
        return each(staff.employeeCount(), [&](int i) { return emp(i).name; });
    }
    Ints jobs() {
        return each(staff.employeeCount(), [&](int i) { return static_cast<int>(emp(i).job); });
    }
    int logged(const std::string& line) { return tg.screen.count(line); }
    const std::vector<std::string>& log() { return tg.screen.lines; }
};

} // namespace zorvane::test
