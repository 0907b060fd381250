#include "workbench/strong_steps.h"

namespace quendal {

namespace {

bool withAcid(const LayoutState& s) {
    return s.details.acid;
}
bool withoutAcid(const LayoutState& s) {
    return !s.details.acid;
}
bool withBase(const LayoutState& s) {
    return s.details.base;
}
bool withoutBase(const LayoutState& s) {
    return !s.details.base;
}
bool withConc(const LayoutState& s) {
    return s.details.conc;
}
bool withoutConc(const LayoutState& s) {
    return !s.details.conc;
}
bool upToEquivalence(const LayoutState& s) {
    return !s.behindEquivalence;
}

const std::vector<StepRow> kSteps = {
    {.step = 1,
     .check = Check::Exact,
     .expected = [](const PointValues& p) { return p.concentration; }},
    {.step = 2,
     .check = Check::Exact,
     .expected = [](const PointValues& p) { return p.acidVol; },
     .fill = Fill::Literal,
     .literal = "0.01"},
    {.step = 3, .check = Check::Exact, .expected = [](const PointValues& p) { return p.acidMol; }},
    {.step = 4,
     .check = Check::Exact,
     .expected = [](const PointValues& p) { return p.baseConc; },
     .fill = Fill::Literal,
     .literal = "1"},
    {.step = 5,
     .check = Check::Rounded,
     .expected = [](const PointValues& p) { return p.baseVol; },
     .digits = 3},
    // 1 mol/L, so that n and V have the same number.
    {.step = 6,
     .check = Check::Rounded,
     .expected = [](const PointValues& p) { return p.baseVol; },
     .digits = 3},
    {.step = 7, .check = Check::Choice},
    {.step = 8,
     .check = Check::Rounded,
     .expected = [](const PointValues& p) { return p.excess; },
     .digits = 3},
    {.step = 9,
     .check = Check::Rounded,
     .expected = [](const PointValues& p) { return p.totalVol; },
     .digits = 3},
    {.step = 10,
     .check = Check::Rounded,
     .expected = [](const PointValues& p) { return p.conc; },
     .digits = 3,
     .fill = Fill::Picture3},
    {.step = 11,
     .check = Check::Rounded,
     .expected = [](const PointValues& p) { return p.baseInExcess ? p.pOH : p.reading; },
     .digits = 2,
     .fill = Fill::Picture2},
    {.step = 12,
     .check = Check::Rounded,
     .expected = [](const PointValues& p) { return p.reading; },
     .digits = 2,
     .fill = Fill::Picture2},
};

const std::vector<ShownRow> kShown = {
    // 1. n of the acid
    {Part::Heading, 0, 1},
    {Part::Heading, 0, 3, withoutAcid},
    {Part::Label, 0, 1},
    {Part::Label, 1, 1},
    {Part::Input, 1, 1},
    {Part::Label, 2, 1},
    {Part::Label, 3, 2},
    {Part::Input, 2, 2},
    {Part::Label, 4, 2},
    {Part::Label, 5, 3, withAcid},
    {Part::Label, 6, 3},
    {Part::Input, 3, 3},
    {Part::Label, 7, 3},
    {Part::Line, 1, 3},
    // 2. n of the base
    {Part::Heading, 1, 4},
    {Part::Heading, 1, 6, withoutBase},
    {Part::Label, 15, 4},
    {Part::Label, 14, 4},
    {Part::Input, 4, 4},
    {Part::Label, 13, 4},
    {Part::Label, 12, 5},
    {Part::Input, 5, 5},
    {Part::Label, 11, 5},
    {Part::Label, 10, 6, withBase},
    {Part::Label, 9, 6},
    {Part::Input, 6, 6},
    {Part::Label, 8, 6},
    {Part::StoreOption, 3, 6},
    {Part::Line, 2, 6},
    // 3. which amount is larger
    {Part::Heading, 2, 7},
    {Part::Option, 0, 7},
    {Part::Option, 1, 7},
    {Part::Option, 2, 7},
    {Part::Line, 3, 7},
    // 4. concentration of the excess
    {Part::Heading, 3, 8},
    {Part::Heading, 3, 10, withoutConc},
    {Part::Label, 16, 8},
    {Part::Label, 17, 8},
    {Part::Input, 8, 8},
    {Part::Label, 18, 8},
    {Part::Label, 28, 9},
    {Part::Label, 20, 9},
    {Part::Input, 9, 9},
    {Part::Label, 21, 9},
    {Part::Label, 19, 10, withConc},
    {Part::Label, 22, 10},
    {Part::Input, 10, 10},
    {Part::Label, 25, 10},
    {Part::Line, 4, 10},
    // 5. pH
    {Part::Heading, 4, 11},
    {Part::Heading, 4, 12, upToEquivalence},
    {Part::Label, 27, 11},
    {Part::Label, 26, 11},
    {Part::Input, 11, 11},
    {Part::Label, 23, 12},
    {Part::Label, 24, 12},
    {Part::Input, 12, 12},
};

constexpr RungRow kRungs[] = {
    {.step = 3, .detail = &Details::acid, .backTo = 1},
    {.step = 6, .detail = &Details::base, .backTo = 4},
    {.step = 10, .detail = &Details::conc, .backTo = 8, .resetsTriesAtOnce = true},
};

} // namespace

const GuidanceTables& strongTables() {
    static constexpr int kCalculatorSteps[] = {10, 11, 12};
    static const GuidanceTables tables{
        .lastStep = 12,
        .choiceStep = 7,
        .steps = kSteps,
        .shown = kShown,
        .rungs = kRungs,
        .calculatorSteps = kCalculatorSteps,
        .reminder = "Das ist nicht richtig!\r\nÜberprüfe Deine Eingaben!\r\n"
                    "Beachte die Informationen rechts an der Seite!",
        .solveQuestion = "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?",
        .solveChoiceQuestion =
            "Das ist leider immer noch falsch! Soll ich für dich das Richtige anklicken?"};
    return tables;
}

} // namespace quendal
