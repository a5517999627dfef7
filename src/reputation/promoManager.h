#pragma once
#include "core/Numbers.h"

#include <array>
#include <string>
#include <vector>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

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

// The theater's advertising in five media. Each ad bought adds its medium's points, which
// raise demand and the rating, and costs its price every day until it is dropped.
class promoManager {
  public:
    static constexpr int mediaCount = 5;
    static const std::array<const char*, 4> gridHeader; // "Promo", "PTS", "#", "Price"

    explicit promoManager(Game& game) : game_(game) {}

    std::array<std::string, 5> promoName{};
    std::array<Int16, 5> promoRunning{};
    std::array<double, 5> promoCost{};

    void promosSetup();
    int getPromoPoints() const;
    double getPromoCost() const;
    void addPromo(int index);
    void dropPromo(int index);
    void dropAllPromos();
    void promosNextDay();
    void promosNextYear();
    void showPromotions();

    void savePromotions(LineWriter& out) const;
    void loadPromotions(LineReader& in);

    // The points the running ads give now, without storing them as the last total.
    int pointsNow() const;
    // The last total that getPromoPoints computed: what addPromo measures against.
    int totalPoints() const { return totalPoints_; }
    // The screen's texts.
    PromotionsView view() const;

    Game& game() { return game_; }

  private:
    std::size_t checkedIndex(int index) const;

    Game& game_;
    mutable Int16 totalPoints_; // last sum computed by getPromoPoints
    std::array<std::string, 5> pointLabels_{};
};

} // namespace zorvane
