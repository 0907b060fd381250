#include "weak_silver/case_guidance.h"

#include "host/number_service.h"
#include "host/roots.h"
#include "workbench/workbench.h"

namespace quendal {

namespace case_panel {

namespace {

bool withoutAcid(const LayoutState& s) {
    return !s.details.acid;
}
bool withoutBase(const LayoutState& s) {
    return !s.details.base;
}

} // namespace

std::vector<StepRow> commonSteps() {
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
        {.step = 5,
         .check = Check::Rounded,
         .expected = [](const PointValues& p) { return p.baseVol; }},
        // 1 mol/L, so that n and V have the same number.
        {.step = 6,
         .check = Check::Rounded,
         .expected = [](const PointValues& p) { return p.baseVol; }},
        {.step = 7, .check = Check::Choice},
    };
}

std::vector<ShownRow> commonShown(int firstHeading, bool Details::*hints) {
    std::vector<ShownRow> rows{
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
        {Part::Heading, firstHeading + 2, 7},
        {Part::Line, 3, 7},
        {Part::StoreOption, Control::kNoIndex, 7},
    };
    for (int option = 0; option < 4; ++option) {
        rows.push_back({Part::Option, option, 7});
        rows.push_back({.part = Part::OptionHint, .index = option, .step = 7, .detail = hints});
    }
    return rows;
}

} // namespace case_panel

CaseGuidance::CaseGuidance(Workbench& bench, const GuidanceTables& tables, const PanelSize& size,
                           const CasePanel& panel)
    : GuidedCalculation(bench, tables, size), panel_(panel) {
    design();
}

LayoutState CaseGuidance::layoutState() const {
    return {.details = details(),
            .behindEquivalence = false,
            .onlySample = bench().vVol == 10,
            .caseNumber = presentCase()};
}

void CaseGuidance::writeLabels(const LayoutState& state) {
    const auto product = [this](const Product& what, bool open, int first) {
        return open ? std::string(what.name) + T(first) + " * " + T(first + 1)
                    : std::string(what.before);
    };
    lab_Calc(5).setTerm(product(panel_.sample, state.details.acid, 1));
    lab_Calc(10).setTerm(product(panel_.reagent, state.details.base, 4));
    placeControls(state);
}

int CaseGuidance::skipClosedAmounts(int step) const {
    if (step == 1 && !details().acid) {
        return 3;
    }
    return step == 4 && !details().base ? 6 : step;
}

std::string CaseGuidance::N(double value) {
    return CoreLib().NumberService.text(value);
}

std::string CaseGuidance::S(double value) {
    return NumberService::classicText(value);
}

} // namespace quendal
