#include "weak_silver/case_guidance.h"

#include "host/number_service.h"
#include "host/roots.h"
#include "workbench/guidance/common_steps.h"
#include "workbench/workbench.h"

namespace quendal {

namespace case_panel {

std::vector<ShownRow> caseRows(int firstHeading, bool Details::*hints) {
    static constexpr int kOptions = 4;
    std::vector<ShownRow> rows = amountRows(firstHeading);
    const ShownRow choice[] = {
        {Part::Heading, firstHeading + 2, 7},
        {Part::Line, 3, 7},
        {Part::StoreOption, Control::kNoIndex, 7},
    };
    rows.insert(rows.end(), std::begin(choice), std::end(choice));
    for (int option = 0; option < kOptions; ++option) {
        rows.push_back({Part::Option, option, 7});
        rows.push_back({.part = Part::OptionHint, .index = option, .step = 7, .detail = hints});
    }
    return rows;
}

} // namespace case_panel

CaseGuidance::CaseGuidance(Workbench& bench, const GuidanceTables& tables, const CasePanel& panel)
    : GuidedCalculation(bench, tables,
                        {.headings = panel.headingCount,
                         .labels = panel.labelCount,
                         .inputs = {1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12},
                         .options = 4,
                         .calcButtons = {2, 8, 9, 10, 11, 12},
                         .optionHints = 4,
                         .store = {Control::kNoIndex}}),
      panel_(panel) {
    design();
}

LayoutState CaseGuidance::layoutState() const {
    return {.details = details(),
            .baseInExcess = false,
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
