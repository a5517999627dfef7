#include "reputation/ReputationTexts.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "reputation/promoManager.h"
#include "reputation/ratingManager.h"

namespace zorvane {

PromotionsView promotionsView(const promoManager& promos) {
    PromotionsView v;
    v.pointLabels = promos.pointLabels();
    for (int i = 0; i < promoManager::mediaCount; ++i) {
        const auto k = static_cast<std::size_t>(i);
        v.costLabels[k] = formatMoney(promos.promoCost[k]);
        const int pts = promos.mediumPoints(i);
        if (pts > 0)
            v.rows.push_back({promos.promoName[k], std::to_string(pts),
                              std::to_string(promos.promoRunning[k]),
                              formatMoneyShort(promos.promoRunning[k] * promos.promoCost[k])});
    }
    v.currentPromoLevel = std::to_string(promos.pointsNow());
    v.totalDailyPayments = formatMoney(promos.getPromoCost());
    return v;
}

std::string ratingCaption(const ratingManager& rating) {
    return rating.ratingDisplayed() ? std::to_string(rating.displayedRating()) + " %" : "";
}

int ratingBarWidth(const ratingManager& rating, int backWidth) {
    return floorInt32(rating.displayedRating() * static_cast<double>(backWidth) / 100);
}

} // namespace zorvane
