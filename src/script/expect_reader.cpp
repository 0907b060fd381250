#include "script/expect_reader.h"

#include "script/values.h"

#include <algorithm>

namespace quendal {

namespace {

using Read = std::optional<StepKind>;

constexpr BoxKind kBoxKinds[] = {BoxKind::Ok,    BoxKind::Info,  BoxKind::YesNo,     BoxKind::Input,
                                 BoxKind::Alarm, BoxKind::About, BoxKind::Calculator};

Read expectBox(const Words& words) {
    if (words.size() != 3) {
        return std::nullopt;
    }
    const auto* kind = std::find_if(std::begin(kBoxKinds), std::end(kBoxKinds),
                                    [&](BoxKind k) { return words[0] == boxKindName(k); });
    return kind == std::end(kBoxKinds) ? std::nullopt
                                       : Read(ExpectBoxStep{*kind, words[1], words[2]});
}

// The name may stand in quotes or not: signal 1.
Read expectSound(const Words& words) {
    std::string name;
    for (const std::string& word : words) {
        name += (name.empty() ? "" : " ") + word;
    }
    return name.empty() ? std::nullopt : Read(ExpectSoundStep{name});
}

Read expectReport(const Words& words) {
    const bool progress = words.size() == 3 && words[0] == "progress";
    const bool result = words.size() == 4 && words[0] == "result";
    const bool numbers = (progress || result) && plainNumber(words[1]) && plainNumber(words[2]);
    return numbers ? Read(ExpectReportStep{words}) : std::nullopt;
}

template <class Make>
Read alone(const Words& words, Make&& step) {
    return words.empty() ? Read(step) : std::nullopt;
}

struct ExpectRow {
    const char* what;
    Read (*read)(const Words& words);
};

const ExpectRow kExpects[] = {
    {"box", expectBox},
    {"nobox", [](const Words& words) { return alone(words, ExpectNoneStep{Record::Box}); }},
    {"nosound", [](const Words& words) { return alone(words, ExpectNoneStep{Record::Sound}); }},
    {"noreport", [](const Words& words) { return alone(words, ExpectNoneStep{Record::Report}); }},
    {"presets", [](const Words& words) { return Read(ExpectPresetsStep{words}); }},
    {"sound", expectSound},
    {"report", expectReport},
    {"form",
     [](const Words& words) {
         return words.size() == 1 ? Read(ExpectFormStep{words[0]}) : std::nullopt;
     }},
    {"ended", [](const Words& words) { return alone(words, ExpectEndedStep{}); }},
};

} // namespace

const char* boxKindName(BoxKind kind) {
    static constexpr const char* kNames[] = {"ok",    "info",  "yesno",     "input",
                                             "alarm", "about", "calculator"};
    return kNames[static_cast<std::size_t>(kind)];
}

std::optional<Condition> readCondition(const Words& words) {
    if (words.size() < 3) {
        return std::nullopt;
    }
    const auto thing = parseThing(words[0]);
    if (!thing) {
        return std::nullopt;
    }
    Condition condition{.thing = *thing, .value = words[2]};
    if (words[1] == "~=" && words.size() == 4) {
        const auto value = plainNumber(words[2]);
        const auto tolerance = plainNumber(words[3]);
        condition.relation = Relation::Near;
        condition.nearTo = value.value_or(0);
        condition.tolerance = tolerance.value_or(0);
        return value && tolerance ? std::optional(condition) : std::nullopt;
    }
    condition.relation = words[1] == "!=" ? Relation::Unequal : Relation::Equal;
    const bool known = words[1] == "==" || words[1] == "!=";
    return known && words.size() == 3 ? std::optional(condition) : std::nullopt;
}

std::optional<StepKind> readExpect(const Words& words) {
    const auto* row = std::find_if(std::begin(kExpects), std::end(kExpects),
                                   [&](const ExpectRow& r) { return words[0] == r.what; });
    if (row != std::end(kExpects)) {
        return row->read({words.begin() + 1, words.end()});
    }
    const auto condition = readCondition(words);
    return condition ? Read(ExpectStep{*condition}) : std::nullopt;
}

} // namespace quendal
