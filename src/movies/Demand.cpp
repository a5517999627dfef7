#include "movies/Demand.h"

#include "core/GameError.h"
#include "core/MathVars.h"
#include "core/Numbers.h"

#include <string>

namespace zorvane {

double demandPercent(const MathVars& m, const DemandInputs& in) {
    double D = m.demandbase + in.popularity * m.demandpop;
    D = D - (m.demandprice * in.price) * 100;
    if (in.showtime < 1 || in.showtime > 8)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: demandshowtime" + std::to_string(in.showtime));
    D = D + m.demandshowtime[static_cast<std::size_t>(in.showtime)];
    D = D + in.promoPoints * m.demandpromotion;
    D = D + in.rating * m.demandrating;
    if (in.duplicates > 0) {
        // Floored toward minus infinity: a negative demand gives a negative cut, which
        // raises D before the clamp.
        const int cut = floorInt16(m.demanddupe * D / 100);
        D = D - mul16(in.duplicates, cut);
    }
    if (D < 1)
        return 1;
    if (D > 100)
        return 100;
    return D;
}

TicketSale splitTicketSale(int tickets, bool matinee, const std::array<double, 3>& ticketPrice,
                           int percentseniors) {
    TicketSale sale;
    sale.regular = tickets;
    if (ticketPrice[1] > ticketPrice[2]) {
        sale.seniors = floorInt16(mul16(tickets, percentseniors) / 100.0);
        sale.regular = sub16(tickets, sale.seniors);
    }
    sale.income = sale.regular * (matinee ? ticketPrice[1] : ticketPrice[0]);
    sale.income = sale.income + sale.seniors * ticketPrice[2];
    return sale;
}

} // namespace zorvane
