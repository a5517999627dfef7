#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zorvane {

class promoManager;
class ratingManager;

// What the promotions screen and the main screen's rating display show, built from the
// reputation's state. The screens only draw these.

// The promotions screen's fixed captions, sizes and colours.
namespace promoCaptions {
inline constexpr const char* header = "Promotions"; // lblHeader
// lblPromoLabel 0 to 4, by medium.
inline constexpr std::array<const char*, 5> media{"Nickel Ad", "Newspaper ad", "Radio ad",
                                                  "Billboard ad", "Television ad"};
inline constexpr const char* buy = "Buy";                 // lbcAddAd
inline constexpr const char* drop = "Drop";               // lbcDropAd
inline constexpr const char* dropAll = "Drop All Promos"; // lbcDropAll
inline constexpr const char* dropAllQuestion = "Are you sure you want to stop all promotions?";
inline constexpr const char* current = "Current Promotions:";     // Label1
inline constexpr const char* level = "Current Promo Level:";      // lblCurrentPromoLevelLabel
inline constexpr const char* totalPaid = "Total Daily Payments:"; // lblTotalPaid
inline constexpr const char* hint =
    "Each ad runs until it is dropped and costs its price every day. Its points draw people "
    "to every show and lift the theater's rating.";
inline constexpr const char* priceTip = "What one ad of this kind costs every day";
inline constexpr std::array<int, 4> gridColumnWidths{1250, 400, 250, 650}; // grdPromos, twips
inline constexpr std::uint32_t buttonColour = 0xFFC0C0; // the lbc buttons, blue-green-red
} // namespace promoCaptions

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
