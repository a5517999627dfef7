#include "movies/MovieTexts.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "movies/MovieManager.h"

#include <cmath>

namespace zorvane {

GridText buyMoviesGrid(const MovieManager& mm) {
    GridText grid;
    if (mm.buyMoviesCount() < 1)
        return grid;
    grid.header = {"Movie Title", "Popularity", "Price"};
    for (int i = 1; i <= mm.buyMoviesCount(); ++i) {
        const Movie& movie = mm.buyMovieAt(i);
        grid.rows.push_back({movie.getMyTitle(), std::to_string(movie.getMyPopularity()),
                             formatMoney(movie.getMyPrice())});
    }
    return grid;
}

std::vector<std::string> myMovieLines(const MovieManager& mm) {
    std::vector<std::string> lines;
    for (int i = 1; i <= mm.myMoviesCount(); ++i) {
        const Movie& movie = mm.myMovieAt(i);
        std::string title = movie.getMyTitle();
        if (title.size() > 30)
            title = title.substr(0, 25) + "...";
        const double cents = roundHalfEven(movie.getMyPrice() * 100) / 100;
        lines.push_back(title + " " + formatMoney(cents));
    }
    return lines;
}

namespace {

ShowtimeRowText showtimeRow(const MovieManager& mm, const showtime& st) {
    ShowtimeRowText row;
    row.showtime = st.labelCaption();
    row.matineeGrey = st.labelGrey();
    row.ads = std::to_string(st.getAds());
    if (st.getMyMovie() < 1) { // clearShowtimeRow
        row.title = "(No Movie)";
        row.sold = "0";
        row.income = formatMoney(0);
        row.age = "0";
        row.popularity = "0";
        return row;
    }
    const Movie& movie = mm.myMovieAt(st.getMyMovie());
    row.title = movie.getMyTitle();
    row.sold = std::to_string(st.getTodaysTicketSales());
    row.income = formatMoney(st.getTodaysIncome());
    row.age = numberText(movie.getMyDays());
    row.popularity = std::to_string(st.getMoviePopularity());
    return row;
}

} // namespace

ShowtimeTableText showtimeTable(const MovieManager& mm) {
    ShowtimeTableText table;
    Int16 sold;
    double income = 0;
    for (int s = 1; s <= 8; ++s) {
        const showtime& st = mm.showtimeAt(s);
        table.rows[static_cast<std::size_t>(s - 1)] = showtimeRow(mm, st);
        if (st.getMyMovie() >= 1) {
            sold += st.getTodaysTicketSales();
            income += st.getTodaysIncome();
        }
    }
    table.totalSold = std::to_string(sold);
    table.totalIncome = formatMoneyShort(income);
    return table;
}

GridText adsGrid(const MovieManager& mm) {
    GridText grid;
    grid.header = {"Showtime", "# of ads", "Daily income", "Loss to popularity"};
    Int16 ads, loss;
    double income = 0;
    for (int s = 1; s <= 8; ++s) {
        const showtime& st = mm.showtimeAt(s);
        const int rowLoss = st.adsPopularityLoss();
        const double rowIncome = st.adsIncome();
        grid.rows.push_back({st.getName(), std::to_string(st.getAds()), formatMoney(rowIncome),
                             std::to_string(rowLoss)});
        ads += st.getAds();
        loss += rowLoss;
        income += rowIncome;
    }
    grid.rows.push_back({"Totals", std::to_string(ads), formatMoney(income), std::to_string(loss)});
    return grid;
}

std::string ticketPriceText(double price) {
    std::string digits = formatGrouped(std::fabs(price), 2);
    std::erase(digits, ',');
    if (digits.rfind("0.", 0) == 0)
        digits.erase(0, 1); // "#" shows no digit for a zero whole part
    const bool negative = price < 0 && digits.find_first_not_of("0.") != std::string::npos;
    return (negative ? "-$" : "$") + digits;
}

std::optional<int> adsAnswer(const std::string& text) {
    if (text.empty())
        return std::nullopt;
    return floorInt16(leadingNumber(text));
}

std::array<std::string, 3> ticketPriceTexts(const MovieManager& mm) {
    return {ticketPriceText(mm.getTicketPrice(0)), ticketPriceText(mm.getTicketPrice(1)),
            ticketPriceText(mm.getTicketPrice(2))};
}

} // namespace zorvane
