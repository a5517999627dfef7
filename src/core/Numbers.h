#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace zorvane {

// The number rules of the whole game.
//  - A double stored into a 16- or 32-bit integer rounds to nearest, ties to even.
//  - `Int` floors toward minus infinity.
//  - The leading number of a text: blanks skipped, the longest number at the start, else 0.
//  - A 16-bit overflow is fatal: no wrap-around, no saturation.

// The cold path of every range check: throws the overflow error.
[[noreturn]] void throwOverflow(double value, const char* into);

// `Int`: floor toward minus infinity, kept as a double (money). Done by hand for the common
// range because the library call is a measurable share of a busy day.
inline double Int(double value) {
    if (value > -4503599627370496.0 && value < 4503599627370496.0) {
        const double t = static_cast<double>(static_cast<long long>(value));
        return t > value ? t - 1.0 : t;
    }
    return value; // already whole, or not a number
}

double roundHalfEven(double value);
std::int32_t toInt32(double value);    // rounded, range-checked
std::int32_t floorInt32(double value); // `Int`, into 32 bits

// Rounded half to even, range-checked.
inline std::int16_t toInt16(double value) {
    const double r = roundHalfEven(value);
    if (!(r >= -32768.0 && r <= 32767.0))
        throwOverflow(value, "a 16-bit integer");
    return static_cast<std::int16_t>(r);
}

// `Int`, into 16 bits.
inline std::int16_t floorInt16(double value) {
    const double r = Int(value);
    if (!(r >= -32768.0 && r <= 32767.0))
        throwOverflow(value, "a 16-bit integer");
    return static_cast<std::int16_t>(r);
}

// An exact integer that must fit 16 bits.
inline std::int16_t checkedInt16(long long value) {
    if (value < -32768 || value > 32767)
        throwOverflow(static_cast<double>(value), "a 16-bit integer");
    return static_cast<std::int16_t>(value);
}

// The leading number of a text, as the game reads every number a player or a file wrote.
double leadingNumber(std::string_view text);
// The strict conversion: the whole text (blanks around it allowed) must be a number.
double strictNumber(std::string_view text, const std::string& what);

inline std::int16_t add16(int a, int b) {
    return checkedInt16(static_cast<long long>(a) + b);
}
inline std::int16_t sub16(int a, int b) {
    return checkedInt16(static_cast<long long>(a) - b);
}
inline std::int16_t mul16(int a, int b) {
    return checkedInt16(static_cast<long long>(a) * b);
}

// A 16-bit signed integer whose every store is range-checked. It reads as an int, so
// arithmetic runs in int and is checked when the result is stored back (`x = x * 3` traps
// when the product passes 32767). A double must be converted on purpose (toInt16 or
// floorInt16), never silently truncated. Construction from int is explicit so that an
// expression mixing the two always computes in int.
class Int16 {
  public:
    constexpr Int16() = default;
    explicit Int16(int value) : value_(checkedInt16(value)) {}
    explicit Int16(long long value) : value_(checkedInt16(value)) {}
    explicit Int16(double) = delete;

    // Stores are checked: assigning an int out of range is an overflow.
    Int16& operator=(int value) {
        value_ = checkedInt16(value);
        return *this;
    }
    Int16& operator=(long long value) {
        value_ = checkedInt16(value);
        return *this;
    }
    Int16& operator=(double) = delete;

    operator int() const { return value_; } // NOLINT: implicit on purpose
    std::int16_t value() const { return value_; }

    Int16& operator+=(int d) { return *this = static_cast<long long>(value_) + d; }
    Int16& operator-=(int d) { return *this = static_cast<long long>(value_) - d; }
    Int16& operator++() { return *this += 1; }
    Int16& operator--() { return *this -= 1; }

  private:
    std::int16_t value_ = 0;
};

// A number printed as the saved game writes doubles: shortest form, up to 15 digits.
std::string numberText(double value);
// The same with one blank before a non-negative number, as the older sections write it.
std::string numberTextSigned(double value);
// A number with a fixed count of decimals (0 to 100), rounded: "1234.50".
std::string fixedText(double value, int decimals);
// All of these read and write with a point and no grouping, whatever locale the process
// runs in: the files of one player read the same for every other.

} // namespace zorvane
