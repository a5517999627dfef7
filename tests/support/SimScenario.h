#pragma once
#include "Simulator.h"
#include "StateJson.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace zorvane::test {

// One thing a table row expects of the game's state (as the simulator's `state` prints it):
// the value at a JSON pointer; with a pointer ending in '#' the size of that list; with an
// expected null the value the state had before the row ran.
struct Check {
    std::string pointer;
    nlohmann::json expected;
};

inline void expectChecks(const nlohmann::json& before, const nlohmann::json& after,
                         const std::vector<Check>& checks) {
    for (const Check& check : checks) {
        std::string pointer = check.pointer;
        const bool size = pointer.back() == '#';
        if (size)
            pointer.pop_back();
        const nlohmann::json::json_pointer at(pointer);
        ASSERT_TRUE(after.contains(at)) << pointer;
        if (size) {
            EXPECT_EQ(after.at(at).size(), check.expected.get<std::size_t>()) << pointer;
        } else {
            EXPECT_EQ(after.at(at), check.expected.is_null() ? before.at(at) : check.expected)
                << pointer;
        }
    }
}

// A whole game on a copy of the shipped data, after start-up and "Play !", driven by script
// lines exactly as zorvane-sim runs them.
class SimScenario : public ::testing::Test {
  protected:
    DataFolder data;
    std::ostringstream out;
    std::unique_ptr<sim::Simulator> simulator;
    int lineNumber = 0;

    void start(std::uint64_t seed) {
        sim::SimOptions options;
        options.dataDir = data.path().string();
        options.seed = seed;
        options.quiet = true;
        simulator = std::make_unique<sim::Simulator>(options, out);
        simulator->startup();
    }
    void run(const std::string& line) { simulator->runLine(line, ++lineNumber); }
    Game& game() { return simulator->game(); }
    nlohmann::json state() { return sim::gameState(game()); }

    // The log lines written since the last call, as one text and as lines.
    std::string log() {
        out.str("");
        run("log");
        const std::string text = out.str();
        out.str("");
        return text;
    }
    std::vector<std::string> logLines() {
        std::vector<std::string> lines;
        std::istringstream in(log());
        for (std::string l; std::getline(in, l);)
            lines.push_back(l);
        return lines;
    }

    static int count(const std::string& text, const std::string& line) {
        int n = 0;
        for (std::size_t p = text.find(line); p != std::string::npos; p = text.find(line, p + 1))
            ++n;
        return n;
    }
    static int count(const std::vector<std::string>& lines, const std::string& line) {
        int n = 0;
        for (const auto& l : lines)
            n += (l == line);
        return n;
    }
    static bool has(const std::string& text, const std::string& line) {
        return text.find(line) != std::string::npos;
    }
};

} // namespace zorvane::test
