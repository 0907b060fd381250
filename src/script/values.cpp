#include "script/values.h"

#include "host/number_service.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace quendal {

std::string numberText(double value) {
    if (std::isnan(value)) {
        return "NAN";
    }
    if (std::isinf(value)) {
        return value > 0 ? "INF" : "-INF";
    }
    return NumberService::pointText(value);
}

namespace {

struct TextOf {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return numberText(value); }
    std::string operator()(const std::string& value) const { return value; }
    std::string operator()(Color value) const { return colorText(value); }
};

bool isNumberSign(char c) {
    return (c >= '0' && c <= '9') || c == '.' || c == '+' || c == '-' || c == 'e' || c == 'E';
}

std::string withPlainLineEnds(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' || i + 1 == text.size() || text[i + 1] != '\n') {
            plain += text[i];
        }
    }
    return plain;
}

} // namespace

std::string valueText(const FieldValue& value) {
    return std::visit(TextOf{}, value);
}

std::optional<double> plainNumber(std::string_view text) {
    // from_chars takes no plus sign, but words such as "inf".
    if (text.empty() || !std::all_of(text.begin(), text.end(), isNumberSign)) {
        return std::nullopt;
    }
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    double value = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = fault == std::errc{} && end == text.data() + text.size();
    return whole ? std::optional(value) : std::nullopt;
}

std::optional<int> wholeNumber(std::string_view text) {
    int value = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = !text.empty() && fault == std::errc{} && end == text.data() + text.size();
    return whole ? std::optional(value) : std::nullopt;
}

bool sameValue(std::string_view found, std::string_view asked) {
    const auto left = plainNumber(found);
    const auto right = plainNumber(asked);
    if (left && right) {
        // The second test lets a script write more digits than are printed.
        return *left == *right || numberText(*left) == numberText(*right);
    }
    return withPlainLineEnds(found) == withPlainLineEnds(asked);
}

bool nearValue(std::string_view found, double asked, double tolerance) {
    std::string text(found);
    std::replace(text.begin(), text.end(), ',', '.');
    const auto value = plainNumber(text);
    // What lies just on the edge counts as inside, whatever the rounding of the difference.
    const double slack = 1e-12 * std::max({1.0, std::abs(asked), tolerance});
    return value && std::abs(*value - asked) <= tolerance + slack;
}

bool fitsPattern(std::string_view text, std::string_view pattern) {
    const std::string plain = withPlainLineEnds(text);
    std::string wanted = withPlainLineEnds(pattern);
    if (wanted.empty() || wanted.back() != '*') {
        return plain == wanted;
    }
    wanted.pop_back();
    return plain.compare(0, wanted.size(), wanted) == 0;
}

bool namesSound(std::string_view name, std::string_view played) {
    std::string wanted(name);
    std::string path(played);
    std::replace(wanted.begin(), wanted.end(), '\\', '/');
    std::replace(path.begin(), path.end(), '\\', '/');
    if (wanted.empty() || path.size() <= wanted.size()) {
        return wanted == path;
    }
    const std::size_t start = path.size() - wanted.size();
    return path[start - 1] == '/' && path.compare(start, wanted.size(), wanted) == 0;
}

} // namespace quendal
