#include "core/Numbers.h"

#include "core/GameError.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace zorvane {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

void throwOverflow(double value, const char* into) {
    throw GameError(GameError::Kind::Overflow,
                    "overflow: " + numberText(value) + " does not fit " + into);
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

// Where the first significant digit of a scanned number stands: 0 for the units, 2 for the
// hundreds, -1 for the tenths. Only asked of a number out of a double's range, to tell a
// number too large from one too small.
static long long magnitude(std::string_view s) {
    long long intDigits = 0, fracZeros = 0;
    bool fraction = false, found = false;
    std::size_t i = 0;
    for (; i < s.size() && s[i] != 'e'; ++i) {
        if (s[i] == '.') {
            fraction = true;
        } else if (s[i] != '0' || found) {
            found = true;
            intDigits += !fraction;
        } else {
            fracZeros += fraction; // a zero before the first significant digit
        }
    }
    long long exponent = 0;
    bool negative = false;
    for (++i; i < s.size(); ++i) {
        if (s[i] == '-')
            negative = true;
        else if (isDigit(s[i]) && exponent < 1000000000)
            exponent = exponent * 10 + (s[i] - '0');
    }
    const long long place = intDigits > 0 ? intDigits - 1 : -fracZeros - 1;
    return place + (negative ? -exponent : exponent);
}

// Reads what scanNumber found, with the same result under any locale of the process. A
// number beyond the range of a double (1e400, or three hundred and ten digits) is an
// overflow, as the game's number reading has always raised it, not an infinity; one too
// small to tell from 0 (1e-400) reads as 0.
static double parseScanned(std::string_view text) {
    std::string s(text);
    for (char& c : s)
        if (c == 'd' || c == 'D' || c == 'E')
            c = 'e';
    const bool negative = !s.empty() && s[0] == '-';
    if (!s.empty() && (s[0] == '+' || s[0] == '-'))
        s.erase(0, 1);
    double value = 0;
    const auto [end, error] = std::from_chars(s.data(), s.data() + s.size(), value);
    (void)end;
    if (error == std::errc::result_out_of_range) {
        if (magnitude(s) >= 0)
            throw GameError(GameError::Kind::Overflow,
                            "overflow: the number " + std::string(text) + " is too large");
        value = 0;
    }
    return negative ? -value : value;
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
    const auto end =
        std::to_chars(buf, buf + sizeof buf, value, std::chars_format::general, 15).ptr;
    return std::string(buf, end);
}

std::string fixedText(double value, int decimals) {
    char buf[512]; // a double's largest whole part has 309 digits
    const auto end =
        std::to_chars(buf, buf + sizeof buf, value, std::chars_format::fixed, decimals).ptr;
    return std::string(buf, end);
}

std::string numberTextSigned(double value) {
    return (value >= 0 ? " " : "") + numberText(value);
}

} // namespace zorvane
