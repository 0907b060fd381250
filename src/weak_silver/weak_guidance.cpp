#include "weak_silver/weak_guidance.h"

#include "host/number_service.h"
#include "host/roots.h"
#include "shell/session/session.h"
#include "weak_silver/frm_AppMainWeak.h"
#include "weak_silver/weak_acid.h"
#include "weak_silver/weak_steps.h"

namespace quendal {

WeakGuidance::WeakGuidance(frm_AppMainWeak& form)
    : CaseGuidance(form, weakTables(), weakPanel()), form_(form) {}

PointValues WeakGuidance::referenceValues() {
    form_.hCalcPH();
    PointValues point = form_.amounts();
    point.conc = form_.vConc;
    point.excess = form_.vExcess;
    point.pOH = form_.vPOH;
    point.reading = form_.vPh;
    point.choice = form_.vCase - 1;
    return point;
}

int WeakGuidance::presentCase() const {
    return form_.vCase;
}

int WeakGuidance::route(int step) {
    // Without base there is nothing to compute before the choice and nothing after it but the pH.
    if (form_.vVol == 10 && step == 1) {
        return 7;
    }
    if (form_.vVol == 10 && step == 8) {
        return 12;
    }
    const int amount = skipClosedAmounts(step);
    if (amount != step || presentCase() == static_cast<int>(WeakCase::Acid)) {
        return amount;
    }
    if (step == 8 && !details().conc) {
        return 10;
    }
    // Only with base in excess is there a pOH.
    if (step == 11 && presentCase() != static_cast<int>(WeakCase::BaseExcess)) {
        return 12;
    }
    return step;
}

// The start, the first mL, the equivalence point and the point behind it, in a demo of 1 mol/L.
bool WeakGuidance::waysChangeHere() const {
    const double c = session().SessionConcentration;
    const int volume = form_.vVol;
    return volume == 10 || volume == 10 + c || volume == 10 + 10 * c || volume == 10 + 10 * c + 1;
}

void WeakGuidance::writeLabels(const LayoutState& state) {
    CaseGuidance::writeLabels(state);
    lab_CalcStep(2).setText(state.onlySample
                                ? "Welcher Fall liegt vor - ist für den pH entscheidend?"
                                : "3. Welcher Fall liegt vor - ist für den pH entscheidend?");
    if (state.caseNumber != static_cast<int>(WeakCase::Acid)) {
        return;
    }
    lab_CalcStep(3).setText(state.onlySample ? "1. Es liegt (fast) nur schwache Säure vor"
                                             : "4. Es liegt nur schwache Säure vor");
    if (state.details.start) {
        showStartConcentration();
    }
}

// The formula of the pure acid stands above its only number, which is given.
void WeakGuidance::showStartConcentration() {
    txt_Calc(1).setTop(lab_Calc(1).place().top);
    txt_Calc(1).setText(N(session().SessionConcentration));
}

// The right line and wrong ones are mixed on purpose: a choice, not a solution. Blanks and
// parentheses stand as the learner sees them, some of which don't balance.
std::vector<std::string> WeakGuidance::presetLines(int index) const {
    const std::string conc = N(form_.vConc);
    const std::string acid = N(form_.vAcidMol);
    const std::string base = N(form_.vBaseMol);
    const std::string acidVol = N(form_.vAcidVol);
    const std::string baseVol = N(form_.vBaseVol);
    const std::string sum = N(form_.vAcidVol + form_.vBaseVol);
    const std::string lessPh = "14-" + N(roundDecimals(form_.vPh, 3));
    switch (index) {
    case 2:
        return {"1/2*(4,76 - log(" + conc + "))",
                "14 + log((" + base + "-" + acid + ")/(" + acidVol + " + " + baseVol + "))",
                "14 - 1/2*(14-4,76 - log(" + base + "/(" + acidVol + " + " + baseVol + ")))",
                "4,76-log((" + S(form_.vAcidMol) + "-" + S(form_.vBaseMol) + ")/ " +
                    S(form_.vBaseMol) + ")"};
    case 8:
        return {T(6) + "-" + T(3), T(3) + "-" + T(6), T(3) + "/" + T(6), T(6) + "/" + T(3)};
    case 9:
        return {acidVol + " + " + baseVol, acidVol + " - " + baseVol, T(2) + " + " + T(4)};
    case 10:
        return {"(" + acid + "-" + base + " ) / " + base,
                "(" + T(6) + "-" + T(3) + ") / (" + sum + ")",
                "(" + T(6) + ") / (" + acidVol + " + " + baseVol + ")", T(6) + "/ (" + sum + ")"};
    case 11:
        return {"1/2*(14-(4,76-log(" + T(10) + ")", "-log(" + conc + ")",
                "14-1/2*(14-(4,76-log(" + T(10) + ")", lessPh};
    case 12:
        return resultLines();
    default:
        return {};
    }
}

std::vector<std::string> WeakGuidance::resultLines() const {
    const std::string conc = N(form_.vConc);
    const std::string lessPh = "14 - " + N(roundDecimals(form_.vPh, 3));
    switch (static_cast<WeakCase>(form_.vCase)) {
    case WeakCase::Acid:
        return {"1/2*(4,76 - log(" + conc + "))", "14 - 1/2*(14-4,76-log(" + conc + "))", lessPh,
                "-log(" + T(1) + ")"};
    case WeakCase::Buffer:
        return {"1/2*(4,76 - log(" + conc + "))", "14 - 1/2*(14- 4,76-log(" + conc + "))",
                "4,76-log((" + S(form_.vAcidMol) + "-" + S(form_.vBaseMol) + ") / " +
                    S(form_.vBaseMol) + ")",
                "4,76-log(" + T(10) + ")"};
    case WeakCase::Base:
        return {"1/2*(4,76 - log(" + conc + ")",
                "14 - 1/2*(14- 4,76 -log(" + N(form_.vAcidMol) + "/(" + N(form_.vAcidVol) + " + " +
                    N(form_.vBaseVol) + ")))",
                lessPh, "4,76-log(" + T(10) + ")"};
    case WeakCase::BaseExcess:
        // vConc holds c(OH-) here, so that the last line is the right one and the first a decoy.
        return {"1/2*(4,76 - log(" + conc + ")", "14 - 1/2*(14-4,76-log(" + T(10) + "))",
                "14 - " + T(11), "14+log(" + conc + ")"};
    }
    return {};
}

} // namespace quendal
