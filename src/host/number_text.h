// Finds the decimal number that a text begins with.
#pragma once

#include <cstddef>
#include <string_view>

namespace quendal {

enum class DecimalSigns { Point, PointOrComma };

struct ScannedNumber {
    double value = 0;       // infinite above the range of a double, 0 below it
    std::size_t length = 0; // in bytes; 0 when the text doesn't begin with a number

    explicit operator bool() const { return length > 0; }
};

// Digits, decimal sign, digits, and "E" with an exponent, without sign and blanks before it. An "E"
// without digits behind it doesn't belong to the number.
ScannedNumber scanNumber(std::string_view text, DecimalSigns signs);

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t';
}
std::string_view trimBlanks(std::string_view text);

} // namespace quendal
