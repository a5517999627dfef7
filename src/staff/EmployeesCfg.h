#pragma once
#include <functional>
#include <string>

namespace zorvane {

// One line of employees.cfg: name|experience|reliability|ambition, a "#" starting a comment.
struct CandidateLine {
    std::string name;
    int exp = 0;
    int rel = 0;
    int amb = 0;

    // Only a named person with all three numbers at least 1 becomes a candidate.
    bool usable() const { return !name.empty() && exp >= 1 && rel >= 1 && amb >= 1; }
};

// Cuts the comment and splits the fields. The name counts every character as it stands;
// each number is the leading number of its field, floored into 16 bits. Each character of
// a fifth or later field is told to `complain` at once, one message a character.
CandidateLine readCandidateLine(const std::string& line,
                                const std::function<void(const std::string&)>& complain);

} // namespace zorvane
