// Every view a screen may be told to repaint has a view function that builds its content.
// The switch below has no default: a new View value without a view function here does not
// compile.
#include "arcade/ArcadeTexts.h"
#include "building/BuildingTexts.h"
#include "concessions/ConcessionTexts.h"
#include "goals/GoalTexts.h"
#include "money/MoneyTexts.h"
#include "movies/MovieTexts.h"
#include "reputation/ReputationTexts.h"
#include "session/Game.h"
#include "session/MainTexts.h"
#include "staff/StaffTexts.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#pragma GCC diagnostic error "-Wswitch"

using namespace zorvane;
using namespace zorvane::test;

namespace {

// Builds a view's content as the screen would on its next pass; returns one of its texts.
std::string paint(const Game& g, View view) {
    switch (view) {
    case View::Finances:
        return financeSummary(g.finances).funds;
    case View::DayBars:
        return std::to_string(dayBars(g).currentDay);
    case View::WeekArrows:
        return weekArrows(g.calendar);
    case View::MonthLabels:
        return std::to_string(monthLabels(g)[0].colour);
    case View::YearLabel:
        return yearText(g);
    case View::Speed:
        return std::to_string(g.speed) + " " + std::to_string(g.timerInterval());
    case View::Rating:
        return ratingCaption(g.rating);
    case View::Expand:
        return summaryLayout(g).expandCaption;
    case View::Positions:
        return positionChart(g.employees).minWage;
    case View::EmployeeGrid:
        return employeeGridRows(g.employees)[0][1];
    case View::HireTable:
        return hireTableRows(g.employees)[0].name;
    case View::EmployeeDetails:
        return employeeDetails(g.employees).name;
    case View::BuyMovies:
        return buyMoviesGrid(g.movies).header.at(0);
    case View::MyMovies:
        return std::to_string(myMovieLines(g.movies).size());
    case View::Showtimes:
        return showtimeTable(g.movies).rows[0].title;
    case View::TicketPrices:
        return ticketPriceTexts(g.movies)[0];
    case View::Ads:
        return adsGrid(g.movies).header.at(0);
    case View::ConcessionListing:
        return concessionListing(g.concessions.item(0), g.folder()).price;
    case View::ConcessionTables:
        return concessionStockRow(g.concessions.item(0)).inStock;
    case View::ConcessionTotals:
        return concessionTotals(g.concessions).totalTotalCost;
    case View::ArcadeBuyGrid:
        return arcadeBuyGrid(g.arcades).at(0)[0];
    case View::ArcadeDetails:
        return g.arcades.detailsNum > 0 ? arcadeDetails(g.arcades).name : "(closed)";
    case View::ArcadeRoom:
        // The room is a plain model the screen reads: every rectangle, the template first.
        return g.arcades.room.cabinet(0).picture;
    case View::Promotions:
        return promotionsView(g.promos).currentPromoLevel;
    case View::LoanOffer:
        return loanOfferTexts(g.loans)[0];
    case View::CurrentLoan:
        return currentLoanTexts(g.loans)[0];
    case View::Credit:
        return creditText(g.loans);
    case View::Graph:
        return std::to_string(graphFunds(g.finances)[0]);
    case View::Building:
        return buildingTexts(g.building, g.calendar.currentyear).values[0];
    case View::GoalList:
        return goalList(g.goals).at(0);
    case View::Settings:
        return std::to_string(g.settingsBoxes.value(SettingsBox::Sound));
    case View::Advisor:
        return g.tutor.visible ? g.tutor.shownText() : "(hidden)";
    }
    return {};
}

} // namespace

// After start-up every view that start-up raised has content to show.
TEST(Views, EveryRefreshedViewHasContent) {
    DataFolder data;
    TestGame game(data.path().string());
    game->startup();
    game->startPlay(0);
    ASSERT_FALSE(game.screen.refreshed.empty());
    for (View v : game.screen.refreshed)
        EXPECT_FALSE(paint(*game, v).empty()) << static_cast<int>(v);
}
