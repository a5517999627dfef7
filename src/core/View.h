#pragma once

namespace zorvane {

// The views a screen may have to repaint. The logic only says "this view is stale";
// the screen asks the logic for the view's content when it next paints: each value has
// its view function in a subsystem's <subject>Texts.h, the main screen's in
// session/MainTexts.h (tests/session/ViewsTest.cpp holds the whole map).
enum class View {
    // main screen
    Finances,    // refreshFinances: the money summary
    DayBars,     // refreshDayBars
    WeekArrows,  // refreshWeekArrows
    MonthLabels, // refreshMonthLabels
    YearLabel,
    Speed,  // setSpeed: the speed images and the clock
    Rating, // the rating bar and figures
    Expand, // the details panel
    // staff
    Positions,       // refreshPositions
    EmployeeGrid,    // refreshEmployeeGrid
    HireTable,       // refreshHireTable
    EmployeeDetails, // showEmployeeDetails
    // movies
    BuyMovies,    // showBuyMovies
    MyMovies,     // showMyMovies
    Showtimes,    // showShowtimes
    TicketPrices, // showTicketPrice
    Ads,          // showAds
    // concessions
    ConcessionListing, // updateMyListing
    ConcessionTables,  // buildTables
    ConcessionTotals,  // showSalesTotals and the stand's totals
    // arcade
    ArcadeBuyGrid, // refreshBuyGrid
    ArcadeDetails, // showGameDetails
    ArcadeRoom,
    // reputation
    Promotions, // showPromotions
    // money
    LoanOffer,   // refreshLoanOffer
    CurrentLoan, // refreshCurrentLoan
    Credit,      // refreshCredit
    Graph,       // drawGraph
    // building
    Building, // showBuilding
    // goals
    GoalList, // lstGoals: the names of the goals, list index = goal index
    // settings and advisor
    Settings, // the four boxes of frmSettings
    Advisor,  // frmTutor: shown or hidden, and the step's text
};

// How many views there are: keep it after the last value above.
inline constexpr int viewCount = static_cast<int>(View::Advisor) + 1;

} // namespace zorvane
