#pragma once
#include <cstdint>
#include <deque>
#include <random>

namespace zorvane {

// The game's one random generator: uniform doubles in [0,1). Every roll of the game draws
// from the Game's instance, in the order the rules give, so a seed replays a whole game.
class Random {
public:
    explicit Random(std::uint64_t seed = 0) { reseed(seed); }

    void reseed(std::uint64_t seed) { engine_.seed(seed); }

    // A uniform draw in [0,1).
    double next() {
        ++draws_;
        if (!forced_.empty()) {
            const double v = forced_.front();
            forced_.pop_front();
            return v;
        }
        return static_cast<double>(engine_() >> 11) * 0x1.0p-53;
    }

    // The percent roll: Int(draw * 100) + 1, so 1 to 100.
    int percentRoll() { return static_cast<int>(next() * 100) + 1; }

    // Tests drive a rule's rolls: the next draws return these values, in order.
    void force(std::initializer_list<double> values) { forced_.insert(forced_.end(), values); }
    void force(double value) { forced_.push_back(value); }
    std::size_t forcedLeft() const { return forced_.size(); }

    std::uint64_t draws() const { return draws_; }

private:
    std::mt19937_64 engine_;
    std::deque<double> forced_;
    std::uint64_t draws_ = 0;
};

} // namespace zorvane
