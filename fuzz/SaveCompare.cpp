#include "SaveCompare.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace zorvane::fuzz {

namespace {

// The open tags of the sections after <version>, as the container writes them.
constexpr std::array<const char*, 13> sectionTags = {
    "<math>",   "<calendar>",  "<finances>",    "<positions>", "<emps>",
    "<movies>", "<showtimes>", "<concessions>", "<arcades>",   "<promotions>",
    "<loans>",  "<ratings>",   "<building>"};

bool isSectionTag(const std::string& line) {
    return std::find(sectionTags.begin(), sectionTags.end(), line) != sectionTags.end();
}

// A game saved with no staff writes no </emps>, so loading it reads every later section as
// part of the staff and keeps the loading game's own values for them. Only what stands
// before the first section after <emps> is then read back; the rest is cut from both.
std::size_t readBackEnd(const std::vector<std::string>& lines) {
    const auto emps = std::find(lines.begin(), lines.end(), "<emps>");
    if (emps == lines.end())
        return lines.size();
    for (auto it = emps + 1; it != lines.end(); ++it) {
        if (*it == "</emps>")
            return lines.size();
        if (isSectionTag(*it))
            return static_cast<std::size_t>(it - lines.begin());
    }
    return lines.size();
}

std::vector<std::string> comparable(const std::string& text) {
    std::vector<std::string> lines = saveLines(text);
    lines.resize(readBackEnd(lines));
    return lines;
}

} // namespace

std::vector<std::string> saveLines(const std::string& text) {
    std::vector<std::string> lines;
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' || c == '\n') {
            lines.push_back(line);
            line.clear();
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
        } else {
            line += c;
        }
    }
    if (!line.empty())
        lines.push_back(line);
    return lines;
}

std::string firstDifference(const std::string& first, const std::string& second) {
    const std::vector<std::string> a = comparable(first);
    const std::vector<std::string> b = comparable(second);
    const std::size_t n = std::max(a.size(), b.size());
    for (std::size_t i = 0; i < n; ++i) {
        const std::string la = i < a.size() ? a[i] : "(end of file)";
        const std::string lb = i < b.size() ? b[i] : "(end of file)";
        if (la != lb)
            return "line " + std::to_string(i + 1) + ": '" + la + "' then '" + lb + "'";
    }
    return "";
}

} // namespace zorvane::fuzz
