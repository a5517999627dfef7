#pragma once
#include "core/Game.h"

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
};

// The names `--lab` accepts.
std::vector<std::string> strategyNames();
// A fresh strategy of that name (each game gets its own); null for an unknown name.
std::unique_ptr<Strategy> makeStrategy(const std::string& name);

} // namespace zorvane::lab
