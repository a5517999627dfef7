#include "Simulator.h"
#include "support/SimScenario.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <sstream>

using namespace zorvane;
using namespace zorvane::test;

namespace {

const char* cannotLine = "Cannot do business today: Not all employee positions are filled";

class StaffScenario : public SimScenario {
protected:
    employeeManager& staff() { return game().employees; }
    std::vector<std::string> newLog() { return logLines(); }
    bool allFilled() {
        for (int p = 1; p <= 7; ++p)
            if (staff().getPosition(p).getMyEmployee() < 1)
                return false;
        return true;
    }
};

} // namespace

TEST_F(StaffScenario, HiringUntilEveryPostIsFilledOpensTheTheaterAndPaysWagesUnderLabor) {
    // Nobody is ever sick, so each business day pays exactly the seven wages.
    data.setMath({{"emprelchance", "100"}});
    start(7);
    EXPECT_EQ(count(newLog(), cannotLine), 1); // the first day of start-up
    // Hire the applicant who fits an open post, day after day, until all seven are filled.
    for (int day = 0; day < 60 && !allFilled(); ++day) {
        for (int row = 1; row <= staff().candidateCount();) {
            const int level = staff().getCandidate(row).getMyExp();
            if (staff().getPosition(level).getMyEmployee() < 1)
                run("hire " + std::to_string(row));
            else
                ++row;
        }
        if (!allFilled())
            run("day");
    }
    ASSERT_TRUE(allFilled());
    newLog();
    const nlohmann::json before = state();
    double wages = 0;
    for (const auto& p : before["positions"])
        wages += p["wage"].get<double>() * 16;
    double labor = before["deplabor"].get<double>();
    for (int day = 0; day < 5; ++day) {
        run("day");
        const std::vector<std::string> lines = newLog();
        EXPECT_EQ(count(lines, cannotLine), 0) << "day " << day;
        const nlohmann::json s = state();
        EXPECT_NEAR(s["deplabor"].get<double>() - labor, wages, 1e-6) << "day " << day;
        labor = s["deplabor"].get<double>();
    }
    const nlohmann::json after = state();
    for (const auto& e : after["employees"]) {
        if (e["job"].get<int>() > 0) {
            EXPECT_EQ(e["daysworked"].get<int>(), 5) << e["name"];
        }
    }
}

TEST_F(StaffScenario, CommandsReachTheStaffAndStateShowsIt) {
    start(3);
    nlohmann::json s = state();
    ASSERT_EQ(s["hire"].size(), 10u);
    EXPECT_TRUE(s["hire"][0].contains("trainingcost"));
    EXPECT_EQ(s["positions"].size(), 7u);
    EXPECT_EQ(s["monthsSinceRaise"], 0);
    const std::string first = s["hire"][0]["name"];
    const std::string second = s["hire"][1]["name"];
    run("hire 1");
    run("hire 1");
    s = state();
    ASSERT_EQ(s["employees"].size(), 2u);
    EXPECT_EQ(s["employees"][0]["name"], first);
    EXPECT_EQ(s["employees"][1]["name"], second);
    EXPECT_EQ(s["employees"][1]["num"], 2);
    EXPECT_EQ(s["hire"].size(), 8u);

    run("assign 1 0"); // to "0-None"
    EXPECT_EQ(staff().getEmployee(1).job, 0);
    run("assign 1 7"); // moving up is always allowed
    EXPECT_EQ(state()["positions"][6]["myEmployee"], 1);

    run("input 9.25");
    run("wage 2");
    EXPECT_EQ(state()["positions"][1]["wage"], 9.25);

    run("fire 1");
    s = state();
    ASSERT_EQ(s["employees"].size(), 1u);
    EXPECT_EQ(s["employees"][0]["name"], second);
    EXPECT_EQ(s["employees"][0]["num"], 1);
    EXPECT_EQ(s["positions"][6]["myEmployee"], 0);

    EXPECT_THROW(run("hire 11"), sim::ScriptError);
    EXPECT_THROW(run("assign 1 8"), sim::ScriptError);
    EXPECT_THROW(run("assign 5 1"), sim::ScriptError);
    EXPECT_THROW(run("wage 0"), sim::ScriptError);
}
