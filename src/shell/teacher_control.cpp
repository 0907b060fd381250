#include "shell/teacher_control.h"

#include "host/log.h"
#include "host/number_service.h"
#include "host/utf8.h"
#include "shell/session/session.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr ForcedMode kModes[] = {{1, "MODUS_ANI"}, {2, "MODUS_DEMO"}, {3, "MODUS_CALC"}};

} // namespace

std::optional<double> countingNumber(std::string_view text) {
    const double number = leadingNumber(text);
    return number != 0.0 ? std::optional(number) : std::nullopt;
}

std::optional<ForcedMode> forcedMode(std::string_view text) {
    const auto number = countingNumber(text);
    if (!number) {
        return std::nullopt;
    }
    for (const ForcedMode& mode : kModes) {
        if (*number == mode.tab) {
            return mode;
        }
    }
    return ForcedMode{};
}

std::optional<int> concentrationIndex(std::string_view text, int count) {
    const int place = roundToInt(leadingNumber(text));
    return place >= 1 && place <= count ? std::optional(place - 1) : std::nullopt;
}

std::string shownText(std::string_view text) {
    constexpr std::size_t kLimit = 40;
    const std::size_t end = characterBegin(text, std::min(text.size(), kLimit));
    std::string shown(text.substr(0, end));
    std::replace_if(
        shown.begin(), shown.end(),
        [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }, '?');
    return end < text.size() ? shown + "..." : shown;
}

void logTeacherKey(std::string_view key, std::string_view text, std::string_view consequence) {
    logLine("Lehrerschlüssel " + std::string(key) + " = \"" + shownText(text) +
            "\": " + std::string(consequence));
}

bool teacherTruth(std::string_view key, std::string_view text) {
    bool understood = false;
    const bool truth = hBoolText(text, &understood);
    if (!understood) {
        logTeacherKey(key, text, "weder wahr noch falsch, gilt als falsch");
    }
    return truth;
}

} // namespace quendal
