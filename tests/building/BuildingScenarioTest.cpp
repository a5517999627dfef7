#include "Simulator.h"
#include "support/SimScenario.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

using namespace zorvane;
using namespace zorvane::test;
using nlohmann::json;

namespace {

struct BuildingScenario : SimScenario {
    void start() { SimScenario::start(5); }
};

} // namespace

TEST_F(BuildingScenario, TheFourButtonsAndAMonthOfRent) {
    data.setMath({{"buildingconditioninit", "90"},
                  {"buildingseating", "120"},
                  {"buildingremodelcost", "1500"},
                  {"buildingrenovationcost", "800"},
                  {"buildingrent", "7500"},
                  {"inflation", "3"},
                  {"buildingconditiondrop", "1"},
                  {"buildingpurchasebase", "250000"},
                  {"initfunds", "60000"}});
    start();
    json s = state();
    EXPECT_EQ(s["building"]["condition"], 90);
    EXPECT_EQ(s["building"]["seating"], 120);
    EXPECT_EQ(s["building"]["rent"], 7500);
    EXPECT_EQ(s["building"]["remodelcost"], 180000);
    EXPECT_EQ(s["building"]["IamBroken"], false);
    const double funds = s["funds"].get<double>();
    log();

    run("repair");
    run("buybuilding");
    run("remodel");
    std::string text = log();
    EXPECT_TRUE(has(text, "Your theater is not out of order, no repairs are needed."));
    EXPECT_TRUE(has(text, "You cannot yet afford to buy your theater, either continue paying "
                          "rent or take out a loan."));
    EXPECT_TRUE(has(text, "You can't afford to remodel!  Perhaps you could take out a loan?"));
    EXPECT_EQ(state()["funds"].get<double>(), funds);

    run("renovate"); // 10 points of wear at 800
    s = state();
    EXPECT_EQ(s["building"]["condition"], 100);
    EXPECT_EQ(s["funds"].get<double>(), funds - 8000);

    run("day 28"); // one month's turn: a point of wear and the rent with a month's inflation
    s = state();
    EXPECT_EQ(s["building"]["condition"], 99);
    EXPECT_DOUBLE_EQ(s["building"]["totalRentPaid"].get<double>(), 7725);
    EXPECT_EQ(s["building"]["rent"], 7500);
    EXPECT_EQ(s["building"]["monthsWithoutPayingRent"], 0);
}

TEST_F(BuildingScenario, UnpaidRentLosesTheGameAfterTheGrace) {
    data.setMath({{"fundsmin", "0"}, {"buildingrentgrace", "0"}, {"buildingrent", "7500"}});
    start();
    simulator->game().finances.setFunds(300);
    run("day 28");
    EXPECT_TRUE(has(log(), "You have not paid your rent this month, if you go 0 month(s) without "
                           "paying rent you will lose this game!"));
    json s = state();
    EXPECT_EQ(s["building"]["monthsWithoutPayingRent"], 1);
    EXPECT_EQ(s["loseShown"], 0);
    run("day 28");
    s = state();
    EXPECT_EQ(s["loseShown"], 1);
    EXPECT_EQ(s["building"]["monthsWithoutPayingRent"], 1);
}
