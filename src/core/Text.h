#pragma once
#include <string>
#include <string_view>

namespace zorvane {

// Small text and number routines the whole game leans on. Pure functions.

std::string stripQuotes(std::string_view text); // every double quote removed
std::string digitsOnly(std::string_view text);  // only "0"-"9" and "." survive
double digitsValue(std::string_view text);      // what a player typed in a money box
std::string trimRight(std::string_view text);   // trailing blanks (code 32) removed
std::string toLower(std::string_view text);
// Equal but for the case of ASCII letters.
inline bool sameText(std::string_view a, std::string_view b) {
    if (a.size() != b.size())
        return false;
    if (a == b)
        return true;
    for (std::size_t i = 0; i < a.size(); ++i) {
        char x = a[i], y = b[i];
        if (x >= 'A' && x <= 'Z')
            x = static_cast<char>(x - 'A' + 'a');
        if (y >= 'A' && y <= 'Z')
            y = static_cast<char>(y - 'A' + 'a');
        if (x != y)
            return false;
    }
    return true;
}

std::string formatMoney(double value);      // $1,500 or $1,500.50
std::string formatMoneyShort(double value); // $999.99, $2k, $2.35k

// value * 100 / (max - min). Kept on purpose: the value is not reduced by min, so this is
// not the position inside the range (min 10, max 20, value 15 gives 150).
double getPercent(double min, double max, double value);

// How many of a show's crowd visit the arcade or the stand, for the key percentarcade or
// percentconcessions, rounded. Kept on purpose: the crowd stands as the range and the key as
// the value, so visitors fall as the crowd grows (key * 100 / crowd) and a small audience
// spends more than a full house. A crowd of 0 is a division by zero.
int visitorsOf(int crowd, int key);

// A value with a fixed number of decimals, rounded half away from zero on its 15-digit
// decimal form (so 2.345 rounds to 2.35 as the player reads it), with "," grouping.
std::string formatGrouped(double value, int decimals);

// A file of the program's folder: "images\arcades\x.png" style names work too (backslashes
// are subfolders, leading ones are dropped). An empty folder leaves the name relative.
std::string dataPath(const std::string& folder, const std::string& name);

} // namespace zorvane
