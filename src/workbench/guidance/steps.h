// The steps of a guided calculation as rows of data. The engine interprets them and knows no
// chemistry.
#pragma once

#include "workbench/guidance/point_values.h"

#include <span>
#include <string_view>

namespace quendal {

// The sub-steps that the tutor opens on request.
struct Details {
    bool acid = false;
    bool base = false;
    bool conc = false;
};

// What decides about the layout beside the steps reached.
struct LayoutState {
    Details details;
    bool behindEquivalence = false; // more reagent than sample
};

enum class Check {
    Exact,   // the number read by NumberService.Parse, without tolerance or word about characters
    Rounded, // through hUnequal, with the row's digits
    Choice   // the right option is selected
};

// How the tutor writes the value when it fills it in.
enum class Fill {
    DefaultText, // default text form of the expected value
    Picture2,    // "#0.00"
    Picture3,    // "#0.000"
    Literal      // the row's own text
};

struct StepRow {
    int step;
    Check check;
    double (*expected)(const PointValues& point) = nullptr;
    int digits = -1;
    Fill fill = Fill::DefaultText;
    std::string_view literal = {};
};

// Kinds of controls on frm_Calc that are laid out by rows.
enum class Part { Heading, Line, Label, Input, Option, StoreOption };

// The control is visible when a row of it holds: its step was reached and `when` agrees (none:
// always). A control without a row stays hidden.
struct ShownRow {
    Part part;
    int index;
    int step;
    bool (*when)(const LayoutState& state) = nullptr;
};

// A rung of the help ladder: on yes a detail opens and the calculation goes back to `backTo`.
struct RungRow {
    int step;
    bool Details::*detail;
    int backTo;
    // The count of tries starts anew: on yes, or already when the rung is reached, whatever the
    // answer will be.
    bool resetsTriesAtOnce = false;
};

struct GuidanceTables {
    int lastStep;   // passing it ends the point
    int choiceStep; // the one with options in place of an input
    std::span<const StepRow> steps;
    std::span<const ShownRow> shown;
    std::span<const RungRow> rungs;
    std::string_view solveQuestion;       // the last rung
    std::string_view solveChoiceQuestion; // and the same at the choice
};

} // namespace quendal
