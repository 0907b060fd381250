#include "host/number_text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>

namespace quendal {

namespace {

std::size_t skipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && isDigit(text[at])) {
        ++at;
    }
    return at;
}

std::size_t skipExponent(std::string_view text, std::size_t at) {
    if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) {
        return at;
    }
    std::size_t digits = at + 1;
    if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) {
        ++digits;
    }
    const std::size_t end = skipDigits(text, digits);
    return end > digits ? end : at;
}

// Cut to a range that no text of digits can bring back into that of a double.
long long exponentOf(std::string_view exponent) {
    constexpr long long kBeyond = 1'000'000'000'000;
    const bool negative = exponent.front() == '-';
    exponent.remove_prefix(negative || exponent.front() == '+' ? 1 : 0);
    long long value = 0;
    const auto read = std::from_chars(exponent.data(), exponent.data() + exponent.size(), value);
    value = read.ec == std::errc() ? std::min(value, kBeyond) : kBeyond;
    return negative ? -value : value;
}

// `number` lies outside the range of a double: above it or below?
bool isHuge(std::string_view number) {
    const std::size_t e = number.find('e');
    const std::string_view mantissa = number.substr(0, e);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = std::min(mantissa.find_first_not_of("0."), mantissa.size());
    const long long exponent = e == std::string_view::npos ? 0 : exponentOf(number.substr(e + 1));
    return static_cast<long long>(point) - static_cast<long long>(first) + exponent > 0;
}

double toDouble(std::string_view number) {
    double value = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    if (read.ec == std::errc::result_out_of_range) {
        return isHuge(number) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return value;
}

} // namespace

ScannedNumber scanNumber(std::string_view text, DecimalSigns signs) {
    const std::size_t whole = skipDigits(text, 0);
    std::size_t end = whole;
    if (end < text.size() &&
        (text[end] == '.' || (signs == DecimalSigns::PointOrComma && text[end] == ','))) {
        end = skipDigits(text, end + 1);
    }
    const bool anyDigit = whole > 0 || end > whole + 1;
    if (!anyDigit) {
        return {};
    }
    end = skipExponent(text, end);
    std::string number(text.substr(0, end));
    std::replace(number.begin(), number.end(), ',', '.');
    std::replace(number.begin(), number.end(), 'E', 'e');
    return {toDouble(number), end};
}

std::string_view trimBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

} // namespace quendal
