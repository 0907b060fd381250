// Places of the controls that the guided calculations with cases share.
#include "shell/forms/arrange.h"
#include "weak_silver/case_guidance.h"
#include "workbench/workbench.h"

namespace quendal {

using namespace panel;
using namespace case_panel;

namespace {

constexpr double kOptionRow = 24;
constexpr double kHintLeft = 176;
constexpr double kHintWidth = 196;
constexpr double kRise = 228; // px that the choice moves up where no amounts stand above it

} // namespace

void CaseGuidance::design() {
    designFrame(*this, bench().frm_Holder, panel_.title);
    for (const HeadingPlace& heading : panel_.headings) {
        placeHeading(lab_CalcStep(heading.index), frm_Calc, heading.top, heading.text);
    }
    for (const TermPlace& term : panel_.terms) {
        placeTerm(lab_Calc(term.index), frm_Calc, term.column, term.top, std::string(term.term),
                  term.height);
    }
    txt_Calc.each([this](int step, clt_TermInput& input) {
        placeInput(input, frm_Calc, panel_.rows[static_cast<std::size_t>(step)],
                   panel_.spoken[static_cast<std::size_t>(step)]);
    });
    opt_Calc.each([this](int index, OptionButton& option) {
        placeOption(option, frm_Calc, 0, panel_.options[static_cast<std::size_t>(index)]);
    });
    lab_optCalc.each([this](int index, ctl_TermLabel& hint) {
        placeTerm(hint, frm_Calc, {kHintLeft, kHintWidth}, 0,
                  panel_.hints[static_cast<std::size_t>(index)], kOptionRow);
    });
    CheckBox& keep = opt_CalcStore(Control::kNoIndex);
    arrange(keep, frm_Calc, {240, 643, 190, 26}, {.size = 13});
    keep.setText("Rechnung beibehalten");
    for (int step = 1; step <= kSteps; ++step) {
        placeStepButton(but_CalcStep(step), frm_Calc, 0, step == kSteps ? "&Fertig" : "Weiter!");
    }
    but_CalcPH.each([this](int index, ctl_Button& button) {
        if (index == 2) {
            placeCalcButton(button, bench().frm_CalcDirect, {240, 60, 34, 32});
        } else {
            placeCalcButton(button, frm_Calc, {kCalculator.left, 0, kCalculator.width, kRowHeight});
            button.setVisible(false);
        }
    });
    placeControls(LayoutState{.caseNumber = 1});
    hideAll();
}

// Without reagent the choice is all there is to see, so it moves up to the head of the frame.
double CaseGuidance::shifted(double top, const LayoutState& state) const {
    return state.onlySample && top >= kChoiceTop ? top - kRise : top;
}

double CaseGuidance::rowOf(int step, const LayoutState& state) const {
    for (const MovedRow& row : panel_.movedRows) {
        if (row.step == step && state.inOneOf(row.cases)) {
            return row.top;
        }
    }
    return panel_.rows[static_cast<std::size_t>(step)];
}

void CaseGuidance::placeControls(const LayoutState& state) {
    const auto move = [&](Control& control, double top) { control.setTop(shifted(top, state)); };
    for (const HeadingPlace& heading : panel_.headings) {
        if (state.inOneOf(heading.cases)) {
            move(lab_CalcStep(heading.index), heading.top);
        }
    }
    lin_Calc.each([&](int index, Line& line) {
        placeLine(line, frm_Calc,
                  shifted(panel_.lines[static_cast<std::size_t>(index - 1)], state));
    });
    for (const TermPlace& term : panel_.terms) {
        if (state.inOneOf(term.cases)) {
            ctl_TermLabel& label = lab_Calc(term.index);
            label.setPlace(term.column.left, shifted(term.top, state), term.column.width,
                           term.height);
            label.setTextAlign(term.column.align);
        }
    }
    opt_Calc.each([&](int index, OptionButton& option) {
        move(option, kChoiceTop + kOptionRow * (index + 1));
    });
    lab_optCalc.each(
        [&](int index, ctl_TermLabel& hint) { move(hint, kChoiceTop + kOptionRow * (index + 1)); });
    for (int step = 1; step <= kSteps; ++step) {
        const double row = rowOf(step, state);
        move(but_CalcStep(step), row - 1);
        if (txt_Calc.has(step)) {
            move(txt_Calc(step), row);
        }
        if (but_CalcPH.has(step) && step != 2) {
            move(but_CalcPH(step), row);
        }
    }
}

} // namespace quendal
