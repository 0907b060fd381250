// What a workbench form differs in from the others, as data.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace quendal {

// When a balance line shows "~~ ": a species whose true amount is small but not nothing.
enum class Trace {
    Never,
    FromEquivalence, // content of the beaker at or above that of the equivalence point
    UpToEquivalence  // at or below it
};

// How a balance line gets its number.
enum class Balance {
    Counted,           // particles of the kind in the beaker
    SampleLessChloride // 10 times the concentration less the Cl- counted
};

// A line of the balance of amounts.
struct BalanceLine {
    int kind;   // particle kind
    int legend; // sort of the sample particle in the legend; negative shows its sign
    std::string_view term;
    std::string_view spoken; // for a screen reader
    Trace trace = Trace::Never;
    Balance balance = Balance::Counted;
};

// The pair of particles that falls for one mL of reagent.
struct DropPair {
    int first;
    int second;
};

// What the form does with the sign of Cl- in the beaker; the setting outlives a form.
enum class ChlorideSign { AsItStands, PlainWhileOpen, PlainFromNow };

// Whether there is something to calculate before the first mL of reagent.
enum class FirstPoint { SampleAlone, AfterReagent };

// Decimals with which a finished point is shown as the reading; none: the reading isn't touched.
struct ReadingDigits {
    std::optional<int> direct; // after a direct answer
    int guided = 2;            // at the end of a guided calculation
};

// The scale at the beaker: 35 ticks, each fifth with its number.
struct BeakerScale {
    int mlPerTick = 1;
    int waterMl = 0; // mL that are in the beaker from the start; they count in no other volume
};

struct TaskTexts {
    std::string_view sampleBefore; // pipette line, up to the concentration
    std::string_view sampleAfter;  // and behind it
    std::string_view reagent;      // burette line
    std::string_view finished;
    // Calculation line, in the calculation mode and in the demo.
    std::string_view calculate =
        "Klick auf                                ,um den genauen pH-Wert zu berechnen.";
    std::string_view calculateDemo = "Klick auf                                ,um dir den "
                                     "Rechenweg demonstrieren zu lassen";
};

struct WorkbenchVariant {
    std::string_view formName;
    std::string_view caption;
    std::string_view curveStem; // "phstark": the concentration, where it counts, and ".crv" follow
    bool curveByConcentration = true;
    std::string_view seriesName;
    std::string_view helpFile;
    std::string_view readingName; // term
    std::string_view readingUnit; // behind the reading, with its blank
    ReadingDigits readingDigits;
    std::string_view spokenReading = "pH"; // what a point's value is called when it is announced
    std::string_view spokenUnit;           // behind it, with its blank
    std::string_view calculationTitle;     // of both calculation frames
    std::string_view answerName;           // beside the direct input, term
    std::string_view wrongDirect;          // question after a wrong direct answer
    bool directHidesControls = false;      // while the direct input is open
    bool countsDirectHelp = false;         // taking that help raises vHelpUsed
    std::string_view compareTitle;         // of the comparison; empty: as the dialog has it
    std::string_view compareButton = "pH-Kurve anzeigen";
    std::array<std::string_view, 4> volumeNames; // sample, reagent, c of the sample, of the reagent
    bool totalVolumeShown = false; // the third value is the volume in the beaker, water included
    TaskTexts task;
    std::string_view balanceTitle = "Aktuelle Stoffmengenbilanz";
    std::vector<BalanceLine> species;
    std::vector<int> pipette; // kinds that fall for one mmol, in this order
    DropPair burette;         // first at x - 2, second at x + 2
    // Kinds of which each landed drop counts one mL; the others ride along.
    std::vector<int> countingKinds;
    int buretteCountingKind; // the one of them that the burette makes
    int directDigits;        // decimals that count in the direct answer
    ChlorideSign chloride = ChlorideSign::AsItStands;
    FirstPoint firstPoint = FirstPoint::SampleAlone;
    bool countsParticles = false; // the model reads the particles, so reactions must have ended
    BeakerScale scale = {};
};

} // namespace quendal
