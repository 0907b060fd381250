#include "conducto/conducto_steps.h"

#include "conducto/conductivity.h"
#include "workbench/guidance/common_steps.h"
#include "workbench/guidance/ladder_texts.h"

namespace quendal {

namespace {

constexpr int kLastStep = 6;
constexpr std::string_view kNotWorkedOut = "Rechnen -->";

template <int ion>
double amount(const PointValues& point) {
    return point.ionAmounts[ion];
}
template <int ion>
double value(const PointValues& point) {
    return point.ionValues[ion];
}

constexpr StepRow kTotalVolume{.step = 1,
                               .check = Check::Rounded,
                               .expected = [](const PointValues& p) { return p.totalMl; },
                               .digits = 0};

template <int ion>
constexpr StepRow ionStep(int alsoFills = 0) {
    return {.step = ion + 2,
            .check = Check::Rounded,
            .expected = amount<ion>,
            .digits = 2,
            .result = value<ion>,
            .alsoFills = alsoFills};
}

constexpr StepRow kSum{.step = kLastStep,
                       .check = Check::Rounded,
                       .expected = [](const PointValues& p) { return p.ionTotal; },
                       .digits = 2,
                       .fill = Fill::Picture2};

// A concentration of what is left over, and its logarithm in the step behind.
template <int ion>
constexpr StepRow concentrationStep(Cases cases) {
    return {.step = ion + 2,
            .check = Check::None,
            .expected = amount<ion>,
            .cases = cases,
            .result = value<ion>};
}
template <int ion>
constexpr StepRow logarithmStep(Cases cases) {
    return {.step = ion + 2, .check = Check::None, .cases = cases, .result = value<ion>};
}
// What is used up: no amount, nothing to be worked out.
constexpr StepRow usedUp(int step, Cases cases) {
    return {.step = step,
            .check = Check::None,
            .fill = Fill::Literal,
            .literal = "~ 0",
            .cases = cases,
            .resultLiteral = kNotWorkedOut};
}

constexpr Cases kAcid = inCases(kSampleLeft);
constexpr Cases kBase = inCases(kReagentLeft);

constexpr ShownRow kShown[] = {
    {Part::Heading, 0, 1}, {Part::Label, 0, 1}, {Part::Label, 1, 1},   {Part::Input, 1, 1},
    {Part::Label, 2, 1},   {Part::Line, 1, 2},  {Part::Heading, 1, 2}, {Part::Label, 3, 2},
    {Part::Label, 4, 2},   {Part::Label, 5, 2}, {Part::Input, 2, 2},
};
constexpr ShownRow kConductivityShown[] = {
    {Part::Input, 3, 3},   {Part::Input, 4, 4}, {Part::Input, 5, 5}, {Part::Line, 2, 6},
    {Part::Heading, 2, 6}, {Part::Label, 6, 6}, {Part::Input, 6, 6},
};
constexpr ShownRow kLogarithmShown[] = {{Part::Input, 4, 4}};

constexpr int kCalculators[] = {2, 3, 4, 5, 6};

std::vector<ShownRow> shownWith(std::span<const ShownRow> further) {
    return joined<ShownRow>({std::begin(kShown), std::end(kShown)}, further);
}

GuidanceTables tablesOf(std::vector<StepRow> steps, std::vector<ShownRow> shown,
                        std::span<const int> calculators) {
    return {.lastStep = kLastStep,
            .choiceStep = 0,
            .steps = std::move(steps),
            .shown = std::move(shown),
            .rungs = {},
            .calculatorSteps = calculators,
            .reminder = kReminderInLines,
            .solveChoiceQuestion = {},
            // Nobody takes a solution here: the offer of numbers isn't counted.
            .counting = {.help = false, .solve = false, .reported = true},
            .restsAtEnd = true,
            .lastKeepsCaption = true,
            .demoFills = DemoFills::OneStep,
            .directCalculator = 0,
            .calculatorInDemo = false};
}

} // namespace

const GuidanceTables& conductivityTables() {
    static const GuidanceTables tables = tablesOf(
        {kTotalVolume, ionStep<0>(), ionStep<1>(), ionStep<2>(), ionStep<3>(kLastStep), kSum},
        shownWith(kConductivityShown), kCalculators);
    return tables;
}

const GuidanceTables& logarithmTables() {
    static const GuidanceTables tables =
        tablesOf({kTotalVolume,
                  concentrationStep<0>(kAcid),
                  usedUp(2, kBase),
                  logarithmStep<1>(kAcid),
                  {.step = 3, .check = Check::None, .cases = kBase, .resultLiteral = kNotWorkedOut},
                  concentrationStep<2>(kBase),
                  usedUp(4, kAcid),
                  logarithmStep<3>(kBase),
                  {.step = 5, .check = Check::None, .cases = kAcid, .resultLiteral = kNotWorkedOut},
                  {.step = kLastStep, .check = Check::None}},
                 shownWith(kLogarithmShown), std::span(kCalculators).first(4));
    return tables;
}

} // namespace quendal
