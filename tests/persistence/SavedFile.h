#pragma once
// Saved games taken apart: their lines, their sections, and the part a load brings back.
#include "core/LineFile.h"
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace zorvane::test {

// The sections of a saved game, in file order: each open tag with its lines up to and with
// its own close tag (nested blocks have other names, so they stay inside).
struct FileSection {
    std::string tag;
    std::vector<std::string> lines;
};

inline std::vector<std::string> fileLines(const std::string& text) {
    std::istringstream in(text);
    LineReader reader(in, "saved game");
    std::vector<std::string> lines;
    std::string line;
    while (reader.readLine(line))
        lines.push_back(line);
    return lines;
}

inline std::vector<FileSection> splitSections(const std::string& text) {
    std::vector<FileSection> out;
    const std::vector<std::string> lines = fileLines(text);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string& open = lines[i];
        if (open.size() < 3 || open.front() != '<' || open[1] == '/')
            continue;
        FileSection s{open, {open}};
        const std::string close = "</" + open.substr(1);
        while (++i < lines.size()) {
            s.lines.push_back(lines[i]);
            if (lines[i] == close)
                break;
        }
        out.push_back(std::move(s));
    }
    return out;
}

// The part of a saved game that a load into a fresh session brings back, as the game's rules
// have it:
//  - a game saved with no staff has no </emps>: the staff's reader then runs on to the end of
//    the file, and every later section keeps the value it had in the loading session;
//  - the building's broken flag is never read back (its key is compared in the wrong case),
//    so a theater saved while out of order loads as sound, and its repair cost as 0; nor is
//    its remodel cost, written with no "=".
inline std::string travellingPart(const std::string& text) {
    std::string out;
    bool inBuilding = false;
    const std::vector<std::string> lines = fileLines(text);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        if (line == "<emps>" && std::find(lines.begin() + static_cast<long>(i), lines.end(),
                                          "</emps>") == lines.end()) {
            out += line + "\r\n";
            while (++i < lines.size() && lines[i].rfind('<', 0) != 0)
                out += lines[i] + "\r\n";
            break;
        }
        if (line == "<building>")
            inBuilding = true;
        else if (line == "</building>")
            inBuilding = false;
        else if (inBuilding &&
                 (line.rfind("IamBroken=", 0) == 0 || line.rfind("repairCost=", 0) == 0 ||
                  line.rfind("remodelcost", 0) == 0))
            continue;
        out += line + "\r\n";
    }
    return out;
}

// Expects two saved games to agree section by section, but for the sections tagged `skip`.
inline void expectSameSections(const std::string& expected, const std::string& actual,
                               const std::string& when, const std::string& skip = "") {
    const auto a = splitSections(expected), b = splitSections(actual);
    ASSERT_EQ(a.size(), b.size()) << when;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i].tag != skip) {
            EXPECT_EQ(a[i].lines, b[i].lines) << when << ": section " << a[i].tag;
        }
    }
}

inline std::string joinLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& l : lines)
        text += l + "\r\n";
    return text;
}

} // namespace zorvane::test
