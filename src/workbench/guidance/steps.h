// The steps of a guided calculation as rows of data. The engine interprets them and knows no
// chemistry.
#pragma once

#include "workbench/guidance/point_values.h"

#include <span>
#include <string_view>
#include <vector>

namespace quendal {

// The sub-steps and hints that the tutor opens on request.
struct Details {
    bool acid = false;   // how n of the sample is worked out
    bool base = false;   // the same for the reagent
    bool conc = false;   // the way to the concentration
    bool choice = false; // the conditions beside the options
    bool start = false;  // the formula of the pure sample
    bool silver = false; // the formula of c(Ag+)
    bool final = false;  // the formula of the result
};

// Which cases of a point a row belongs to; a form without cases leaves it at every one.
using Cases = unsigned;
inline constexpr Cases kEveryCase = ~0U;
template <class... Numbers>
constexpr Cases inCases(Numbers... numbers) {
    return (... | (1U << numbers));
}

// What decides about the layout beside the steps reached.
struct LayoutState {
    Details details;
    bool baseInExcess = false; // OH- is left over, so that the way to the pH is by the pOH
    bool onlySample = false;   // no reagent has been added
    int caseNumber = 0;        // from 1; 0 on a form without cases

    bool inOneOf(Cases cases) const { return ((cases >> caseNumber) & 1U) != 0; }
};

enum class Check {
    Exact,   // the number read by NumberService.Parse, without tolerance or word about characters
    Rounded, // through hUnequal, with the row's digits
    Choice,  // the right option is selected
    None     // every answer passes; the row is there for what a demo fills in
};

// How the tutor writes the value when it fills it in.
enum class Fill {
    DefaultText, // default text form of the expected value
    Picture2,    // "#0.00"
    Picture3,    // "#0.000"
    Power,       // mantissa and power of ten, "1,995*10^-10"
    Literal      // the row's own text
};

struct StepRow {
    int step;
    Check check;
    double (*expected)(const PointValues& point) = nullptr;
    int digits = -1;
    Fill fill = Fill::DefaultText;
    std::string_view literal = {};
    Cases cases = kEveryCase;
    // Where a step has a label for a result beside its input: the result, given to two decimals.
    // With it the label is what is checked, and the input is only filled in.
    double (*result)(const PointValues& point) = nullptr;
    std::string_view resultLiteral = {}; // the label's text where there is no result
    int alsoFills = 0;                   // another step that is filled in with this one; 0: none
};

// Kinds of controls on frm_Calc that are laid out by rows. A step's button is there at its own step
// anyway; a row of it adds another place where it shows.
enum class Part { Heading, Line, Label, Input, Option, OptionHint, StoreOption, StepButton };

// The control is visible when a row of it holds: its step was reached and all of `when` (none:
// always), the case and the detail (none: always) agree. A control without a row stays hidden.
struct ShownRow {
    Part part;
    int index;
    int step;
    bool (*when)(const LayoutState& state) = nullptr;
    Cases cases = kEveryCase;
    bool Details::*detail = nullptr;
};

// A text that a heading or a label takes on in some cases, once `step` was reached (0: always). Of
// several rows for one control the last that holds counts.
struct TextRow {
    Part part;
    int index;
    std::string_view text;
    Cases cases = kEveryCase;
    int step = 0;
};

// A rung of the help ladder: on yes a detail opens and the calculation goes back to `backTo`.
struct RungRow {
    int step;
    bool Details::*detail;
    int backTo;
    // The count of tries starts anew: on yes, or already when the rung is reached, whatever the
    // answer will be.
    bool resetsTriesAtOnce = false;
    bool (*when)(const LayoutState& state) = nullptr; // none: always
    // Steps that on yes count as reached and as not yet reached; 0 for none.
    int reached = 0;
    int notReached = 0;
};

// What of a learner's way is counted, shown and told to the host.
struct Counting {
    bool help = false;    // a detail taken raises vHelpUsed
    bool solve = true;    // an offer of numbers raises vSolveUsed
    bool reported = true; // a wrong answer is reported at once
};

// What a demo fills in at a click.
enum class DemoFills { EveryStep, OneStep };

struct GuidanceTables {
    int lastStep;   // passing it ends the point
    int choiceStep; // the one with options in place of an input; 0: none
    std::vector<StepRow> steps;
    std::vector<ShownRow> shown;
    std::span<const TextRow> texts = {};
    std::span<const RungRow> rungs;
    std::span<const int> calculatorSteps; // with a calculator beside their input
    std::string_view reminder;            // the first rung
    std::string_view solveChoiceQuestion; // the last one at the choice
    Counting counting = {};
    bool clearsChoice = false; // a new calculation starts without a chosen option
    // Passing the last step leaves step and count of tries as they are.
    bool restsAtEnd = false;
    bool lastKeepsCaption = false; // the last step's button isn't named anew at a start
    DemoFills demoFills = DemoFills::EveryStep;
    int directCalculator = 2; // Index of the calculator beside the direct input
    bool calculatorInDemo = true;
};

} // namespace quendal
