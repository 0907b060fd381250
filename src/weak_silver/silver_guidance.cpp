#include "weak_silver/silver_guidance.h"

#include "host/number_service.h"
#include "shell/session/session.h"
#include "weak_silver/frm_AppMainSilver.h"
#include "weak_silver/silver_potential.h"
#include "weak_silver/silver_steps.h"

namespace quendal {

SilverGuidance::SilverGuidance(frm_AppMainSilver& form)
    : CaseGuidance(form, silverTables(),
                   {.headings = 7,
                    .labels = 30,
                    .inputs = {1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12},
                    .options = 4,
                    .calcButtons = {2, 8, 9, 10, 11, 12},
                    .optionHints = 4,
                    .store = Control::kNoIndex},
                   silverPanel()),
      form_(form) {}

PointValues SilverGuidance::referenceValues() {
    form_.hCalcPH();
    return {.concentration = session().SessionConcentration,
            .acidVol = form_.vAcidVol,
            .acidMol = form_.vAcidMol,
            .baseConc = form_.vBaseConc,
            .baseVol = form_.vBaseVol,
            .baseMol = form_.vBaseMol,
            .totalVol = form_.hGetVol(-1),
            .conc = form_.vConc,
            .excess = form_.vSilverExcess,
            .silverIon = form_.vSilverIon,
            .reading = form_.vPotential,
            .choice = form_.vCase - 1};
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
    if (section == SilverSection::Equivalence) {
        return step == 9 ? 11 : step;
    }
    if (step == 8 && !details().conc) {
        return 10;
    }
    // With silver left over, c(Ag+) is already there.
    return section == SilverSection::SilverExcess && step == 11 ? 12 : step;
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
