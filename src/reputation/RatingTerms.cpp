#include "reputation/RatingTerms.h"

#include "core/Numbers.h"
#include "core/Text.h"

namespace zorvane::ratingTerms {

int demand(double demandSum, int ratingdemand) {
    return floorInt16(demandSum / 8 * (ratingdemand * 0.01));
}

// Kept on purpose: the negation comes before the floor, so a fraction of a point costs a
// whole point: with any ads and a weight above 0 the term is at most -1.
int ads(int adsSum, int showtimeadsmaxtotal, int ratingads) {
    const double p = getPercent(0, showtimeadsmaxtotal, adsSum);
    return floorInt16(p * (ratingads * 0.01) * -1);
}

int gamePops(int averagePop, int arcadepopmin, int arcadepopmax, int ratinggamepops) {
    const int p = toInt16(getPercent(arcadepopmin, arcadepopmax, averagePop));
    return toInt16((ratinggamepops * 0.01) * p);
}

int gameCount(int machines, int arcademax, double ratinggamenums) {
    const int p = toInt16(getPercent(0, arcademax, machines));
    return toInt16((ratinggamenums * 0.01) * p);
}

int concessions(int qualityScore, int ratingconcessions) {
    return toInt16((ratingconcessions * 0.01) * qualityScore);
}

int anger(int averageAnger, int empangryquit, int ratinganger) {
    if (averageAnger == -1)
        return 0;
    const int p = toInt16(getPercent(0, empangryquit, averageAnger));
    return toInt16((ratinganger * 0.01) * sub16(100, p));
}

int pay(double averageWage, double minWage, int ratingpay) {
    const int w = floorInt16(averageWage - minWage);
    const double p = getPercent(0, 20, w);
    return toInt16((ratingpay * 0.01) * p);
}

int ambition(int averageAmbition, int ratingambition) {
    const int p = toInt16(getPercent(0, 10, averageAmbition));
    return toInt16((ratingambition * 0.01) * p);
}

int promotions(int points, double promomax, int ratingpromo) {
    const int p = toInt16(getPercent(0, promomax, points));
    return toInt16((ratingpromo * 0.01) * p);
}

int chance(double draw, int ratingrnd) {
    const int roll = floorInt16(draw * 100 + 1);
    return toInt16((ratingrnd * 0.01) * roll);
}

int building(int) {
    return 0;
}

int clampedSum(const std::array<int, 11>& terms) {
    int sum = 0;
    for (int t : terms)
        sum = add16(sum, t);
    if (sum < 1)
        return 1;
    if (sum > 100)
        return 100;
    return sum;
}

} // namespace zorvane::ratingTerms
