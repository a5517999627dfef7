#include "reputation/promoManager.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

namespace zorvane {

const std::array<const char*, 4> promoManager::gridHeader = {"Promo", "PTS", "#", "Price"};

namespace {
const std::array<const char*, 5> mediaNames = {"Nickel", "Paper", "Radio", "Billboard", "TV"};
}

std::size_t promoManager::checkedIndex(int index) const {
    if (index < 0 || index >= mediaCount)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: promotion " + std::to_string(index));
    return static_cast<std::size_t>(index);
}

// Names the media and sets each ad's daily cost from the math file. The point labels are
// written here once: a later reload of the math file changes the points but not the labels.
void promoManager::promosSetup() {
    for (std::size_t i = 0; i < mediaCount; ++i) {
        promoName[i] = mediaNames[i];
        promoCost[i] = game_.math.promocost[i];
        const int points = game_.math.promo[i];
        pointLabels_[i] = "+" + std::to_string(points) + (points == 1 ? " Point" : " Points");
    }
    showPromotions();
}

int promoManager::pointsNow() const {
    int sum = 0;
    for (std::size_t i = 0; i < mediaCount; ++i)
        sum = add16(sum, mul16(promoRunning[i], game_.math.promo[i]));
    return sum;
}

// The points of all running ads, in 16-bit arithmetic; the sum is kept as the last total.
int promoManager::getPromoPoints() const {
    totalPoints_ = pointsNow();
    return totalPoints_;
}

// What all running ads cost for one day.
double promoManager::getPromoCost() const {
    double sum = 0;
    for (std::size_t i = 0; i < mediaCount; ++i)
        sum += promoRunning[i] * promoCost[i];
    return sum;
}

// One more ad of a medium, if its points fit under promomax on top of the last total.
// Buying costs nothing now: the money goes only by the daily charge.
void promoManager::addPromo(int index) {
    const std::size_t i = checkedIndex(index);
    if (add16(game_.math.promo[i], totalPoints_) <= game_.math.promomax) {
        promoRunning[i] += 1;
        showPromotions();
    } else {
        game_.gameLog("Could not add this promotion, hit maximum possible promotion level.", 0);
    }
}

void promoManager::dropPromo(int index) {
    const std::size_t i = checkedIndex(index);
    if (promoRunning[i] >= 1) {
        promoRunning[i] -= 1;
        showPromotions();
    } else {
        game_.gameLog("You aren't running any " + promoName[i] + " ads!", 0);
    }
}

void promoManager::dropAllPromos() {
    for (Int16& running : promoRunning)
        running = 0;
    showPromotions();
}

// The day's charge for all running ads, all or nothing: when it is refused nothing is paid
// and every ad stops. With no ad running the charge is 0, refused only below 1 in funds.
void promoManager::promosNextDay() {
    const double total = getPromoCost();
    if (!game_.finances.spend(total, "promotions")) {
        game_.gameLog("Couldn't afford to pay promotions, all promos stopped!!", 0);
        dropAllPromos();
    }
}

// Each year every medium's daily cost grows by the inflation percent.
void promoManager::promosNextYear() {
    for (double& cost : promoCost)
        cost = (game_.math.inflation * 0.01) * cost + cost;
    showPromotions();
}

// Recomputes the total points (addPromo measures against it) and has the screen repainted.
void promoManager::showPromotions() {
    getPromoPoints();
    game_.screen().refresh(View::Promotions);
}

int promoManager::mediumPoints(int index) const {
    const std::size_t i = checkedIndex(index);
    return mul16(promoRunning[i], game_.math.promo[i]);
}

void promoManager::savePromotions(LineWriter& out) const {
    out << "<promotions>";
    for (std::size_t i = 0; i < mediaCount; ++i) {
        out << "running " + std::to_string(i) + "=" + std::to_string(promoRunning[i]);
        out << "cost " + std::to_string(i) + "=" + numberText(promoCost[i]);
    }
    out << "</promotions>";
}

// Reads "running 0" to "running 4" and "cost 0" to "cost 4"; a saved game thus keeps the
// grown costs, not the math file's.
void promoManager::loadPromotions(LineReader& in) {
    readSection(in, [&](const std::string& rawKey, const std::string& value) {
        const std::string key = toLower(rawKey);
        for (std::size_t i = 0; i < mediaCount; ++i) {
            if (key == "running " + std::to_string(i))
                promoRunning[i] = toInt16(leadingNumber(value));
            else if (key == "cost " + std::to_string(i))
                promoCost[i] = leadingNumber(value);
        }
    });
    showPromotions();
}

} // namespace zorvane
