#pragma once
#include <array>

namespace zorvane {

struct MathVars;

// What one showtime's demand is made of, gathered by the showtime in the order the rule
// reads them (the price is the one rolled customer's).
struct DemandInputs {
    int popularity = 0;  // as the showtime sees it, after its ads
    double price = 0;    // what the rolled customer would pay
    int showtime = 0;    // 1 to 8: picks demandshowtime
    int promoPoints = 0; // the running promotions' points
    int rating = 0;      // yesterday's rating, whole percent
    int duplicates = 0;  // other showtimes with the same movie number
};

// The percent of seats that fill, from 1 to 100, unrounded. Each other showing of the same
// movie takes demanddupe percent of the show's demand, the cut floored before it is
// multiplied; nothing of the lost demand moves to another showtime.
double demandPercent(const MathVars& m, const DemandInputs& in);

// A show's takings, sold in bulk.
struct TicketSale {
    int seniors = 0;
    int regular = 0;
    double income = 0;
};

// Seniors count as their own group only while the senior price stands below the matinee
// price, at every show, matinee or not; otherwise the whole house pays the regular price
// (matinee or standard).
TicketSale splitTicketSale(int tickets, bool matinee, const std::array<double, 3>& ticketPrice,
                           int percentseniors);

} // namespace zorvane
