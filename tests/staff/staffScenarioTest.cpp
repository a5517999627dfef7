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
