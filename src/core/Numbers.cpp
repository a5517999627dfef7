#include "core/Numbers.h"

#include "core/GameError.h"

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace zorvane {

namespace {

std::string describe(double value) {
    char buf[40];
    std::snprintf(buf, sizeof buf, "%.15g", value);
    return buf;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

} // namespace

void throwOverflow(double value, const char* into) {
    throw GameError(GameError::Kind::Overflow,
                    "overflow: " + describe(value) + " does not fit " + into);
}

double roundHalfEven(double value) {
    // nearbyint follows the current rounding mode, which is round-to-nearest-even unless
    // somebody changed it; do it by hand so the rule cannot depend on the environment.
    const double fl = Int(value);
    const double diff = value - fl;
    if (diff < 0.5)
        return fl;
    if (diff > 0.5)
        return fl + 1.0;
    return std::fmod(fl, 2.0) == 0.0 ? fl : fl + 1.0;
}


std::int32_t toInt32(double value) {
    const double r = roundHalfEven(value);
    if (!(r >= -2147483648.0 && r <= 2147483647.0))
        throwOverflow(value, "a 32-bit integer");
    return static_cast<std::int32_t>(r);
}


std::int32_t floorInt32(double value) {
    const double r = Int(value);
    if (!(r >= -2147483648.0 && r <= 2147483647.0))
        throwOverflow(value, "a 32-bit integer");
    return static_cast<std::int32_t>(r);
}




// Scans the longest number at the start of `text` (after blanks): sign, digits, an optional
// point with digits, an optional exponent. Returns the characters used, 0 if none.
static std::size_t scanNumber(std::string_view text, std::size_t start) {
    std::size_t i = start;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    std::size_t digits = 0;
    while (i < text.size() && isDigit(text[i])) {
        ++i;
        ++digits;
    }
    if (i < text.size() && text[i] == '.') {
        std::size_t j = i + 1;
        std::size_t frac = 0;
        while (j < text.size() && isDigit(text[j])) {
            ++j;
            ++frac;
        }
        if (digits + frac > 0) {
            i = j;
            digits += frac;
        }
    }
    if (digits == 0)
        return 0;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
        std::size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-'))
            ++j;
        std::size_t expDigits = 0;
        while (j < text.size() && isDigit(text[j])) {
            ++j;
            ++expDigits;
        }
        if (expDigits > 0)
            i = j;
    }
    return i - start;
}

// A number beyond the range of a double (1e400, or three hundred and ten digits) is an
// overflow, as the game's number reading has always raised it, not an infinity.
static double parseScanned(std::string_view text) {
    std::string s(text);
    for (char& c : s)
        if (c == 'd' || c == 'D')
            c = 'e';
    const double value = std::strtod(s.c_str(), nullptr);
    if (std::isinf(value))
        throw GameError(GameError::Kind::Overflow,
                        "overflow: the number " + std::string(text) + " is too large");
    return value;
}

double leadingNumber(std::string_view text) {
    std::size_t start = 0;
    while (start < text.size() && text[start] == ' ')
        ++start;
    const std::size_t len = scanNumber(text, start);
    if (len == 0)
        return 0.0;
    return parseScanned(text.substr(start, len));
}

double strictNumber(std::string_view text, const std::string& what) {
    std::size_t start = 0;
    while (start < text.size() && (text[start] == ' ' || text[start] == '\t'))
        ++start;
    const std::size_t len = scanNumber(text, start);
    std::size_t end = start + len;
    while (end < text.size() && (text[end] == ' ' || text[end] == '\t'))
        ++end;
    if (len == 0 || end != text.size())
        throw GameError(GameError::Kind::Type,
                        "type mismatch: " + what + " is not a number: '" + std::string(text) + "'");
    return parseScanned(text.substr(start, len));
}

std::string numberText(double value) {
    char buf[40];
    std::snprintf(buf, sizeof buf, "%.15g", value);
    return buf;
}

std::string numberTextSigned(double value) {
    return (value >= 0 ? " " : "") + numberText(value);
}

} // namespace zorvane
