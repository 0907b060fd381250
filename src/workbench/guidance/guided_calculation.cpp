#include "workbench/guidance/guided_calculation.h"

#include "host/calculator.h"
#include "host/number_service.h"
#include "host/roots.h"
#include "host/sound.h"
#include "host/window_system.h"
#include "shell/session/session.h"
#include "workbench/workbench.h"

#include <algorithm>

namespace quendal {

GuidedCalculation::GuidedCalculation(Workbench& bench, const GuidanceTables& tables,
                                     const PanelSize& size)
    : frm_Calc(bench, "frm_Calc"), lab_CalcStep(bench, "lab_CalcStep", 0, size.headings - 1),
      lin_Calc(bench, "lin_Calc", 1, size.lines), lab_Calc(bench, "lab_Calc", 0, size.labels - 1),
      txt_Calc(bench, "txt_Calc", size.inputs), opt_Calc(bench, "opt_Calc", 0, size.options - 1),
      lab_optCalc(bench, "lab_optCalc", 0, size.optionHints - 1),
      opt_CalcStore(bench, "opt_CalcStore", size.store),
      but_CalcPH(bench, "but_CalcPH", size.calcButtons),
      but_CalcStep(bench, "but_CalcStep", 1, tables.lastStep + 1),
      but_AchtungRW(bench, "but_AchtungRW"), bench_(bench), tables_(tables) {
    hookEvents();
}

void GuidedCalculation::hookEvents() {
    but_CalcStep.each([this](int index, ctl_Button& button) {
        button.onClick = [this, index] { but_CalcStep_Click(index); };
    });
    but_CalcPH.each([this](int index, ctl_Button& button) {
        button.onClick = [this, index] { but_CalcPH_Click(index); };
    });
}

void GuidedCalculation::but_HelpCalc_Click() {
    bench_.vMismatch = 0;
    bench_.frm_CalcDirect.setVisible(false);
    frm_Calc.setVisible(true);
    bench_.hHideMainControls();
    frm_Calc.bringToFront();
    vTries_ = 0;
    vStepReached_.fill(false);
    const bool demo = bench_.vDemo;
    // A demo shows the long way.
    details_ = {.acid = demo,
                .base = demo,
                .conc = demo,
                .choice = demo,
                .start = demo,
                .silver = demo,
                .final = demo};
    if (tables_.clearsChoice) {
        opt_Calc.each([](int, OptionButton& option) { option.setChecked(false); });
    }
    vAutoRun_ = false;
    for (int step = 1; step <= tables_.lastStep - (tables_.lastKeepsCaption ? 1 : 0); ++step) {
        but_CalcStep(step).setText(demo ? "D-Klick!" : "Weiter!");
    }
    startAnew();
    hCalcStepShow(1);
    if (amountKept()) {
        clearInputs(4);
        hCalcStepShow(6);
        txt_Calc(6).setFocus();
    } else {
        clearInputs(1);
        hCalcStepShow(1);
    }
}

bool GuidedCalculation::amountKept() {
    bool kept = false;
    opt_CalcStore.each([&kept](int, CheckBox& store) { kept = kept || store.checked(); });
    return kept;
}

void GuidedCalculation::clearInputs(int from) {
    txt_Calc.each([from](int index, clt_TermInput& input) {
        if (index >= from) {
            input.setText({});
        }
    });
}

void GuidedCalculation::hCalcStepShow(int step) {
    if (bench_.vDemo && shownBefore()) {
        return;
    }
    sStep_ = std::clamp(step == -1 ? sStep_ + 1 : step, 1, tables_.lastStep);
    if (bench_.vDemo) {
        showDemoAids();
    }
    sStep_ = route(sStep_);
    vStepReached_[static_cast<std::size_t>(sStep_)] = true;
    layOut();
    focusStep();
    if (vAutoRun_ && sStep_ < tables_.lastStep) {
        but_CalcStep_Click(sStep_);
    }
}

bool GuidedCalculation::shownBefore() const {
    return bench_.titrantMl() == bench_.vLastVol;
}

void GuidedCalculation::showDemoAids() {
    but_CalcStep(oneClick()).setVisible(!waysChangeHere());
    but_AchtungRW.setVisible(waysChangeHere());
}

void GuidedCalculation::focusStep() {
    if (sStep_ != tables_.choiceStep && txt_Calc.has(sStep_)) {
        txt_Calc(sStep_).setFocus();
    } else {
        but_CalcStep(sStep_).setFocus();
    }
}

const StepRow* GuidedCalculation::rowOf(int step, int caseNumber) const {
    const auto row =
        std::find_if(tables_.steps.begin(), tables_.steps.end(), [&](const StepRow& r) {
            return r.step == step && LayoutState{.caseNumber = caseNumber}.inOneOf(r.cases);
        });
    return row == tables_.steps.end() ? nullptr : &*row;
}

void GuidedCalculation::but_CalcStep_Click(int index) {
    point_ = referenceValues();
    if (bench_.vVol == 0) {
        return;
    }
    if (index == oneClick()) {
        but_CalcStep(index).setVisible(false);
        vAutoRun_ = true;
        index = 1;
    }
    if (bench_.vDemo) {
        fillDemo(index);
    }
    const StepRow* row = rowOf(index, point_.caseNumber());
    if (row != nullptr && !passes(*row)) {
        climbLadder(index);
        focusStep();
        return;
    }
    if (index == tables_.lastStep) {
        pointPassed();
        if (tables_.restsAtEnd) {
            return;
        }
    }
    hCalcStepShow(-1);
    vTries_ = 0;
}

void GuidedCalculation::fillDemo(int step) {
    const bool one = tables_.demoFills == DemoFills::OneStep;
    for (int i = one ? step : 1; i <= (one ? step : tables_.lastStep); ++i) {
        if (const StepRow* row = rowOf(i, point_.caseNumber())) {
            fillIn(*row);
        }
    }
}

void GuidedCalculation::pointPassed() {
    bench_.hShowMainControls();
    frm_Calc.setVisible(false);
    if (bench_.vMismatch == 0 && !bench_.vDemo) {
        HostApp().SoundBank.Signal(2);
    }
    bench_.vLastVol = bench_.titrantMl();
    bench_.showGuidedReading(point_.reading);
    bench_.hPointDone(point_.reading);
    bench_.but_phCompare_Click();
}

bool GuidedCalculation::passes(const StepRow& row) {
    if (row.check == Check::None) {
        return true;
    }
    if (row.check == Check::Choice) {
        return opt_Calc.has(point_.choice) && opt_Calc(point_.choice).checked();
    }
    if (row.result != nullptr) {
        return !bench_.hUnequal(resultLabel(row.step)->text(), row.result(point_), row.digits);
    }
    const std::string answer = txt_Calc(row.step).text();
    if (equalsFill(row, answer)) {
        return true;
    }
    if (row.check == Check::Exact) {
        return CoreLib().NumberService.Parse(answer) == row.expected(point_);
    }
    return !bench_.hUnequal(answer, row.expected(point_), row.digits);
}

// What the tutor would write is right by definition: without this, exact comparison would refuse
// "0,014" for 1.4 times 0.01, whose double is another one.
bool GuidedCalculation::equalsFill(const StepRow& row, const std::string& answer) const {
    const NumberService& numbers = CoreLib().NumberService;
    return numbers.Parse(answer) == numbers.Parse(fillText(row));
}

std::string GuidedCalculation::fillText(const StepRow& row) const {
    const NumberService& numbers = CoreLib().NumberService;
    switch (row.fill) {
    case Fill::Literal:
        return std::string(row.literal);
    case Fill::Picture2:
        return numbers.picture(row.expected(point_), "#0.00");
    case Fill::Picture3:
        return numbers.picture(row.expected(point_), "#0.000");
    case Fill::Power:
        return powerText(row.expected(point_));
    case Fill::DefaultText:
        break;
    }
    return numbers.text(row.expected(point_));
}

void GuidedCalculation::fillIn(const StepRow& row) {
    if (row.check == Check::Choice) {
        if (opt_Calc.has(point_.choice)) {
            opt_Calc(point_.choice).setChecked(true);
        }
        return;
    }
    if (txt_Calc.has(row.step)) {
        txt_Calc(row.step).setText(fillText(row));
    }
    if (ctl_Label* label = resultLabel(row.step)) {
        label->setText(filledResult(row));
    }
    if (row.alsoFills != 0) {
        fillIn(*rowOf(row.alsoFills, point_.caseNumber()));
    }
}

std::string GuidedCalculation::filledResult(const StepRow& row) const {
    return row.result == nullptr ? std::string(row.resultLiteral)
                                 : CoreLib().NumberService.Format(row.result(point_), 2);
}

bool GuidedCalculation::clickDueStep() {
    for (int step = 1; step <= tables_.lastStep; ++step) {
        // The choice keeps the key for its own button, which has the focus there.
        if (step != tables_.choiceStep && but_CalcStep(step).visible()) {
            // Not through the button, which would take the focus from the input.
            but_CalcStep_Click(step);
            return true;
        }
    }
    return false;
}

std::string GuidedCalculation::powerText(double value) {
    constexpr std::size_t kMantissa = 5; // characters kept
    const NumberService& numbers = CoreLib().NumberService;
    const std::string text = numbers.text(value);
    const auto exponent = text.find('E');
    if (exponent == std::string::npos) {
        return numbers.Format(value, 3);
    }
    return text.substr(0, std::min(exponent, kMantissa)) + "*10^" + text.substr(exponent + 1);
}

std::string GuidedCalculation::resultText(int /*index*/, double value) const {
    return CoreLib().NumberService.Format(value, 3);
}

void GuidedCalculation::but_CalcPH_Click(int index) {
    constexpr double kLift = 50; // px that the popup stands above the balance
    const Rect& holder = bench_.frm_Holder.place();
    const Rect& balance = bench_.frm_Bilanz.place();
    CalcPresets presets;
    presets.Init(8);
    for (const std::string& line : presetLines(index)) {
        presets.Add(" ", line);
    }
    presets.Finish();
    if (!offersLines(index)) {
        presets.Clear();
    }
    const auto result =
        HostApp().Calculator.Show(0, 0, (holder.left + balance.left) * kTwipsPerUnit,
                                  (holder.top + balance.top - kLift) * kTwipsPerUnit, presets);
    if (result) {
        takeResult(index, *result);
    }
}

bool GuidedCalculation::offersLines(int index) const {
    return index == tables_.directCalculator ? session().SessionCalcTermDirect
                                             : session().SessionCalcTerm;
}

void GuidedCalculation::takeResult(int index, double value) {
    const std::string text = resultText(index, value);
    const auto& own = tables_.calculatorSteps;
    if (std::find(own.begin(), own.end(), index) == own.end()) {
        bench_.txt_Ph.setText(text);
        bench_.txt_Ph.setFocus();
    } else if (ctl_Label* label = resultLabel(index)) {
        label->setText(text);
        but_CalcStep(index).setFocus();
    } else {
        txt_Calc(index).setText(text);
        txt_Calc(index).setFocus();
    }
}

void GuidedCalculation::describe(FieldTable& table) const {
    table.add("sStep", sStep_);
    table.addArray("vStepReached", vStepReached_);
    table.add("vAutoRun", vAutoRun_);
    table.add("vTries", vTries_);
    table.add("vDetailAcid", details_.acid);
    table.add("vDetailBase", details_.base);
    table.add("vDetailConc", details_.conc);
    table.add("vDetailCase", details_.choice);
    table.add("vDetailStart", details_.start);
    table.add("vDetailSilver", details_.silver);
    table.add("vDetailFinal", details_.final);
}

} // namespace quendal
