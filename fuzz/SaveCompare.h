#pragma once
#include <string>
#include <vector>

namespace zorvane::fuzz {

// Compares two saved games line by line, leaving out what the game writes but does not read
// back. The two games being compared start alike (same data, same seed), so a value that a
// reader skips (histfunds(0), a person's num=, the building's remodel cost and broken flag,
// and what is not saved at all: missed payments, months since the last raise, the hire
// table, the goal) holds the same start value in both and needs no exception. What does:
// a game saved with no staff, whose later sections are not read back at all.
// Returns "" when they agree, else where and how they first differ.
std::string firstDifference(const std::string& first, const std::string& second);

// The lines of a saved game (CR LF, LF or CR ends a line).
std::vector<std::string> saveLines(const std::string& text);

} // namespace zorvane::fuzz
