// What of frm_Calc is seen at a step.
#include "workbench/guidance/guided_calculation.h"

#include <map>
#include <utility>

namespace quendal {

void GuidedCalculation::layOut() {
    const LayoutState state = layoutState();
    writeLabels(state);
    // Several rows may speak of one control; one that holds is enough.
    std::map<std::pair<Part, int>, std::pair<const ShownRow*, bool>> visibility;
    for (const ShownRow& row : tables_.shown) {
        const bool holds = vStepReached_[static_cast<std::size_t>(row.step)] &&
                           (row.when == nullptr || row.when(state));
        auto& entry = visibility[{row.part, row.index}];
        entry.first = &row;
        entry.second = entry.second || holds;
    }
    for (const auto& [control, entry] : visibility) {
        showPart(*entry.first, entry.second);
    }
    for (int step = 1; step <= kSteps; ++step) {
        but_CalcStep(step).setVisible(step == sStep_);
        if (but_CalcPH.has(step) && but_CalcPH(step).container() == &frm_Calc) {
            but_CalcPH(step).setVisible(step == sStep_);
        }
    }
}

void GuidedCalculation::hideAll() {
    frm_Calc.setVisible(false);
    but_AchtungRW.setVisible(false);
    but_CalcStep.each([](int, ctl_Button& button) { button.setVisible(false); });
    for (const ShownRow& row : tables_.shown) {
        showPart(row, false);
    }
    but_CalcPH.each(
        [this](int, ctl_Button& button) { button.setVisible(button.container() != &frm_Calc); });
}

void GuidedCalculation::showPart(const ShownRow& row, bool visible) {
    switch (row.part) {
    case Part::Heading:
        lab_CalcStep(row.index).setVisible(visible);
        break;
    case Part::Line:
        lin_Calc(row.index).setVisible(visible);
        break;
    case Part::Label:
        lab_Calc(row.index).setVisible(visible);
        break;
    case Part::Input:
        txt_Calc(row.index).setVisible(visible);
        break;
    case Part::Option:
        opt_Calc(row.index).setVisible(visible);
        break;
    case Part::StoreOption:
        opt_CalcStore(row.index).setVisible(visible);
        break;
    }
}

} // namespace quendal
