#pragma once
#include "session/Game.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zorvane::lab {

// A built-in player for the balance lab. It acts through the same operations the screens
// call, and reads only what a player can see.
class Strategy {
  public:
    virtual ~Strategy() = default;
    // Called once after "Play !", before the first day the strategy plays.
    virtual void begin(Game&) {}
    // Called before each day.
    virtual void beforeDay(Game& game) = 0;
    // Whether it goes on playing once the lost-game picture has come (as a player may, for the
    // clock does not stop). The loss still counts; the random player does, to soak the game.
    virtual bool playsOnAfterLoss() const { return false; }
};

// The names `--lab` accepts.
std::vector<std::string> strategyNames();
// A fresh strategy of that name (each game gets its own); null for an unknown name. A
// strategy that rolls dice seeds its own generator from `seed`, the game's seed, so that a
// lab game replays exactly without taking a single roll from the game's generator.
std::unique_ptr<Strategy> makeStrategy(const std::string& name, std::uint64_t seed = 0);

// The strategies, one file each.
std::unique_ptr<Strategy> makeIdleStrategy();
std::unique_ptr<Strategy> makeAdvisorStrategy();
std::unique_ptr<Strategy> makeRandomStrategy(std::uint64_t seed);

} // namespace zorvane::lab
