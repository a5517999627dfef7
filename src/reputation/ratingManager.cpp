#include "reputation/ratingManager.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "reputation/RatingTerms.h"
#include "session/Game.h"

namespace zorvane {

std::size_t ratingManager::monthIndex(int month) const {
    if (month < 0 || month > 11)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: rating history month " + std::to_string(month));
    return static_cast<std::size_t>(month);
}

// The terms of the day's rating, each asked of its owner at its turn. The demand term is a
// fresh run of the eight showtimes' demand, which reads yesterday's rating.
std::array<int, 11> ratingManager::dayTerms() {
    const MathVars& m = game_.math;
    std::array<int, 11> t{};
    double demandSum = 0;
    for (int s = 1; s <= 8; ++s)
        demandSum += game_.movies.getDemand(s);
    t[0] = ratingTerms::demand(demandSum, m.ratingdemand);
    int ads = 0;
    for (int s = 1; s <= m.showtimes; ++s)
        ads = add16(ads, game_.movies.getAds(s));
    t[1] = ratingTerms::ads(ads, m.showtimeadsmaxtotal, m.ratingads);
    t[2] = ratingTerms::gamePops(game_.arcades.getAveragePop(), m.arcadepopmin, m.arcadepopmax,
                                 m.ratinggamepops);
    t[3] = ratingTerms::gameCount(game_.arcades.getMachineCount(), m.arcademax, m.ratinggamenums);
    t[4] = ratingTerms::concessions(game_.concessions.getQualityScore(), m.ratingconcessions);
    t[5] = ratingTerms::anger(game_.employees.getAverageAnger(), m.empangryquit, m.ratinganger);
    t[6] = ratingTerms::pay(game_.employees.getAverageWage(), game_.employees.getMinWage(),
                            m.ratingpay);
    t[7] = ratingTerms::ambition(game_.employees.getAverageAmbition(), m.ratingambition);
    t[8] = ratingTerms::promotions(game_.promos.getPromoPoints(), m.promomax, m.ratingpromo);
    t[9] = ratingTerms::chance(game_.rng.next(), m.ratingrnd);
    t[10] = ratingTerms::building(game_.building.getCondition());
    return t;
}

int ratingManager::ratingOfTheDay() {
    return ratingTerms::clampedSum(dayTerms());
}

// The end of each day: the rating is computed afresh, also on a day without shows, and the
// month's running average takes it in.
void ratingManager::ratingNextDay() {
    const int r = ratingOfTheDay();
    currentRating = r;
    currentAverage = floorInt16(add16(currentAverage, r) / 2.0);
    refreshRatingDisplay();
}

// The month's end, while the calendar still shows the month that ends: its history entry
// takes the rating of that day (not the average), and the average starts again.
void ratingManager::ratingNextMonth() {
    const int month = game_.calendar.currentmonth;
    history[monthIndex(month)] = currentRating;
    drawBar(month);
    currentAverage = 0;
}

// A new year: the bars turn neutral but keep their heights, so the old year's shape stays
// until each month overwrites it.
void ratingManager::ratingNextYear() {
    paintNeutral();
}

void ratingManager::ratingSetDefaults() {
    currentAverage = currentRating;
    paintNeutral();
    for (int month = 0; month < 12; ++month)
        drawBar(month, 0);
}

void ratingManager::paintNeutral() {
    for (HistoryBar& bar : bars_)
        bar.colour = neutralColour;
    game_.screen().refresh(View::Rating);
}

int ratingManager::barTop(int value) {
    return floorInt32(sub16(100, value) * unitsPerPercent + barOffset);
}

// One month's bar: its top from the value, its foot on the month labels; a month not later
// than the current one turns green.
void ratingManager::drawBar(int month, int value) {
    HistoryBar& bar = bars_[monthIndex(month)];
    bar.top = barTop(value);
    bar.height = barBottom - bar.top;
    if (month <= game_.calendar.currentmonth)
        bar.colour = drawnColour;
    bar.tip = std::to_string(value) + "%";
    game_.screen().refresh(View::Rating);
}

void ratingManager::refreshRatingDisplay() {
    displayedRating_ = currentRating;
    displayed_ = true;
    game_.screen().refresh(View::Rating);
}

void ratingManager::saveRatings(LineWriter& out) const {
    out << "<ratings>";
    out << "currentAverage=" + numberTextSigned(currentAverage);
    out << "currentRating=" + numberTextSigned(currentRating);
    for (int i = 0; i < 12; ++i)
        out << "history(" + std::to_string(i) +
                   ")=" + numberTextSigned(history[static_cast<std::size_t>(i)]);
    out << "</ratings>";
}

// Reads the section, then draws the twelve bars from the history and shows the rating.
void ratingManager::loadRatings(LineReader& in) {
    paintNeutral();
    readSection(in, [&](const std::string& rawKey, const std::string& value) {
        const std::string key = toLower(rawKey);
        if (key == "currentaverage") {
            currentAverage = toInt16(leadingNumber(value));
        } else if (key == "currentrating") {
            currentRating = toInt16(leadingNumber(value));
        } else if (key.compare(0, 7, "history") == 0) {
            const std::size_t open = key.find('(');
            const std::string inside = open == std::string::npos
                                           ? ""
                                           : key.substr(open + 1, key.find(')', open) - open - 1);
            const int index = toInt16(leadingNumber(inside));
            if (index < 0 || index > 11)
                throw GameError(GameError::Kind::Bounds, in.where() + "history index " +
                                                             std::to_string(index) +
                                                             " out of range");
            history[static_cast<std::size_t>(index)] = toInt16(leadingNumber(value));
        }
    });
    for (int month = 0; month < 12; ++month)
        drawBar(month, history[static_cast<std::size_t>(month)]);
    refreshRatingDisplay();
}

} // namespace zorvane
