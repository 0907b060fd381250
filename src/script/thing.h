// What a script can ask for, and how it names controls.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quendal {

// NAME or NAME(INDEX).
struct IndexedName {
    std::string name;
    std::optional<int> index;
};

// CONTROL on the topmost form, or FORM.CONTROL.
struct ControlName {
    std::string form; // empty: the topmost one
    IndexedName control;
};

enum class ThingKind {
    Property,     // of a control
    FormField,    // of the topmost form
    SessionField, // of the session state
    SeriesCount,
    SeriesName,
    SeriesJoined, // its points are joined by a line
    SeriesLines,  // how many lines are fitted through them
    SeriesX,
    SeriesY,
    LineSlope, // of a fitted line
    LineIntercept,
    ParticleCount,     // of beaker or drops
    ParticleCountSort, // of one kind
    TopForm,
    UserName,
    BoxProposal, // of the last input box
    Clock
};

struct Thing {
    std::string text; // as the script writes it
    ThingKind kind = ThingKind::Clock;
    ControlName control;  // Property
    IndexedName field;    // property or field
    int series = 0;       // from 1
    int number = 0;       // of the point or the fitted line, from 1, or the kind of particle
    bool inDrops = false; // the particles that fall
};

// nullopt for what is no name at all.
std::optional<ControlName> parseControlName(std::string_view text);
std::optional<Thing> parseThing(std::string_view text);

} // namespace quendal
