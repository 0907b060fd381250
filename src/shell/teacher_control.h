// What the teacher's keys decide: from the texts of the keys to the state of the start dialog.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quendal {

// A mode key counts when its leading number isn't 0; that number, not rounded.
std::optional<double> countingNumber(std::string_view text);

struct ForcedMode {
    int tab = 0;                  // the tab that can't be left
    const char* exerciseKey = ""; // key that narrows the tab to one exercise; empty for none
};

// What the text of "MODUS" forces; nullopt when it doesn't count. A number that stands for no tab
// forces the first one.
std::optional<ForcedMode> forcedMode(std::string_view text);

// Index from 0 in a list of `count` items for the text of "CON", which is rounded to a whole number
// from 1; nullopt when no such item is there.
std::optional<int> concentrationIndex(std::string_view text, int count);

// The beginning of a key's text on one line, without characters that steer a terminal and without
// cutting one of several bytes in two.
std::string shownText(std::string_view text);

// Tells the teacher on standard error that a key can't be taken as it stands. Of a long text only
// the beginning is shown.
void logTeacherKey(std::string_view key, std::string_view text, std::string_view consequence);

// Truth of a key that is set; a text that is no word of truth is false and logged.
bool teacherTruth(std::string_view key, std::string_view text);

} // namespace quendal
