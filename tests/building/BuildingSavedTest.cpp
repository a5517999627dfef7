#include "building/BuildingFixture.h"
#include "core/GameError.h"
#include "core/LineReader.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct BuildingSavedFixture : BuildingFixture {
    BuildingScreen otherScreen;
    ScriptedDialogs otherDialogs;
    std::unique_ptr<Game> other = makeGame(otherScreen, otherDialogs);

    std::string save(const buildingManager& building) {
        std::ostringstream out;
        LineWriter w(out);
        building.saveBuilding(w);
        return out.str();
    }
    // Reads a section as the container hands it over: just behind the open tag.
    void load(buildingManager& building, const std::string& text, const std::string& after = "") {
        std::string body = text;
        const std::string tag = "<building>\r\n";
        if (body.rfind(tag, 0) == 0)
            body = body.substr(tag.size());
        std::istringstream in(body + after);
        LineReader r(in, "test.zvn");
        building.loadBuilding(r);
        std::string rest;
        if (!after.empty()) {
            ASSERT_TRUE(r.readLine(rest));
            EXPECT_EQ(rest, "<next>"); // the closing tag was consumed, nothing more
        }
    }
};

} // namespace

TEST_F(BuildingSavedFixture, TheSectionAsWritten) {
    b().condition = 73;
    b().rent = 7725.5;
    b().totalRentPaid = 15000;
    b().monthsWithoutPayingRent = 1;
    b().showBuilding();
    EXPECT_EQ(save(b()), "<building>\r\n"
                         "condition=73\r\n"
                         "repairCost=0\r\n"
                         "renovateCost=21600\r\n"
                         "rent=7725.5\r\n"
                         "totalRentPaid=15000\r\n"
                         "monthsWithoutPayingRent=1\r\n"
                         "seating=120\r\n"
                         "remodelcost180000\r\n"
                         "IamBroken=0\r\n"
                         "</building>\r\n");
}

TEST_F(BuildingSavedFixture, SaveThenLoadGivesTheSameHouse) {
    money().setFunds(1e7);
    b().condition = 64;
    b().remodel(); // 170 seats, condition 74
    b().totalRentPaid = 22500.25;
    b().rent = 8000.125;
    b().monthsWithoutPayingRent = 2;
    b().showBuilding();
    other->building.remodelcost = b().remodelcost; // not in the file: see the quirk below
    load(other->building, save(b()), "<next>\r\n");
    const buildingManager& o = other->building;
    EXPECT_EQ(o.condition, 74);
    EXPECT_EQ(o.seating, 170);
    EXPECT_EQ(o.rent, 8000.125);
    EXPECT_EQ(o.totalRentPaid, 22500.25);
    EXPECT_EQ(o.monthsWithoutPayingRent, 2);
    EXPECT_EQ(o.renovateCost, b().renovateCost);
    EXPECT_EQ(o.repairCost, 0);
    EXPECT_EQ(save(o), save(b()));
}

TEST_F(BuildingSavedFixture, TheRemodelCostIsNeverRead) {
    other->building.remodelcost = 42;
    load(other->building, save(b()));
    EXPECT_EQ(other->building.remodelcost, 42); // the line has no "=": it is skipped
}

TEST_F(BuildingSavedFixture, AGameSavedBrokenLoadsSound) {
    b().breakDown();
    const std::string text = save(b());
    EXPECT_NE(text.find("IamBroken=1\r\n"), std::string::npos);
    EXPECT_NE(text.find("repairCost=600\r\n"), std::string::npos);
    other->setSpeed(2);
    load(other->building, text);
    EXPECT_TRUE(other->building.isInOrder()); // the flag's key never matches
    EXPECT_EQ(other->building.repairCost, 0); // worked out again for a sound house
    EXPECT_EQ(otherScreen.count(" !!!  YOUR THEATER HAS BROKE DOWN !!! "), 0);
    EXPECT_EQ(other->speed, 2);
}

TEST_F(BuildingSavedFixture, AnyLoadIntoABrokenTheaterBreaksDownAgain) {
    other->building.breakDown();
    other->setSpeed(3);
    EXPECT_EQ(otherScreen.count(" !!!  YOUR THEATER HAS BROKE DOWN !!! "), 1);
    load(other->building, save(b())); // a sound house, saved as such
    EXPECT_FALSE(other->building.isInOrder());
    EXPECT_EQ(otherScreen.count(" !!!  YOUR THEATER HAS BROKE DOWN !!! "), 2);
    EXPECT_EQ(otherScreen.modes, (std::vector<int>{7, 7}));
    EXPECT_EQ(other->speed, 0);
    EXPECT_EQ(other->lastSpeed, 3);
    EXPECT_EQ(other->building.repairCost, 10 * 60);
}

TEST_F(BuildingSavedFixture, KeysIgnoreCaseAndBadLinesAreSkipped) {
    load(b(), "CONDITION=55.5\r\n"
              "=99\r\n"
              "seating 400\r\n"
              "Seating=abc\r\n"
              "RENT= 1234.5 dollars\r\n"
              "unknown=7\r\n"
              "iambroken=1\r\n"
              "MonthsWithoutPayingRent=2.5\r\n"
              "</building>\r\n"
              "condition=10\r\n");
    EXPECT_EQ(b().condition, 56); // rounded half to even
    EXPECT_EQ(b().seating, 0);    // no number: 0
    EXPECT_EQ(b().rent, 1234.5);
    EXPECT_EQ(b().monthsWithoutPayingRent, 2);
    EXPECT_TRUE(b().isInOrder()); // even a lower-case key does not set the flag
    EXPECT_EQ(b().renovateCost, 44 * 800.0);
}

TEST_F(BuildingSavedFixture, MissingKeysKeepTheirValues) {
    b().totalRentPaid = 999;
    load(b(), "condition=50\r\n</building>\r\n");
    EXPECT_EQ(b().condition, 50);
    EXPECT_EQ(b().totalRentPaid, 999);
    EXPECT_EQ(b().seating, 120);
}

TEST_F(BuildingSavedFixture, A16BitFieldOutOfRangeIsFatal) {
    EXPECT_THROW(load(b(), "seating=40000\r\n</building>\r\n"), GameError);
}
