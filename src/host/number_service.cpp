#include "host/number_service.h"

#include "host/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace quendal {

namespace {

constexpr int kDigits = 15;
constexpr int kMaxPlaces = 15;

// The value to 15 significant digits: 0.digits times 10^exponent.
struct Decimal {
    std::string digits;
    int exponent = 0;
};

Decimal decimalOf(double magnitude) {
    char buffer[32];
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, magnitude,
                                       std::chars_format::scientific, kDigits - 1);
    const std::string_view text(buffer, static_cast<std::size_t>(written.ptr - buffer));
    const std::size_t e = text.find('e');
    Decimal decimal{.digits = std::string(1, text[0])};
    decimal.digits.append(text.substr(2, e - 2));
    const char* exponent = text.data() + e + (text[e + 1] == '+' ? 2 : 1);
    std::from_chars(exponent, written.ptr, decimal.exponent);
    ++decimal.exponent;
    return decimal;
}

bool roundsUp(std::string_view kept, std::string_view rest) {
    if (rest.empty() || rest[0] != '5') {
        return !rest.empty() && rest[0] > '5';
    }
    const bool exactHalf = rest.find_first_not_of('0', 1) == std::string_view::npos;
    return !exactHalf || (!kept.empty() && (kept.back() - '0') % 2 == 1);
}

void addOne(std::string& digits) {
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return;
        }
        *digit = '0';
    }
    digits.insert(digits.begin(), '1');
}

// The digits of the value times 10^places as a whole number.
std::string roundedDigits(const Decimal& decimal, int places) {
    const int keep = decimal.exponent + places;
    if (keep < 0) {
        return {};
    }
    const auto count = static_cast<std::size_t>(keep);
    std::string kept = decimal.digits.substr(0, count);
    if (count > decimal.digits.size()) {
        kept.append(count - decimal.digits.size(), '0');
    } else if (roundsUp(kept, std::string_view(decimal.digits).substr(count))) {
        addOne(kept);
    }
    return kept;
}

std::string notFinite(double value) {
    if (std::isnan(value)) {
        return "nan";
    }
    return value < 0 ? "-inf" : "inf";
}

// A sign is no part of the number, so that "-2^2" reads as elsewhere: minus four.
class PowerProduct {
  public:
    explicit PowerProduct(std::string_view text) : rest_(text) {}

    std::optional<double> read() {
        double product = 1;
        do {
            product *= signedPower();
        } while (!failed_ && take('*'));
        if (failed_ || !rest_.empty() || !std::isfinite(product)) {
            return std::nullopt;
        }
        return product;
    }

  private:
    bool take(char c) {
        skipBlanks();
        if (rest_.empty() || rest_.front() != c) {
            return false;
        }
        rest_.remove_prefix(1);
        skipBlanks();
        return true;
    }
    void skipBlanks() {
        while (!rest_.empty() && isBlank(rest_.front())) {
            rest_.remove_prefix(1);
        }
    }
    double signedPower() {
        const bool negative = !rest_.empty() && rest_.front() == '-';
        if (negative || (!rest_.empty() && rest_.front() == '+')) {
            rest_.remove_prefix(1);
        }
        return negative ? -power() : power();
    }
    double power() {
        const ScannedNumber base = scanNumber(rest_, DecimalSigns::PointOrComma);
        if (!base) {
            failed_ = true;
            return 0;
        }
        rest_.remove_prefix(base.length);
        return take('^') ? std::pow(base.value, signedPower()) : base.value;
    }

    std::string_view rest_;
    bool failed_ = false;
};

} // namespace

std::string NumberService::Format(double value, int places) const {
    if (!std::isfinite(value)) {
        return notFinite(value);
    }
    const auto decimals = static_cast<std::size_t>(std::clamp(places, 0, kMaxPlaces));
    std::string text = roundedDigits(decimalOf(std::fabs(value)), static_cast<int>(decimals));
    if (text.size() < decimals + 1) {
        text.insert(0, decimals + 1 - text.size(), '0');
    }
    const bool isZero = text.find_first_not_of('0') == std::string::npos;
    if (decimals > 0) {
        text.insert(text.size() - decimals, 1, static_cast<char>(sign_));
    }
    return value < 0 && !isZero ? "-" + text : text;
}

double NumberService::Parse(std::string_view text) const {
    return ParseVariant(text).value_or(std::numeric_limits<double>::quiet_NaN());
}

std::optional<double> NumberService::ParseVariant(std::string_view text) const {
    // Longer than any input takes; bounds the depth of "2^2^2^...".
    constexpr std::size_t kMaxLength = 1000;
    const std::string_view trimmed = trimBlanks(text);
    return trimmed.size() > kMaxLength ? std::nullopt : PowerProduct(trimmed).read();
}

std::string NumberService::text(double value) const {
    std::string text = pointText(value);
    std::replace(text.begin(), text.end(), '.', static_cast<char>(sign_));
    return text;
}

std::string NumberService::pointText(double value) {
    if (!std::isfinite(value)) {
        return notFinite(value);
    }
    char buffer[32];
    const double shown = value == 0 ? 0.0 : value; // no "-0"
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, shown, std::chars_format::general, kDigits);
    std::string text(buffer, written.ptr);
    std::replace(text.begin(), text.end(), 'e', 'E');
    return text;
}

std::string NumberService::classicText(double value) {
    std::string text = pointText(value);
    const std::size_t zero = text.front() == '-' ? 1 : 0;
    if (text.compare(zero, 2, "0.") == 0) {
        text.erase(zero, 1);
    }
    return zero == 0 ? " " + text : text;
}

std::string NumberService::picture(double value, std::string_view picture) const {
    const std::size_t point = std::min(picture.find('.'), picture.size());
    const auto zeros =
        std::count(picture.begin() + static_cast<std::ptrdiff_t>(point), picture.end(), '0');
    return Format(value, static_cast<int>(std::min<std::ptrdiff_t>(zeros, kMaxPlaces)));
}

double leadingNumber(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+')) {
        text.remove_prefix(1);
    }
    const double magnitude = scanNumber(text, DecimalSigns::Point).value;
    return negative ? -magnitude : magnitude;
}

double roundDecimals(double value, int decimals) {
    const double factor = std::pow(10.0, decimals);
    return std::nearbyint(value * factor) / factor;
}

int roundToInt(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::nearbyint(value), kLowest, kHighest));
}

} // namespace quendal
