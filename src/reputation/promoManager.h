#pragma once
#include "core/Numbers.h"

#include <array>
#include <string>
#include <vector>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

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
    // The points that the ads running in one medium give.
    int mediumPoints(int index) const;
    // The captions of the point labels, written at set-up.
    const std::array<std::string, 5>& pointLabels() const { return pointLabels_; }

  private:
    std::size_t checkedIndex(int index) const;

    Game& game_;
    mutable Int16 totalPoints_; // last sum computed by getPromoPoints
    std::array<std::string, 5> pointLabels_{};
};

} // namespace zorvane
