#include "script/thing.h"

#include "script/values.h"

#include <algorithm>
#include <span>
#include <vector>

namespace quendal {

namespace {

std::vector<std::string_view> splitAtPoints(std::string_view text) {
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t point = text.find('.');
        parts.push_back(text.substr(0, point));
        if (point == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(point + 1);
    }
}

std::optional<IndexedName> parseIndexedName(std::string_view text) {
    const std::size_t open = text.find('(');
    IndexedName result{std::string(text.substr(0, open)), std::nullopt};
    if (result.name.empty() || result.name.find(')') != std::string::npos) {
        return std::nullopt;
    }
    if (open == std::string_view::npos) {
        return result;
    }
    if (text.back() != ')') {
        return std::nullopt;
    }
    result.index = wholeNumber(text.substr(open + 1, text.size() - open - 2));
    return result.index ? std::optional(result) : std::nullopt;
}

using Names = std::vector<IndexedName>;

std::optional<Names> parseNames(std::string_view text) {
    Names names;
    for (const std::string_view part : splitAtPoints(text)) {
        auto name = parseIndexedName(part);
        if (!name) {
            return std::nullopt;
        }
        names.push_back(std::move(*name));
    }
    return names;
}

bool isPlain(const IndexedName& name, std::string_view wanted) {
    return name.name == wanted && !name.index;
}

struct SeriesWord {
    std::string_view name;
    ThingKind kind;
};
// Of the whole series, of one of its points, of one of its fitted lines.
constexpr SeriesWord kSeriesWords[] = {{"count", ThingKind::SeriesCount},
                                       {"name", ThingKind::SeriesName},
                                       {"joined", ThingKind::SeriesJoined},
                                       {"lines", ThingKind::SeriesLines}};
constexpr SeriesWord kPointWords[] = {{"x", ThingKind::SeriesX}, {"y", ThingKind::SeriesY}};
constexpr SeriesWord kLineWords[] = {{"slope", ThingKind::LineSlope},
                                     {"intercept", ThingKind::LineIntercept}};

bool readWord(std::span<const SeriesWord> words, const IndexedName& name, Thing& thing) {
    const auto found = std::find_if(words.begin(), words.end(), [&name](const SeriesWord& word) {
        return word.name == name.name;
    });
    if (found != words.end()) {
        thing.kind = found->kind;
    }
    return found != words.end();
}

bool readSeries(const Names& names, Thing& thing) {
    if (names[0].name != "series" || !names[0].index) {
        return false;
    }
    thing.series = *names[0].index;
    const IndexedName& what = names[1];
    thing.number = what.index.value_or(0);
    if (!what.index) {
        return readWord(kSeriesWords, what, thing);
    }
    return readWord(kPointWords, what, thing);
}

bool readFittedLine(const Names& names, Thing& thing) {
    const bool line = names[0].name == "series" && names[0].index && names[1].name == "line" &&
                      names[1].index && !names[2].index;
    if (!line) {
        return false;
    }
    thing.series = *names[0].index;
    thing.number = *names[1].index;
    return readWord(kLineWords, names[2], thing);
}

bool readParticles(const Names& names, Thing& thing) {
    const bool drops = isPlain(names[0], "drops");
    if (!drops && !isPlain(names[0], "beaker")) {
        return false;
    }
    thing.inDrops = drops;
    thing.number = names[1].index.value_or(0);
    const bool all = isPlain(names[1], "count");
    thing.kind = all ? ThingKind::ParticleCount : ThingKind::ParticleCountSort;
    return all || (names[1].name == "countsort" && names[1].index);
}

bool readField(const Names& names, Thing& thing) {
    const bool ofForm = isPlain(names[0], "form");
    if (!ofForm && !isPlain(names[0], "session")) {
        return false;
    }
    thing.kind = ofForm ? ThingKind::FormField : ThingKind::SessionField;
    thing.field = names[1];
    return true;
}

bool readNamedPair(const Names& names, Thing& thing) {
    if (isPlain(names[0], "host") && isPlain(names[1], "UserName")) {
        thing.kind = ThingKind::UserName;
        return true;
    }
    thing.kind = ThingKind::BoxProposal;
    return isPlain(names[0], "box") && isPlain(names[1], "default");
}

bool isReserved(const IndexedName& name) {
    return isPlain(name, "host") || isPlain(name, "box") || isPlain(name, "beaker") ||
           isPlain(name, "drops") || name.name == "series";
}

bool readPair(const Names& names, Thing& thing) {
    if (readSeries(names, thing) || readParticles(names, thing) || readField(names, thing) ||
        readNamedPair(names, thing)) {
        return true;
    }
    thing.kind = ThingKind::Property;
    thing.control.control = names[0];
    thing.field = names[1];
    return !isReserved(names[0]);
}

bool readSingle(const IndexedName& name, Thing& thing) {
    thing.kind = name.name == "top" ? ThingKind::TopForm : ThingKind::Clock;
    return isPlain(name, "top") || isPlain(name, "clock");
}

bool readTriple(const Names& names, Thing& thing) {
    if (names[0].name == "series") {
        return readFittedLine(names, thing); // no form has this name
    }
    thing.kind = ThingKind::Property;
    thing.control = {names[0].name, names[1]};
    thing.field = names[2];
    return !names[0].index;
}

bool readNames(const Names& names, Thing& thing) {
    switch (names.size()) {
    case 1:
        return readSingle(names[0], thing);
    case 2:
        return readPair(names, thing);
    case 3:
        return readTriple(names, thing);
    default:
        return false;
    }
}

} // namespace

std::optional<ControlName> parseControlName(std::string_view text) {
    const auto names = parseNames(text);
    if (!names || names->size() > 2) {
        return std::nullopt;
    }
    if (names->size() == 1) {
        return ControlName{{}, names->front()};
    }
    return names->front().index ? std::nullopt
                                : std::optional(ControlName{names->front().name, names->back()});
}

std::optional<Thing> parseThing(std::string_view text) {
    Thing thing;
    thing.text = std::string(text);
    const auto names = parseNames(text);
    return names && readNames(*names, thing) ? std::optional(thing) : std::nullopt;
}

} // namespace quendal
