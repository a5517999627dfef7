#include "core/Text.h"

#include "core/GameError.h"
#include "core/Numbers.h"

#include <charconv>
#include <cmath>

namespace zorvane {

std::string stripQuotes(std::string_view text) {
    std::string out;
    for (char c : text)
        if (c != '"')
            out += c;
    return out;
}

std::string digitsOnly(std::string_view text) {
    std::string out;
    for (char c : text)
        if ((c >= '0' && c <= '9') || c == '.')
            out += c;
    return out;
}

double digitsValue(std::string_view text) {
    return leadingNumber(digitsOnly(text));
}

std::string trimRight(std::string_view text) {
    std::size_t end = text.size();
    while (end > 0 && text[end - 1] == ' ')
        --end;
    return std::string(text.substr(0, end));
}

std::string toLower(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return out;
}

namespace {

// The value read back from its 15-significant-digit text, as the game compares amounts.
// The largest doubles round up past the range there and read back as infinite.
double shortest(double value) {
    const std::string text = numberText(value);
    double y = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), y).ec ==
        std::errc::result_out_of_range)
        y = value < 0 ? -HUGE_VAL : HUGE_VAL;
    return y;
}

std::string group(const std::string& digits) {
    std::string out;
    const std::size_t n = digits.size();
    for (std::size_t i = 0; i < n; ++i) {
        if (i > 0 && (n - i) % 3 == 0)
            out += ',';
        out += digits[i];
    }
    return out;
}

} // namespace

std::string formatGrouped(double value, int decimals) {
    // The game's arithmetic never goes past a double's range without an overflow error.
    if (!std::isfinite(value))
        throw GameError(GameError::Kind::Overflow, "overflow: a money value is not finite");
    const bool negative = value < 0;
    // 15 significant digits, then a decimal rounding half away from zero.
    char buf[64];
    const char* const end =
        std::to_chars(buf, buf + sizeof buf, std::fabs(value), std::chars_format::scientific, 14)
            .ptr;
    std::string mant;
    const char* p = buf;
    for (; p != end && *p != 'e'; ++p)
        if (*p != '.')
            mant += *p;
    int exp10 = 0; // the exponent behind the "e": a sign and at least two digits
    for (const char* q = p + 2; q < end; ++q)
        exp10 = exp10 * 10 + (*q - '0');
    if (p + 1 < end && p[1] == '-')
        exp10 = -exp10;
    // mant holds 15 digits d0 d1 ... with the point after d0, scaled by 10^exp10.
    // Integer digits: exp10 + 1 (may be <= 0). Keep exp10 + 1 + decimals digits.
    const int keep = exp10 + 1 + decimals;
    std::string digits; // all digits of the rounded value, without point, decimals at the end
    if (keep < 0) {
        digits = "0";
    } else {
        std::string kept = mant.substr(0, std::min<std::size_t>(mant.size(), keep));
        while (static_cast<int>(kept.size()) < keep)
            kept += '0';
        const bool roundUp = keep < static_cast<int>(mant.size()) && mant[keep] >= '5';
        if (roundUp) {
            int i = static_cast<int>(kept.size()) - 1;
            while (i >= 0 && kept[i] == '9') {
                kept[i] = '0';
                --i;
            }
            if (i >= 0)
                kept[i] = static_cast<char>(kept[i] + 1);
            else
                kept.insert(kept.begin(), '1');
        }
        digits = kept.empty() ? "0" : kept;
    }
    while (static_cast<int>(digits.size()) < decimals + 1)
        digits.insert(digits.begin(), '0');
    std::string intPart = digits.substr(0, digits.size() - decimals);
    const std::string frac = digits.substr(digits.size() - decimals);
    intPart.erase(0, std::min(intPart.find_first_not_of('0'), intPart.size() - 1));
    std::string out = group(intPart);
    if (decimals > 0)
        out += "." + frac;
    const bool allZero = out.find_first_not_of("0.,") == std::string::npos;
    return (negative && !allZero ? "-" : "") + out;
}

std::string formatMoney(double value) {
    const double y = shortest(value);
    const int decimals = (y == Int(y)) ? 0 : 2;
    std::string text = formatGrouped(value, decimals);
    if (!text.empty() && text[0] == '-')
        return "-$" + text.substr(1);
    return "$" + text;
}

std::string formatMoneyShort(double value) {
    if (value < 1000)
        return formatMoney(value);
    const double k = value / 1000;
    const double y = shortest(k);
    if (y == Int(y))
        return "$" + formatGrouped(k, 0) + "k";
    std::string text = formatGrouped(k, 2);
    while (!text.empty() && text.back() == '0')
        text.pop_back();
    if (!text.empty() && text.back() == '.')
        text.pop_back();
    return "$" + text + "k";
}

double getPercent(double min, double max, double value) {
    if (max - min == 0)
        throw GameError(GameError::Kind::DivisionByZero,
                        "division by zero: a percent of a range whose ends are equal (" +
                            numberText(min) + ")");
    return value * 100 / (max - min);
}

std::string dataPath(const std::string& folder, const std::string& name) {
    std::string rel = name;
    for (char& ch : rel)
        if (ch == '\\')
            ch = '/';
    while (!rel.empty() && rel.front() == '/')
        rel.erase(rel.begin());
    if (folder.empty())
        return rel;
    return folder + (folder.back() == '/' ? "" : "/") + rel;
}

int visitorsOf(int crowd, int key) {
    return toInt16(getPercent(0, crowd, key));
}

} // namespace zorvane
