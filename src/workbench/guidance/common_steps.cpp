#include "workbench/guidance/common_steps.h"

namespace quendal {

namespace {

bool withoutAcid(const LayoutState& s) {
    return !s.details.acid;
}
bool withoutBase(const LayoutState& s) {
    return !s.details.base;
}

} // namespace

std::vector<StepRow> amountSteps(int digits) {
    const auto baseVol = [](const PointValues& p) { return p.baseVol; };
    return {
        {.step = 1,
         .check = Check::Exact,
         .expected = [](const PointValues& p) { return p.concentration; }},
        {.step = 2,
         .check = Check::Exact,
         .expected = [](const PointValues& p) { return p.acidVol; },
         .fill = Fill::Literal,
         .literal = "0.01"},
        {.step = 3,
         .check = Check::Exact,
         .expected = [](const PointValues& p) { return p.acidMol; }},
        {.step = 4,
         .check = Check::Exact,
         .expected = [](const PointValues& p) { return p.baseConc; },
         .fill = Fill::Literal,
         .literal = "1"},
        {.step = 5, .check = Check::Rounded, .expected = baseVol, .digits = digits},
        // 1 mol/L, so that n and V have the same number.
        {.step = 6, .check = Check::Rounded, .expected = baseVol, .digits = digits},
        {.step = 7, .check = Check::Choice},
    };
}

std::vector<ShownRow> amountRows(int firstHeading) {
    return {
        {Part::Heading, firstHeading, 1},
        {Part::Heading, firstHeading, 3, withoutAcid},
        {Part::Label, 0, 1},
        {Part::Label, 1, 1},
        {Part::Input, 1, 1},
        {Part::Label, 2, 1},
        {Part::Label, 3, 2},
        {Part::Input, 2, 2},
        {Part::Label, 4, 2},
        {.part = Part::Label, .index = 5, .step = 3, .detail = &Details::acid},
        {Part::Label, 6, 3},
        {Part::Input, 3, 3},
        {Part::Label, 7, 3},
        {Part::Line, 1, 3},
        {Part::Heading, firstHeading + 1, 4},
        {Part::Heading, firstHeading + 1, 6, withoutBase},
        {Part::Label, 15, 4},
        {Part::Label, 14, 4},
        {Part::Input, 4, 4},
        {Part::Label, 13, 4},
        {Part::Label, 12, 5},
        {Part::Input, 5, 5},
        {Part::Label, 11, 5},
        {.part = Part::Label, .index = 10, .step = 6, .detail = &Details::base},
        {Part::Label, 9, 6},
        {Part::Input, 6, 6},
        {Part::Label, 8, 6},
        {Part::Line, 2, 6},
    };
}

} // namespace quendal
