#include "movies/Movie.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

#include <cmath>

namespace zorvane {

namespace {

double divide(double numerator, double denominator, const char* what) {
    if (denominator == 0)
        throw GameError(GameError::Kind::DivisionByZero, std::string("division by zero: ") + what);
    return numerator / denominator;
}

} // namespace

// A new catalogue title: its number and title, empty sums, and a classic level rolled from
// movieclassicmin up to just short of movieclassicmin + movieclassicmax (the form is kept:
// the top is not movieclassicmax).
void Movie::initalize(int num, const std::string& title) {
    Num = num;
    Title = title;
    sold = 0;
    Income = 0;
    const MathVars& m = game_->math;
    Classic = floorInt16(m.movieclassicmax * game_->rng.next() + m.movieclassicmin);
}

// Popularity sets the distributor's price: the percent of moviemaxpop, floored, of
// moviemaxprice, never above moviemaxprice.
void Movie::setMyPopularity(int popularity) {
    Pop = popularity;
    setPriceFromPopularity();
}

void Movie::setPriceFromPopularity() {
    const MathVars& m = game_->math;
    const double q = Int(divide(mul16(Pop, 100), m.moviemaxpop, "moviemaxpop is 0"));
    Price = m.moviemaxprice * q / 100;
    if (Price > m.moviemaxprice)
        Price = m.moviemaxprice;
}

// One more day owned: today's figures start from nothing and popularity may fall.
void Movie::nextDay() {
    Days = Days + 1;
    todaysIncome = 0;
    todaysTickets = 0;
    dropPopularity();
}

// A movie at or below its classic level is lifted to it and keeps its price; otherwise on a
// drop day it loses 1 to moviepopdrop points (never below 1, but possibly below its classic
// level for one day) and is priced anew for resale.
void Movie::dropPopularity() {
    if (Pop <= Classic) {
        Pop = Classic;
        return;
    }
    if (!isDropDay())
        return;
    const MathVars& m = game_->math;
    Pop = sub16(Pop, floorInt16(m.moviepopdrop * game_->rng.next() + 1));
    if (Pop < 1)
        Pop = 1;
    setResalePrice();
}

// Every day for moviepopdropdays 1, never below 1, and otherwise on the days where the days
// owned divide by it with no fraction (the quotient's floor against its printed form).
bool Movie::isDropDay() const {
    const int every = game_->math.moviepopdropdays;
    if (every < 1)
        return false;
    if (every == 1)
        return true;
    // A whole day count (the usual case) divides evenly exactly when the remainder is 0;
    // only a fractional count from an edited save needs the comparison through the text.
    const double quotient = Days / every;
    if (Days == Int(Days) && quotient >= -32768 && quotient < 32768)
        return static_cast<long long>(Days) % every == 0;
    return floorInt16(quotient) == leadingNumber(numberText(quotient));
}

// The resale value follows popularity over the span moviemaxpop - movieminpop (popularity
// itself is not reduced by movieminpop, so it can pass 100 percent of what was paid), floored
// to whole dollars, never below resalemin.
void Movie::setResalePrice() {
    const MathVars& m = game_->math;
    const double p = divide(mul16(Pop, 100), sub16(m.moviemaxpop, m.movieminpop),
                            "moviemaxpop - movieminpop is 0");
    Price = Int((p * 0.01) * firstPrice);
    if (!(Price >= m.resalemin))
        Price = m.resalemin;
    game_->movies.showMyMovies();
}

// A year's inflation on the price; what the theater paid never inflates.
void Movie::inflate() {
    Price = game_->math.inflation * 0.01 * Price + Price;
}

// A show's takings. Profit is the income less the price paid, so it stands at 0 (not minus
// the price) from the purchase up to the first ticket.
void Movie::sellTickets(double income, int tickets) {
    sold = sold + tickets;
    Income = Income + income;
    todaysIncome = todaysIncome + income;
    Profit = Income - firstPrice;
    todaysTickets = add16(todaysTickets, tickets);
}

void Movie::saveSelf(LineWriter& out, const std::string& kind) const {
    out << "<movie_" + kind + ">";
    out << "Num=" + numberTextSigned(Num);
    out << "Title=" + Title;
    out << "Income=" + numberTextSigned(Income);
    out << "todaysIncome=" + numberTextSigned(todaysIncome);
    out << "todaysTickets=" + numberTextSigned(todaysTickets);
    out << "Profit=" + numberTextSigned(Profit);
    out << "Days=" + numberTextSigned(Days);
    out << "Pop=" + numberTextSigned(Pop);
    out << "Classic=" + numberTextSigned(Classic);
    out << "Price=" + numberTextSigned(Price);
    out << "firstPrice=" + numberTextSigned(firstPrice);
    out << (Running ? "Running=1" : "Running=0");
    out << "</movie_" + kind + ">";
}

// Reads the block up to its closing line. The tickets sold and the list line are not in
// the file: sold counts from 0 again and the own list is rebuilt after the load.
void Movie::loadSelf(LineReader& in) {
    readSection(in, [&](const std::string& rawKey, const std::string& value) {
        const std::string key = toLower(rawKey);
        if (key == "title") { // text: a title that begins like a huge number is still a title
            Title = value;
            return;
        }
        const auto n = [&value] { return leadingNumber(value); };
        if (key == "num")
            Num = toInt16(n());
        else if (key == "income")
            Income = n();
        else if (key == "todaysincome")
            todaysIncome = n();
        else if (key == "todaystickets")
            todaysTickets = toInt16(n());
        else if (key == "profit")
            Profit = n();
        else if (key == "days")
            Days = n();
        else if (key == "pop")
            Pop = toInt16(n());
        else if (key == "classic")
            Classic = toInt16(n());
        else if (key == "price")
            Price = n();
        else if (key == "firstprice")
            firstPrice = n();
        else if (key == "running")
            Running = (n() == 1);
    });
}

} // namespace zorvane
