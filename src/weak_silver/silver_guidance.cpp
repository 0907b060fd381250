#include "weak_silver/silver_guidance.h"

#include "host/number_service.h"
#include "shell/session/session.h"
#include "weak_silver/frm_AppMainSilver.h"
#include "weak_silver/silver_potential.h"
#include "weak_silver/silver_steps.h"

namespace quendal {

SilverGuidance::SilverGuidance(frm_AppMainSilver& form)
    : CaseGuidance(form, silverTables(), silverPanel()), form_(form) {}

PointValues SilverGuidance::referenceValues() {
    form_.hCalcPH();
    PointValues point = form_.amounts();
    point.conc = form_.vConc;
    point.excess = form_.vSilverExcess;
    point.silverIon = form_.vSilverIon;
    point.reading = form_.vPotential;
    point.choice = form_.vCase - 1;
    return point;
}

int SilverGuidance::presentCase() const {
    return form_.vCase;
}

int SilverGuidance::route(int step) {
    const int amount = skipClosedAmounts(step);
    if (amount != step) {
        return amount;
    }
    const auto section = static_cast<SilverSection>(presentCase());
    const bool chlorideLeft = section == SilverSection::ChlorideExcess;
    const bool silverLeft = section == SilverSection::SilverExcess;
    if (step == 9 && section == SilverSection::Equivalence) {
        return 11;
    }
    if (step == 8 && (chlorideLeft || silverLeft) && !details().conc) {
        return 10;
    }
    // With silver left over, c(Ag+) is already there.
    return step == 11 && silverLeft ? 12 : step;
}

// The first mL, the equivalence point and the point behind it, in a demo of 1 mol/L.
bool SilverGuidance::waysChangeHere() const {
    const double c = session().SessionConcentration;
    const int volume = form_.vVol;
    return volume == 10 + c || volume == 10 + 10 * c || volume == 10 + 10 * c + 1;
}

// The right line and wrong ones are mixed on purpose; some can't even be worked out, and one stands
// twice.
std::vector<std::string> SilverGuidance::presetLines(int index) const {
    switch (index) {
    case 8:
        return {T(3) + "-" + T(6), T(6) + "-" + T(3), "0,8 - (10^(-9,7))^0.5", T(2) + "+" + T(4)};
    case 9:
        return {T(2) + "+" + T(4), T(3) + "-" + T(6), T(2) + "+" + T(4)};
    case 10:
        return {"(" + N(form_.vAcidMol) + " - " + N(form_.vBaseMol) + ")/(" + N(form_.vAcidVol) +
                    "+" + N(form_.vBaseVol) + ")",
                T(8) + " / " + T(9), T(9) + " / " + T(8),
                "(" + T(6) + " - " + T(3) + "/(" + T(2) + "+" + T(4) + ")"};
    case 11:
        return {"10^(-9,7) /" + T(10), T(10) + "*10^(-9,7) /", "0,8-0,059*log(1/(" + T(10) + "))"};
    case 12:
        return {"0,8-0,059*log(1/(" + T(10) + "))", "0,8-0,059*log(1/(" + T(11) + "))",
                "0,059-0,8*log(1/(" + T(10) + "))"};
    default:
        return {};
    }
}

std::string SilverGuidance::resultText(int index, double value) const {
    return index == 11 ? powerText(value) : CaseGuidance::resultText(index, value);
}

} // namespace quendal
