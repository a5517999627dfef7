#pragma once
#include "Simulator.h"
#include "StateJson.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <memory>
#include <sstream>
#include <string>

namespace zorvane::test {

// Checks a table row's expectations of the game's state (as the simulator's `state` prints
// it), written as a JSON object: each key a JSON pointer, each value the one expected there;
// a pointer ending in '#' expects the size of that list, a null the value the state had
// before the row ran.
inline void expectChecks(const nlohmann::json& before, const nlohmann::json& after,
                         const std::string& checks) {
    const nlohmann::json expectations = nlohmann::json::parse(checks);
    for (const auto& [key, expected] : expectations.items()) {
        std::string pointer = key;
        const bool size = pointer.back() == '#';
        if (size)
            pointer.pop_back();
        const nlohmann::json::json_pointer at(pointer);
        ASSERT_TRUE(after.contains(at)) << pointer;
        if (size) {
            EXPECT_EQ(after.at(at).size(), expected.get<std::size_t>()) << pointer;
        } else {
            EXPECT_EQ(after.at(at), expected.is_null() ? before.at(at) : expected) << pointer;
        }
    }
}

// A simulator on the program folder `data`, writing to `out`, after start-up and "Play !"
// on `goal`.
inline std::unique_ptr<sim::Simulator> startSimulator(const DataFolder& data, std::uint64_t seed,
                                                      std::ostream& out, int goal = 0) {
    sim::SimOptions options;
    options.dataDir = data.path().string();
    options.seed = seed;
    options.goal = goal;
    options.quiet = true;
    auto simulator = std::make_unique<sim::Simulator>(options, out);
    simulator->startup();
    return simulator;
}

// A whole game on a copy of the shipped data, after start-up and "Play !" (on `goal`), driven by
// script lines exactly as zorvane-sim runs them.
class SimScenario : public ::testing::Test {
  protected:
    DataFolder data;
    std::ostringstream out;
    std::unique_ptr<sim::Simulator> simulator;
    int lineNumber = 0;

    void start(std::uint64_t seed, int goal = 0) {
        simulator = startSimulator(data, seed, out, goal);
    }
    void run(const std::string& line) { simulator->runLine(line, ++lineNumber); }
    Game& game() { return simulator->game(); }
    nlohmann::json state() { return sim::gameState(game()); }
};

} // namespace zorvane::test
