#include "building/BuildingFixture.h"
#include "building/BuildingTexts.h"
#include "core/GameError.h"

using namespace zorvane;
using namespace zorvane::test;

TEST_F(BuildingFixture, UnpaidRentWarnsGracePlusOneTimesThenLoses) {
    const std::string warning = "You have not paid your rent this month, if you go 2 month(s) "
                                "without paying rent you will lose this game!";
    game->math.buildingrentgrace = Int16{2};
    game->math.buildingrent = 1000;
    b().rent = 1000;
    money().setFunds(500); // never enough
    for (int month = 1; month <= 3; ++month) {
        b().payRent();
        EXPECT_EQ(b().monthsWithoutPayingRent, month);
        EXPECT_EQ(b().rent, 1000.0 * (month + 1)); // the debt gathers
        EXPECT_EQ(screen.count(warning), month);
        EXPECT_EQ(game->loseShown, 0) << "lost too early, month " << month;
    }
    b().payRent();
    EXPECT_EQ(game->loseShown, 1);
    EXPECT_EQ(screen.loseShown, 1);
    EXPECT_EQ(screen.count(warning), 3); // the last warning stands last
    EXPECT_EQ(screen.lines.back(), warning);
    EXPECT_EQ(b().rent, 4000);
    EXPECT_EQ(b().monthsWithoutPayingRent, 3);
    EXPECT_EQ(money().funds, 500);
}

TEST_F(BuildingFixture, APaymentClearsTheGatheredRent) {
    game->math.buildingrent = 1000;
    b().rent = 1000;
    money().setFunds(1500);
    b().payRent(); // paid: 500 remain
    EXPECT_EQ(money().funds, 500);
    EXPECT_EQ(b().totalRentPaid, 1000);
    b().payRent(); // refused
    b().payRent(); // refused
    EXPECT_EQ(b().rent, 3000);
    EXPECT_EQ(b().monthsWithoutPayingRent, 2);
    money().setFunds(10000);
    b().payRent();
    EXPECT_EQ(money().funds, 7000);
    EXPECT_EQ(b().totalRentPaid, 4000);
    EXPECT_EQ(b().monthsWithoutPayingRent, 0);
    EXPECT_EQ(b().rent, 1000);
    EXPECT_EQ(money().totalspent, 4000); // rent charges no department
    EXPECT_EQ(money().deploan + money().depmovie + money().deplabor, 0);
    b().rent = 1; // still rent
    b().payRent();
    EXPECT_EQ(money().funds, 6999);
    b().rent = 0.99; // below a dollar: bought
    b().payRent();
    EXPECT_EQ(money().funds, 6999);
    EXPECT_EQ(b().rent, 0.99);
}

// The month's rent is paid in the month of a breakdown too, raised by inflation until paid.
TEST_F(BuildingFixture, RentIsPaidEveryMonthAndRisesUntilItIsPaid) {
    money().setFunds(100000);
    game->rng.force(0.0);
    b().buildingNextMonth();
    EXPECT_FALSE(b().isInOrder());
    EXPECT_EQ(b().condition, 89);
    EXPECT_EQ(b().totalRentPaid, 7500);
    EXPECT_EQ(money().funds, 92500);
    game->math.inflation = 10;
    game->math.buildingbreakdownchance = 0;
    b().buildingNextMonth();
    EXPECT_DOUBLE_EQ(b().totalRentPaid, 7500 + 8250); // 7500 raised once
    EXPECT_EQ(b().rent, 7500);                        // and back to the key
    b().rent = 0;                                     // bought
    b().buildingNextMonth();
    EXPECT_EQ(b().rent, 0);
    EXPECT_DOUBLE_EQ(b().totalRentPaid, 7500 + 8250);
}

TEST_F(BuildingFixture, WearRoundsHalfToEven) {
    game->math.buildingbreakdownchance = 0;
    money().setFunds(1e9);
    // 88.5 to the even 88, 86.5 to 86, 85.5 back up to 86 (no wear at all), 85.6 to 86.
    const double drops[][2] = {{1.5, 88}, {1.5, 86}, {0.5, 86}, {0.4, 86}};
    for (const auto& [drop, condition] : drops) {
        game->math.buildingconditiondrop = drop;
        b().buildingNextMonth();
        EXPECT_EQ(b().condition, condition) << drop;
    }
}

// One percent roll against the wear times the key: a perfect house cannot break, a wreck
// always does, and a broken house is rolled for too.
TEST_F(BuildingFixture, BreakdownRollAgainstWearTimesChance) {
    b().condition = 100;
    game->rng.force(0.0); // roll 1 against threshold 0
    b().rollBuildingBreakdown();
    EXPECT_TRUE(b().isInOrder());
    game->math.buildingbreakdownchance = 0.5;
    b().condition = 80; // threshold 10
    game->setSpeed(2);
    game->rng.force(0.10); // roll 11: holds
    b().rollBuildingBreakdown();
    EXPECT_TRUE(b().isInOrder());
    EXPECT_TRUE(screen.modes.empty());
    game->rng.force(0.09); // roll 10: at the threshold, breaks
    b().rollBuildingBreakdown();
    EXPECT_FALSE(b().isInOrder());
    EXPECT_EQ(screen.count(" !!!  YOUR THEATER HAS BROKE DOWN !!! "), 1);
    EXPECT_EQ(screen.modes, std::vector<int>{7});
    EXPECT_EQ(game->speed, 0);
    EXPECT_EQ(game->lastSpeed, 2);
    EXPECT_EQ(b().repairCost, 20 * 60);
    EXPECT_TRUE(buildingTexts(b(), game->calendar.currentyear).outOfOrder);
    game->math.buildingbreakdownchance = 1;
    b().condition = -5;     // allowed: threshold 105
    game->rng.force(0.999); // roll 100
    b().rollBuildingBreakdown();
    EXPECT_EQ(screen.count(" !!!  YOUR THEATER HAS BROKE DOWN !!! "), 2);
    EXPECT_EQ(game->rng.forcedLeft(), 0u);
    EXPECT_EQ(b().repairCost, 105 * 60);
    EXPECT_EQ(b().renovateCost, 105 * 800.0);
    EXPECT_EQ(buildingTexts(b(), game->calendar.currentyear).values[1], "5 %"); // digits only
    // At the month's turn the house breaks down before the rent is asked for.
    money().setFunds(0);
    game->rng.force(0.0);
    b().buildingNextMonth();
    ASSERT_GE(screen.lines.size(), 2u);
    EXPECT_EQ(screen.lines[screen.lines.size() - 2], " !!!  YOUR THEATER HAS BROKE DOWN !!! ");
    EXPECT_EQ(screen.lines.back(), "You have not paid your rent this month, if you go 3 "
                                   "month(s) without paying rent you will lose this game!");
    game->math.buildingrepaircost = Int16{400};
    b().condition = 10; // 90 * 400 passes 32767
    EXPECT_THROW(b().computeCosts(), GameError);
}

// A repair mends only a broken house, with the money, and leaves the wear; a renovation sets
// the condition to 100 and resumes the clock, broken house or not.
TEST_F(BuildingFixture, RepairOnlyABrokenHouseAndRenovateAnyButAPerfectOne) {
    money().setFunds(100000);
    game->setSpeed(3);
    b().repairBuilding();
    EXPECT_EQ(screen.count("Your theater is not out of order, no repairs are needed."), 1);
    EXPECT_EQ(money().funds, 100000);
    EXPECT_EQ(game->speed, 3);

    b().condition = 70;
    b().breakDown(); // repair cost 30 * 60
    money().setFunds(1800);
    b().repairBuilding();
    EXPECT_EQ(screen.count("You cannot afford to repair your theater, consider taking out a loan."),
              1);
    EXPECT_FALSE(b().isInOrder());
    EXPECT_EQ(game->speed, 0);

    money().setFunds(1801);
    b().repairBuilding();
    EXPECT_TRUE(b().isInOrder());
    EXPECT_EQ(money().funds, 1);
    EXPECT_EQ(b().condition, 70); // a repair does not mend the wear
    EXPECT_EQ(b().repairCost, 0);
    EXPECT_EQ(game->speed, 3); // back to the remembered speed
    EXPECT_FALSE(buildingTexts(b(), game->calendar.currentyear).outOfOrder);

    money().setFunds(100000);
    b().condition = 100;
    b().showBuilding();
    b().renovateBuilding();
    EXPECT_EQ(screen.count("Your theater is already in good condition."), 1);
    EXPECT_EQ(money().funds, 100000);
    game->setSpeed(3);
    game->setSpeed(-1);
    b().condition = 99;
    b().showBuilding();
    b().renovateBuilding();
    EXPECT_EQ(b().condition, 100);
    EXPECT_EQ(game->speed, 3);
    EXPECT_EQ(money().funds, 100000 - 800);

    b().condition = 80;
    b().showBuilding(); // 20 * 800
    money().setFunds(16000);
    b().renovateBuilding();
    EXPECT_EQ(screen.count(
                  "You cannot afford to renovate, consider taking out a loan or just repairing."),
              1);
    EXPECT_EQ(b().condition, 80);

    money().setFunds(20000);
    b().breakDown();
    b().renovateBuilding();
    EXPECT_EQ(b().condition, 100);
    EXPECT_TRUE(b().isInOrder());
    EXPECT_EQ(money().funds, 4000);
}

// A remodel adds its seats and its condition (rounded half to even, at most 100) for the
// seats already there times the key, up to the maximum.
TEST_F(BuildingFixture, RemodelUpToTheMaximumEachDearerThanTheLast) {
    game->math.buildingremodelcondition = 2.5;
    b().condition = 80;
    money().setFunds(180000); // the cost is 120 * 1500: less than 1 would remain
    b().remodel();
    EXPECT_EQ(screen.lines.back(),
              "You can't afford to remodel!  Perhaps you could take out a loan?");
    EXPECT_EQ(b().seating, 120);
    money().setFunds(180001);
    b().remodel();
    EXPECT_EQ(b().condition, 82); // 82.5 to the even 82
    EXPECT_EQ(b().seating, 170);

    game->math.buildingremodelcondition = 10;
    money().setFunds(10000000);
    b().seating = 220;
    b().computeRemodelCost();
    b().condition = 95;
    b().remodel();
    EXPECT_EQ(b().seating, 270);
    EXPECT_EQ(money().funds, 10000000 - 220 * 1500);
    EXPECT_EQ(b().remodelcost, 270 * 1500);
    EXPECT_EQ(b().condition, 100); // 105 is lowered to 100
    EXPECT_EQ(screen.lines.back(), "Theater remodelled, you now have a seating capacity of 270 and "
                                   "your building condition has been increased to 100%");
    b().remodel(); // reaches the maximum exactly: allowed
    EXPECT_EQ(b().seating, 320);
    const double before = money().funds;
    const auto refreshesBefore = screen.refreshes(View::Building);
    b().remodel();
    EXPECT_EQ(screen.lines.back(), "You cannot add on to your building any more, sorry!");
    EXPECT_EQ(b().seating, 320);
    EXPECT_EQ(money().funds, before);
    EXPECT_EQ(screen.refreshes(View::Building), refreshesBefore); // nothing is refreshed
}

TEST_F(BuildingFixture, PurchaseEndsTheRentAndItsDebt) {
    game->calendar.currentyear = 2;
    EXPECT_EQ(b().getPurchasePrice(), 300000);
    money().setFunds(300000);
    b().purchaseBuilding();
    EXPECT_EQ(screen.lines.back(), "You cannot yet afford to buy your theater, either continue "
                                   "paying rent or take out a loan.");
    EXPECT_EQ(b().rent, 7500);
    b().rent = 22500; // two months unpaid
    b().monthsWithoutPayingRent = 2;
    money().setFunds(300001);
    const auto refreshesBefore = screen.refreshes(View::Building);
    b().purchaseBuilding();
    EXPECT_EQ(screen.lines.back(), "You have purchased your theater!  No more rent for you!");
    EXPECT_EQ(money().funds, 1);
    EXPECT_EQ(b().rent, 0);
    EXPECT_EQ(b().monthsWithoutPayingRent, 2);                    // left as it stood
    EXPECT_EQ(screen.refreshes(View::Building), refreshesBefore); // the screen shows the old rent
    b().purchaseBuilding();
    EXPECT_EQ(screen.lines.back(),
              "You have already purchased your building, you are no longer paying rent!");
    EXPECT_EQ(money().funds, 1);
}
