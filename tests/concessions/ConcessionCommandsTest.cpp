#include "Simulator.h"
#include "support/SimScenario.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct StandScript : SimScenario {
    void SetUp() override { start(3); }
    Concession& item(int i) { return game().concessions.item(i); }
};

} // namespace

TEST_F(StandScript, PriceTakesDigitsAndPointsOnly) {
    run("price 0 $1,234.50");
    EXPECT_EQ(item(0).price, 1234.5);
    run("price 0 -2");
    EXPECT_EQ(item(0).price, 2); // the minus sign is dropped
    run("price 0 free");
    EXPECT_EQ(item(0).price, 2); // no digits: 0, refused
}

TEST_F(StandScript, StockTakesTheLeadingNumberRounded) {
    run("stock 1 -20abc");
    EXPECT_EQ(item(1).buypermonth, -20);
    run("stock 1 2.5");
    EXPECT_EQ(item(1).buypermonth, 2);
    run("stock 1 3.5 units");
    EXPECT_EQ(item(1).buypermonth, 4);
}

TEST_F(StandScript, QualityIsClamped) {
    run("quality 2 5");
    EXPECT_EQ(item(2).quality, 2);
    run("quality 2 0");
    EXPECT_EQ(item(2).quality, 0);
}

TEST_F(StandScript, BadItemsAreScriptErrors) {
    EXPECT_THROW(run("quality 5 1"), sim::ScriptError);
    EXPECT_THROW(run("price -1 3"), sim::ScriptError);
    EXPECT_THROW(run("stock x 3"), sim::ScriptError);
    EXPECT_THROW(run("price 1"), sim::ScriptError);
}

TEST_F(StandScript, StateShowsTheFiveItems) {
    run("stock 3 77");
    run("state");
    const auto state = nlohmann::json::parse(out.str());
    ASSERT_EQ(state["concessions"].size(), 5u);
    const auto& hotDog = state["concessions"][3];
    EXPECT_EQ(hotDog["num"], 3);
    EXPECT_EQ(hotDog["buypermonth"], 77);
    for (const char* key : {"name", "quality", "price", "cost", "stock", "lastmonthsales",
                            "thismonthsales", "lastmonthincome", "todaysprofit", "todayssold"})
        EXPECT_TRUE(hotDog.contains(key)) << key;
    EXPECT_EQ(hotDog["name"], item(3).name);
}
