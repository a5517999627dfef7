#pragma once
#include <array>
#include <string>
#include <vector>

namespace zorvane {

class promoManager;
class ratingManager;

// What the promotions screen and the main screen's rating display show, built from the
// reputation's state. The screens only draw these.

// One line of the "Current Promotions:" table.
struct PromoRow {
    std::string promo; // "Promo": the medium's name
    std::string pts;   // "PTS": its points
    std::string count; // "#": ads running
    std::string price; // "Price": their daily cost
};

// What the promotions screen shows (showPromotions).
struct PromotionsView {
    std::array<std::string, 5> pointLabels; // lblPromoLevelLabel, written at set-up
    std::array<std::string, 5> costLabels;  // lblPromoPriceLabel
    std::vector<PromoRow> rows;             // grdPromos, below its header
    std::string currentPromoLevel;          // lblCurrentPromoLevel: total points
    std::string totalDailyPayments;         // lblTotalMonthlyPayments: the daily cost
};
PromotionsView promotionsView(const promoManager& promos);

// The main screen's rating display, as last refreshed: "57 %" (empty before the first
// refresh) and the bar's width inside a back of the given width.
std::string ratingCaption(const ratingManager& rating);
int ratingBarWidth(const ratingManager& rating, int backWidth);

} // namespace zorvane
