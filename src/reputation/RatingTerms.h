#pragma once
#include <array>

namespace zorvane::ratingTerms {

// The terms of the theater's rating of the day, each a 16-bit integer, as pure functions of
// their inputs and their percent weights. Rounding is half to even unless a term says floor.

// 1. Demand: the demand percents of showtimes 1 to 8 summed and divided by 8 (so empty
//    showtimes pull it down), times ratingdemand percent, floored.
int demand(double demandSum, int ratingdemand);
// 2. On-screen ads, a penalty: their percent of showtimeadsmaxtotal times ratingads percent,
//    negated and then floored, so any fraction goes against the theater.
int ads(int adsSum, int showtimeadsmaxtotal, int ratingads);
// 3. Game popularity: the machines' mean popularity as getPercent(arcadepopmin,
//    arcadepopmax, avg), rounded, times ratinggamepops percent, rounded. The minimum only
//    narrows the span: the average is not reduced by it.
int gamePops(int averagePop, int arcadepopmin, int arcadepopmax, int ratinggamepops);
// 4. Game count: machines as a percent of arcademax, rounded, times ratinggamenums percent.
int gameCount(int machines, int arcademax, double ratinggamenums);
// 5. Concessions: the stand's quality score times ratingconcessions percent, rounded.
int concessions(int qualityScore, int ratingconcessions);
// 6. Anger: calm staff earn the full weight: (100 - anger as a percent of empangryquit)
//    times ratinganger percent. An average anger of -1 gives 0.
int anger(int averageAnger, int empangryquit, int ratinganger);
// 7. Pay: the average wage less the minimum wage, floored, as a percent of 20 dollars (not
//    rounded), times ratingpay percent, rounded.
int pay(double averageWage, double minWage, int ratingpay);
// 8. Ambition: a percent of 10, times ratingambition percent. The staff's average ambition
//    is always 0, so the term is 0 whatever the weight; kept as it is.
int ambition(int averageAmbition, int ratingambition);
// 9. Promotions: the points as a percent of promomax, rounded, times ratingpromo percent.
int promotions(int points, double promomax, int ratingpromo);
// 10. Chance: the roll Int(u * 100 + 1), 1 to 100, times ratingrnd percent, rounded.
int chance(double draw, int ratingrnd);
// 11. Building: always 0; the building's condition has no part in the rating.
int building(int condition);

// The rating from the eleven terms: their sum in 16-bit arithmetic, at least 1, at most 100.
int clampedSum(const std::array<int, 11>& terms);

} // namespace zorvane::ratingTerms
