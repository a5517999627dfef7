#pragma once
#include <cstdint>
#include <deque>

namespace zorvane {

// The game's one random generator: uniform doubles in [0,1). Every roll of the game draws
// from the Game's instance, in the order the rules give, so a seed replays a whole game.
// The engine is xoshiro256+ (its top 53 bits make the double), seeded through splitmix64: a
// busy day draws thousands of numbers, and this engine is several times faster than a
// Mersenne Twister with equally good doubles.
// The seed of a game started without one: the seconds since local midnight, as the clock
// on the wall reads them (0 to 86399).
std::uint64_t secondsSinceMidnight();

class Random {
  public:
    explicit Random(std::uint64_t seed = 0) { reseed(seed); }

    void reseed(std::uint64_t seed) {
        for (std::uint64_t& word : state_) {
            seed += 0x9e3779b97f4a7c15ULL;
            std::uint64_t z = seed;
            z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
            z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
            word = z ^ (z >> 31);
        }
    }

    // A uniform draw in [0,1).
    double next() {
        ++draws_;
        if (forcing_ && !forced_.empty()) {
            const double v = forced_.front();
            forced_.pop_front();
            return v;
        }
        return static_cast<double>(nextWord() >> 11) * 0x1.0p-53;
    }

    // The percent roll: Int(draw * 100) + 1, so 1 to 100.
    int percentRoll() { return static_cast<int>(next() * 100) + 1; }

    // Tests drive a rule's rolls: the next draws return these values, in order.
    void force(std::initializer_list<double> values) {
        forced_.insert(forced_.end(), values);
        forcing_ = true;
    }
    void force(double value) {
        forced_.push_back(value);
        forcing_ = true;
    }
    std::size_t forcedLeft() const { return forced_.size(); }

    std::uint64_t draws() const { return draws_; }

  private:
    static std::uint64_t rotl(std::uint64_t x, int k) { return (x << k) | (x >> (64 - k)); }
    std::uint64_t nextWord() {
        const std::uint64_t result = state_[0] + state_[3];
        const std::uint64_t t = state_[1] << 17;
        state_[2] ^= state_[0];
        state_[3] ^= state_[1];
        state_[1] ^= state_[2];
        state_[0] ^= state_[3];
        state_[2] ^= t;
        state_[3] = rotl(state_[3], 45);
        return result;
    }

    std::uint64_t state_[4] = {};
    std::deque<double> forced_;
    bool forcing_ = false; // set once a test forces a value: the usual game never looks further
    std::uint64_t draws_ = 0;
};

} // namespace zorvane
