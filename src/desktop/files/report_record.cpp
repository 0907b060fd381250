#include "desktop/files/report_record.h"

#include "desktop/files/text_bytes.h"

#include <charconv>
#include <cmath>
#include <string_view>

namespace quendal {

namespace {

void putEscaped(std::string& line, char c) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
        line += '\\';
        line += c;
    } else if (byte < 0x20) {
        line += "\\u00";
        line += kDigits[byte >> 4];
        line += kDigits[byte & 15];
    } else {
        line += c;
    }
}

std::string jsonText(std::string_view text) {
    std::string json = "\"";
    for (const char c : repairedUtf8(text)) {
        putEscaped(json, c);
    }
    return json + '"';
}

template <class Number>
std::string jsonNumber(Number value) {
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return {buffer, result.ptr};
}

std::string jsonMark(const std::optional<double>& mark) {
    return mark && std::isfinite(*mark) ? jsonNumber(*mark) : "null";
}

} // namespace

std::string reportLine(const ReportRecord& record) {
    const bool result = record.score.has_value();
    return "{\"time\":" + jsonText(record.time) + ",\"learner\":" + jsonText(record.learner) +
           ",\"task\":" + jsonText(record.task) + ",\"event\":" + jsonText(record.event) +
           ",\"points\":" + jsonNumber(record.points) + ",\"errors\":" + jsonNumber(record.errors) +
           ",\"score\":" + (result ? jsonNumber(*record.score) : "null") +
           ",\"mark\":" + jsonMark(record.mark) +
           ",\"markText\":" + (result ? jsonText(record.markText) : "null") + "}\n";
}

} // namespace quendal
