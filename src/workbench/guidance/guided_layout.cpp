// What of frm_Calc is seen at a step.
#include "workbench/guidance/guided_calculation.h"
#include "workbench/workbench.h"

#include <map>
#include <utility>

namespace quendal {

namespace {

bool holds(const ShownRow& row, const LayoutState& state) {
    return (row.when == nullptr || row.when(state)) && state.inOneOf(row.cases) &&
           (row.detail == nullptr || state.details.*row.detail);
}

} // namespace

void GuidedCalculation::layOut() {
    const LayoutState state = layoutState();
    laidOutCase_ = state.caseNumber;
    writeTexts(state);
    writeLabels(state);
    showButtons(state);
    // Several rows may speak of one control; one that holds is enough.
    std::map<std::pair<Part, int>, std::pair<const ShownRow*, bool>> visibility;
    for (const ShownRow& row : tables_.shown) {
        const bool visible = vStepReached_[static_cast<std::size_t>(row.step)] && holds(row, state);
        auto& entry = visibility[{row.part, row.index}];
        entry.first = &row;
        entry.second = entry.second || visible;
    }
    for (const auto& [control, entry] : visibility) {
        showPart(*entry.first, entry.second);
    }
}

void GuidedCalculation::writeTexts(const LayoutState& state) {
    for (const TextRow& row : tables_.texts) {
        const bool reached = row.step == 0 || vStepReached_[static_cast<std::size_t>(row.step)];
        if (!reached || !state.inOneOf(row.cases)) {
            continue;
        }
        if (row.part == Part::Heading) {
            lab_CalcStep(row.index).setText(std::string(row.text));
        } else {
            lab_Calc(row.index).setTerm(std::string(row.text));
        }
    }
}

void GuidedCalculation::showButtons(const LayoutState& state) {
    for (int step = 1; step <= tables_.lastStep; ++step) {
        const bool due = step == sStep_ && rowOf(step, state.caseNumber) != nullptr;
        but_CalcStep(step).setVisible(due);
    }
    for (const int step : tables_.calculatorSteps) {
        const bool offered = tables_.calculatorInDemo || !bench_.vDemo;
        but_CalcPH(step).setVisible(offered && step == sStep_);
    }
}

void GuidedCalculation::beakerChanged() {
    if (frm_Calc.visible() && laidOutCase_ != layoutState().caseNumber &&
        !but_CalcStep(sStep_).visible()) {
        hCalcStepShow(sStep_);
    }
}

void GuidedCalculation::hideHints() {
    lab_optCalc.each([](int, ctl_TermLabel& hint) { hint.setVisible(false); });
}

void GuidedCalculation::hideAll() {
    frm_Calc.setVisible(false);
    but_AchtungRW.setVisible(false);
    but_CalcStep.each([](int, ctl_Button& button) { button.setVisible(false); });
    for (const ShownRow& row : tables_.shown) {
        showPart(row, false);
    }
    for (const int step : tables_.calculatorSteps) {
        but_CalcPH(step).setVisible(false);
    }
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
    case Part::OptionHint:
        lab_optCalc(row.index).setVisible(visible);
        break;
    case Part::StoreOption:
        opt_CalcStore(row.index).setVisible(visible);
        break;
    case Part::StepButton:
        but_CalcStep(row.index).setVisible(visible || but_CalcStep(row.index).visible());
        break;
    }
}

} // namespace quendal
