#include "workbench/strong_steps.h"

#include "workbench/guidance/common_steps.h"
#include "workbench/guidance/ladder_texts.h"

namespace quendal {

namespace {

bool withoutConc(const LayoutState& s) {
    return !s.details.conc;
}
bool withoutPOH(const LayoutState& s) {
    return !s.baseInExcess;
}

constexpr StepRow kTail[] = {
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

constexpr ShownRow kTailShown[] = {
    {Part::StoreOption, 3, 6},
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
    {.part = Part::Label, .index = 19, .step = 10, .detail = &Details::conc},
    {Part::Label, 22, 10},
    {Part::Input, 10, 10},
    {Part::Label, 25, 10},
    {Part::Line, 4, 10},
    // 5. pH
    {Part::Heading, 4, 11},
    {Part::Heading, 4, 12, withoutPOH},
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
    static const GuidanceTables tables{.lastStep = 12,
                                       .choiceStep = 7,
                                       .steps = joined<StepRow>(amountSteps(3), kTail),
                                       .shown = joined<ShownRow>(amountRows(0), kTailShown),
                                       .rungs = kRungs,
                                       .calculatorSteps = kCalculatorSteps,
                                       .reminder = kReminderInLines,
                                       .solveChoiceQuestion = kClickForYou};
    return tables;
}

} // namespace quendal
