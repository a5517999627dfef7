#pragma once
#include "Strategy.h"

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace zorvane::lab {

// A player who clicks about at random: every day a few actions drawn from every family of
// the screens (staff, movies and showtimes, prices, ads, snacks, arcade, promotions, the
// bank and the building), each with arguments a player could enter. It draws from its own
// generator, seeded from the game's seed, so the game's own dice roll as they would.
//
// It is the soak test of the game: whatever it does must never end in a fatal error. The
// only care it takes is the care the screens ask of a player: it keeps the snack storeroom
// below the 16-bit limit the game warns about.
class RandomStrategy : public Strategy {
  public:
    bool playsOnAfterLoss() const override { return true; }
    explicit RandomStrategy(std::uint64_t seed);

    void beforeDay(Game& game) override;

    // How often each operation was used, by the simulator's command word ("hire",
    // "buymovie", "promo add", ...).
    const std::map<std::string, int>& tally() const { return tally_; }
    // Every command word the strategy can use.
    static const std::vector<std::string>& commands();

  private:
    int pick(int lo, int hi); // lo to hi, both included
    bool chance(int percent) { return pick(1, 100) <= percent; }
    std::string money(int lo, int hi); // a price as typed: "$4.75", "3", "12.50"
    std::string someText();
    std::vector<int> someShowtimes();
    void did(const char* command) { ++tally_[command]; }

    void staff(Game& game);
    void movies(Game& game);
    void showtimes(Game& game);
    void prices(Game& game);
    void snacks(Game& game);
    void arcade(Game& game);
    void arcadeMachine(Game& game);
    void promotions(Game& game);
    void bank(Game& game);
    void building(Game& game);

    std::mt19937_64 rng_;
    std::map<std::string, int> tally_;
};

} // namespace zorvane::lab
