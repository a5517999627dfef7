#include "movies/Demand.h"
#include "core/GameError.h"
#include "core/MathVars.h"

#include <gtest/gtest.h>

using namespace zorvane;

// One row a case of the demand formula: the math terms, the show's inputs, the demand.
// Every term not named is 0; the showtime is 4 (term 0) unless named.
TEST(DemandFormula, Table) {
    struct Row {
        const char* what;
        double base, pop, price, promotion, rating;
        int dupe;
        DemandInputs in;
        double expected;
    };
    const std::vector<double> showtimeTerms = {0, -6, -4, -2, 0, 8, 12, 6, -4};
    const Row rows[] = {
        {"base plus popularity", 15, 0.6, 0, 0, 0, 0, {50, 0, 4, 0, 0, 0}, 45},
        {"a hundred times the price", 80, 0, 0.06, 0, 0, 0, {0, 6, 4, 0, 0, 0}, 44},
        {"this showtime's term", 50, 0, 0, 0, 0, 0, {0, 0, 6, 0, 0, 0}, 62},
        {"showtime 1", 50, 0, 0, 0, 0, 0, {0, 0, 1, 0, 0, 0}, 44},
        {"promotion and rating add", 10, 0, 0, 0.2, 0.3, 0, {0, 0, 4, 40, 50, 0}, 33},
        {"unrounded", 15, 0.6, 0.06, 0, 0, 0, {57, 4.5, 4, 0, 0, 0}, 15 + 34.2 - 27},
        {"clamped up to one", 0.5, 0, 0, 0, 0, 0, {0, 0, 4, 0, 0, 0}, 1},
        {"clamped from below zero", -40, 0, 0, 0, 0, 0, {0, 0, 4, 0, 0, 0}, 1},
        {"clamped down to a hundred", 100.5, 0, 0, 0, 0, 0, {0, 0, 4, 0, 0, 0}, 100},
        {"just under a hundred", 99.75, 0, 0, 0, 0, 0, {0, 0, 4, 0, 0, 0}, 99.75},
        // cut = Int(8.55) = 8; two other showings take 16 (multiplying first: 17.1).
        {"cut floored then multiplied", 57, 0, 0, 0, 0, 15, {0, 0, 4, 0, 0, 2}, 41},
        {"no duplicates no cut", 57, 0, 0, 0, 0, 15, {0, 0, 4, 0, 0, 0}, 57},
        {"cut on the whole demand", 30, 0, 0, 0, 1, 50, {0, 0, 4, 0, 20, 1}, 25},
        // cut = Int(-3.5) = -4 (away from zero): -7 + 12 = 5.
        {"negative cut raises", -7, 0, 0, 0, 0, 50, {0, 0, 4, 0, 0, 3}, 5},
        {"negative cut then clamped", -7, 0, 0, 0, 0, 50, {0, 0, 4, 0, 0, 1}, 1},
    };
    for (const Row& r : rows) {
        MathVars m;
        m.demandbase = r.base;
        m.demandpop = r.pop;
        m.demandprice = r.price;
        m.demandpromotion = r.promotion;
        m.demandrating = r.rating;
        m.demanddupe = Int16{r.dupe};
        std::copy(showtimeTerms.begin(), showtimeTerms.end(), m.demandshowtime.begin());
        EXPECT_NEAR(demandPercent(m, r.in), r.expected, 1e-9) << r.what;
    }
    MathVars m;
    m.demandbase = 100;
    EXPECT_THROW(demandPercent(m, DemandInputs{0, 0, 9, 0, 0, 0}), GameError);
    m.demanddupe = 32000; // cut 32000: 7 of them do not fit 16 bits
    EXPECT_THROW(demandPercent(m, DemandInputs{0, 0, 4, 0, 0, 7}), GameError);
}

TEST(TicketSale, Table) {
    struct Row {
        const char* what;
        int tickets;
        bool matinee;
        std::array<double, 3> prices;
        int percentseniors, seniors;
        double income;
    };
    const Row rows[] = {
        {"seniors split off", 100, false, {6, 4.5, 4}, 15, 15, 85 * 6 + 15 * 4},
        {"at a matinee", 100, true, {6, 4.5, 4}, 15, 15, 85 * 4.5 + 15 * 4},
        {"senior price at the matinee price", 100, false, {6, 4.5, 4.5}, 15, 0, 600},
        // Tested against the matinee price, not the standard one.
        {"dearer than standard", 100, false, {3, 5, 4}, 10, 10, 90 * 3 + 10 * 4},
        {"share floored", 13, false, {6, 4.5, 4}, 15, 1, 12 * 6 + 4},
        {"no split, no product", 3000, false, {6, 4.5, 4.5}, 15, 0, 18000},
    };
    for (const Row& r : rows) {
        const TicketSale sale = splitTicketSale(r.tickets, r.matinee, r.prices, r.percentseniors);
        EXPECT_EQ(sale.seniors, r.seniors) << r.what;
        EXPECT_EQ(sale.regular, r.tickets - r.seniors) << r.what;
        EXPECT_DOUBLE_EQ(sale.income, r.income) << r.what;
    }
    EXPECT_THROW(splitTicketSale(3000, false, {6, 4.5, 4}, 15), GameError); // 3000 * 15
}
