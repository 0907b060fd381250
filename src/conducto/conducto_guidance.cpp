#include "conducto/conducto_guidance.h"

#include "conducto/conducto_variant.h"
#include "conducto/conducto_workbench.h"
#include "host/number_service.h"
#include "host/roots.h"
#include "host/sound.h"
#include "shell/session/session.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr int kSumStep = 6;
constexpr const char* kToBeWorkedOut = "Rechnen ->";
constexpr const char* kDone = "&Fertig";

// What has not been worked out yet counts as 0.
double readBack(const std::string& text) {
    return CoreLib().NumberService.ParseVariant(text).value_or(0);
}

std::string N(double value) {
    return CoreLib().NumberService.text(value);
}

bool asksSum(const ConductoVariant& variant) {
    const auto& steps = variant.tables().steps;
    return std::any_of(steps.begin(), steps.end(), [](const StepRow& row) {
        return row.step == kSumStep && row.check != Check::None;
    });
}

std::vector<int> inputsOf(const ConductoVariant& variant) {
    std::vector<int> inputs{1};
    for (int step = ConductoGuidance::kFirstRow; step <= ConductoGuidance::kLastRow; ++step) {
        if (variant.rows[static_cast<std::size_t>(step - ConductoGuidance::kFirstRow)].amount) {
            inputs.push_back(step);
        }
    }
    if (asksSum(variant)) {
        inputs.push_back(kSumStep);
    }
    return inputs;
}

std::vector<int> calculatorsOf(const GuidanceTables& tables) {
    std::vector<int> buttons{tables.directCalculator};
    buttons.insert(buttons.end(), tables.calculatorSteps.begin(), tables.calculatorSteps.end());
    return buttons;
}

// Without a sum there is no third section.
PanelSize sizeOf(const ConductoVariant& variant) {
    const bool sum = asksSum(variant);
    return {.headings = sum ? 3 : 2,
            .labels = sum ? 7 : 6,
            .inputs = inputsOf(variant),
            .options = 0,
            .calcButtons = calculatorsOf(variant.tables()),
            .store = {},
            .lines = sum ? 2 : 1};
}

} // namespace

ConductoGuidance::ConductoGuidance(ConductoWorkbench& form)
    : GuidedCalculation(form, form.conducto().tables(), sizeOf(form.conducto())),
      lab_LF2(form, "lab_LF2"), lab_LF3(form, "lab_LF3"), lab_LF4(form, "lab_LF4"),
      lab_LF5(form, "lab_LF5"), lab_LF1(form, "lab_LF1", kFirstRow, kLastRow),
      lab_LFVol(form, "lab_LFVol", kFirstRow, kLastRow),
      lab_LFAeq(form, "lab_LFAeq", kFirstRow, kLastRow),
      lab_LFErg(form, "lab_LFErg", kFirstRow, kLastRow),
      lab_LFOver(form, "lab_LFOver", kFirstRow, kLastRow),
      lab_LFTimes(form, "lab_LFTimes", kFirstRow, kLastRow),
      lab_LFEquals(form, "lab_LFEquals", kFirstRow, kLastRow), form_(form),
      variant_(form.conducto()) {
    design();
}

PointValues ConductoGuidance::referenceValues() {
    return form_.hCalcPoint();
}

// Only a repeat at 0 mL counts as shown: meant.
bool ConductoGuidance::shownBefore() const {
    return form_.titrantMl() == 0 && form_.vLastVol == 0;
}

bool ConductoGuidance::waysChangeHere() const {
    return form_.titrantMl() == 0;
}

void ConductoGuidance::startAnew() {
    form_.redrawGraph();
    but_CalcStep(oneClick()).setVisible(false);
    but_AchtungRW.setVisible(false);
    lab_LFErg.each([](int, ctl_Label& result) { result.setText(kToBeWorkedOut); });
}

void ConductoGuidance::showDemoAids() {
    if (presentStep() == 1) {
        GuidedCalculation::showDemoAids();
    }
}

void ConductoGuidance::but_CalcStep_Click(int index) {
    ctl_Button& last = but_CalcStep(kSumStep);
    if (index == kSumStep && last.text() == kDone) {
        last.setText("&Weiter!");
        last.setPictureIcon("Ico\\20\\Computer\\Signs\\Next.ico");
        frm_Calc.setVisible(false);
        form_.calculationClosed();
        return;
    }
    if (index == 1) {
        but_CalcStep(oneClick()).setVisible(false);
    }
    GuidedCalculation::but_CalcStep_Click(index);
}

void ConductoGuidance::pointPassed() {
    ctl_Button& last = but_CalcStep(kSumStep);
    last.setText(kDone);
    last.setPictureIcon("Ico\\20\\Computer\\Signs\\Abort.ico");
    if (!form_.vDemo && form_.vMismatch == 0) {
        HostApp().SoundBank.Signal(2);
    }
    form_.vLastVol = form_.titrantMl();
    std::array<double, 4> ions{};
    lab_LFErg.each([&ions](int index, const ctl_Label& result) {
        ions[static_cast<std::size_t>(index - kFirstRow)] = readBack(result.text());
    });
    form_.addPoint(readBack(T(kSumStep)), ions);
}

void ConductoGuidance::writeLabels(const LayoutState& /*state*/) {
    for (ctl_TermLabel* unit : {&lab_LF2, &lab_LF3, &lab_LF4, &lab_LF5}) {
        unit->setVisible(reached(kFirstRow) && !unit->term().empty());
    }
    for (int step = kFirstRow; step <= kLastRow; ++step) {
        lab_LFVol(step).setText(T(1));
        showRow(step, reached(step));
    }
}

void ConductoGuidance::showRow(int step, bool visible) {
    const IonRow& row = variant_.rows[static_cast<std::size_t>(step - kFirstRow)];
    const bool conductivity = visible && !row.conductivity.empty();
    lab_LF1(step).setVisible(visible);
    lab_LFOver(step).setVisible(visible && row.amount);
    lab_LFVol(step).setVisible(visible && row.amount);
    lab_LFTimes(step).setVisible(conductivity);
    lab_LFAeq(step).setVisible(conductivity);
    lab_LFEquals(step).setVisible(visible);
    lab_LFErg(step).setVisible(visible);
}

// The input of a step; empty where the frame has none.
std::string ConductoGuidance::T(int step) const {
    return txt_Calc.has(step) ? txt_Calc(step).text() : std::string();
}

// The lines beside the direct input are those of the pH forms: meant.
std::vector<std::string> ConductoGuidance::presetLines(int index) const {
    if (index == 0) {
        return {"-log(" + N(session().SessionConcentration) + ")", "14 -" + T(11),
                "-log((10^-14)^0.5)", T(10) + "* -log(10)"};
    }
    return {index == kSumStep ? sumLine() : rowLine(index)};
}

std::string ConductoGuidance::rowLine(int step) const {
    const std::string line = T(step) + " / " + N(readBack(lab_LFVol(step).text()));
    const std::string& conductivity = lab_LFAeq(step).text();
    return conductivity.empty() ? line : line + "*" + conductivity;
}

std::string ConductoGuidance::sumLine() const {
    std::string line;
    for (int step = kFirstRow; step <= kLastRow; ++step) {
        const std::string& result = lab_LFErg(step).text();
        if (result != kToBeWorkedOut) {
            line += (line.empty() ? "" : "+") + result;
        }
    }
    return line;
}

// Nothing sets the wish for lines in the first row, so where it is asked they never come there:
// meant.
bool ConductoGuidance::offersLines(int index) const {
    if (variant_.lines == LinesOffered::Always) {
        return true;
    }
    return index == kFirstRow ? session().SessionCalcTermDirect : session().SessionCalcTerm;
}

std::string ConductoGuidance::resultText(int index, double value) const {
    return index == 0 ? GuidedCalculation::resultText(index, value)
                      : CoreLib().NumberService.Format(value, 2);
}

ctl_Label* ConductoGuidance::resultLabel(int step) {
    return lab_LFErg.has(step) ? &lab_LFErg(step) : nullptr;
}

LayoutState ConductoGuidance::layoutState() const {
    return {.details = details(), .caseNumber = form_.presentCase()};
}

} // namespace quendal
