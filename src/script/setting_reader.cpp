#include "script/step_reader.h"
#include "script/values.h"

#include <algorithm>
#include <charconv>

namespace quendal {

namespace {

constexpr const char* kForm = "form";

bool readSeed(const Words& words, ScriptSettings& settings) {
    const std::string& text = words[1];
    const auto [end, fault] =
        std::from_chars(text.data(), text.data() + text.size(), settings.seed);
    return !text.empty() && fault == std::errc{} && end == text.data() + text.size();
}

bool readControl(const Words& words, ScriptSettings& settings) {
    std::string key = words[1];
    std::transform(key.begin(), key.end(), key.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? char(c - 'a' + 'A') : c; });
    settings.control[key] = words[2];
    return !key.empty();
}

bool readSize(const Words& words, ScriptSettings& settings) {
    constexpr int kMost = 20000;
    const std::string& text = words[1];
    const std::size_t sign = text.find('x');
    if (sign == std::string::npos) {
        return false;
    }
    const int width = wholeNumber(std::string_view(text).substr(0, sign)).value_or(0);
    const int height = wholeNumber(std::string_view(text).substr(sign + 1)).value_or(0);
    settings.screen = {double(width), double(height)};
    return width > 0 && width <= kMost && height > 0 && height <= kMost;
}

// Any number: the program must bear modes that it doesn't know.
bool readSound(const Words& words, ScriptSettings& settings) {
    const auto mode = wholeNumber(words[1]);
    settings.sound = mode.value_or(0);
    return mode.has_value();
}

bool readLocale(const Words& words, ScriptSettings& settings) {
    settings.sign = words[1] == "point" ? DecimalSign::Point : DecimalSign::Comma;
    return words[1] == "point" || words[1] == "comma";
}

// Fields and their values in turn.
bool readForm(const Words& words, ScriptSettings& settings) {
    SingleFormSetting form{.name = words[1]};
    for (std::size_t i = 2; i + 1 < words.size(); i += 2) {
        form.fields.emplace_back(words[i], words[i + 1]);
    }
    settings.form = std::move(form);
    return !words[1].empty() && words.size() % 2 == 0;
}

struct SettingRow {
    const char* command;
    std::size_t words; // the command included; of "form" the least
    bool (*read)(const Words& words, ScriptSettings& settings);
};

const SettingRow kSettings[] = {
    {"seed", 2, readSeed},
    {"control", 3, readControl},
    {"user", 2,
     [](const Words& words, ScriptSettings& settings) {
         settings.user = words[1];
         return true;
     }},
    {"name", 2,
     [](const Words& words, ScriptSettings& settings) {
         settings.name = words[1];
         return true;
     }},
    {"data", 2,
     [](const Words& words, ScriptSettings& settings) {
         settings.data = words[1];
         return !words[1].empty();
     }},
    {"controlfile", 2,
     [](const Words& words, ScriptSettings& settings) {
         settings.controlFile = words[1];
         return !words[1].empty();
     }},
    {"report", 2,
     [](const Words& words, ScriptSettings& settings) {
         settings.report = words[1];
         return !words[1].empty();
     }},
    {"size", 2, readSize},
    {"sound", 2, readSound},
    {"locale", 2, readLocale},
    {kForm, 2, readForm},
};

const SettingRow* findSetting(const std::string& command) {
    const auto* row = std::find_if(std::begin(kSettings), std::end(kSettings),
                                   [&](const SettingRow& r) { return command == r.command; });
    return row == std::end(kSettings) ? nullptr : row;
}

} // namespace

bool isSetting(const std::string& command) {
    return findSetting(command) != nullptr;
}

bool readSetting(const Words& words, int line, ScriptSettings& settings) {
    const SettingRow* row = findSetting(words[0]);
    const bool form = words[0] == kForm;
    const bool fits =
        row != nullptr && (form ? words.size() >= row->words : words.size() == row->words);
    if (!fits || !row->read(words, settings)) {
        return false;
    }
    if (form) {
        settings.form->line = line;
    }
    return true;
}

} // namespace quendal
