#include "workbench/strong_guidance.h"

#include "host/message_box.h"
#include "host/number_service.h"
#include "host/roots.h"
#include "shell/session/session.h"
#include "workbench/strong_acid.h"
#include "workbench/strong_steps.h"
#include "workbench/workbench.h"

namespace quendal {

StrongGuidance::StrongGuidance(Workbench& bench)
    : GuidedCalculation(bench, strongTables(),
                        {.headings = 5,
                         .labels = 29,
                         .inputs = {1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12},
                         .options = 3,
                         .calcButtons = {2, 10, 11, 12}}) {
    design();
}

double StrongGuidance::sampleMl() {
    return 10 * session().SessionConcentration;
}

PointValues StrongGuidance::pointAt(double concentration, double reagentVol,
                                    double totalVol) const {
    return strongAcidPoint(concentration, reagentVol, totalVol);
}

bool StrongGuidance::baseInExcess() const {
    return sampleMl() < bench().vVol - 10;
}

PointValues StrongGuidance::referenceValues() {
    Workbench& form = bench();
    form.readAmounts();
    if (form.vVol == 0) {
        return point();
    }
    const PointValues values =
        pointAt(session().SessionConcentration, form.vBaseVol, form.hGetVol(-1));
    // From here on it means the concentration of the excess, which is what step 10 asks for.
    form.vConc = values.conc;
    return values;
}

LayoutState StrongGuidance::layoutState() const {
    return {.details = details(), .baseInExcess = baseInExcess()};
}

int StrongGuidance::route(int step) {
    // At 10 mL of 1 mol/L there is only acid: all there is to say is its concentration. At any
    // other concentration the test hits at another volume, or not at all; that asymmetry is meant.
    if (!bench().vDemo && bench().vVol == sampleMl() && step == 1) {
        return 10;
    }
    if (step == 1 && !details().acid) {
        return 3;
    }
    if (step == 4 && !details().base) {
        return 6;
    }
    if (step == 8 && !details().conc) {
        return 10;
    }
    // Without base in excess no pOH is needed.
    if (step == 11 && !baseInExcess()) {
        return 12;
    }
    return step;
}

bool StrongGuidance::waysChangeHere() const {
    const int volume = bench().vVol;
    return volume == 10 || volume == sampleMl() + 10 || volume == sampleMl() + 11;
}

void StrongGuidance::writeLabels(const LayoutState& state) {
    const bool base = state.baseInExcess;
    if (state.details.acid) {
        lab_Calc(5).setTerm(inputText(1) + " * " + inputText(2));
    } else {
        lab_Calc(5).setTerm("nµV(S) = x * x");
    }
    if (state.details.base) {
        lab_Calc(10).setTerm(inputText(4) + " * " + inputText(5));
    } else {
        lab_Calc(10).setTerm("n(OH) = x * x");
    }
    lab_Calc(16).setTerm(base ? "n(OH-) = nµZ(OH) - nµV(S)" : "n(H3O+) = nµV(S) - nµZ(OH)");
    lab_Calc(17).setTerm(base ? "n(OH-) =" : "n(H3O+) =");
    if (base) {
        lab_CalcStep(3).setText("4. Konzentration der Base neu berechnen");
    } else if (bench().vVol == 10) {
        lab_CalcStep(3).setText("4. Konzentration der Säure eingeben");
    } else {
        lab_CalcStep(3).setText("4. Konzentration der Säure neu berechnen");
    }
    lab_Calc(19).setTerm(base ? "c(OH-) = (n(OH-))/(V(gesamt))"
                              : "c(H3O+) = (n(H3O+))/(V(gesamt))");
    lab_Calc(22).setTerm(base ? "c(OH-) =" : "c(H3O+) =");
    lab_Calc(23).setTerm(base ? "pH = 14-pOH" : "pH =");
    lab_Calc(24).setTerm(base ? "pH =" : "pH = -log(H3O+)");
    placeFinalLabels(lab_Calc(base ? 24 : 23), lab_Calc(base ? 23 : 24));
    if (bench().vDemo) {
        static constexpr int kOptionColors[] = {12, 9, 2};
        opt_Calc.each([](int index, OptionButton& option) {
            option.setTextColor(palette(kOptionColors[index]));
        });
    }
}

bool StrongGuidance::saysInPlaceOfRung(int step) {
    if (step != 10 || bench().vVol != 10) {
        return false;
    }
    CoreLib().MessageBox.Ok("Das ist leider immer noch falsch! Die Konzenration der Säure steht "
                            "doch schon in der Aufgabe!",
                            "");
    return true;
}

// The right line and wrong ones are mixed on purpose: a choice, not a solution.
std::vector<std::string> StrongGuidance::presetLines(int index) const {
    const NumberService& numbers = CoreLib().NumberService;
    const std::string conc = numbers.text(bench().vConc);
    switch (index) {
    case 10:
        return {
            "(" + inputText(6) + " - " + inputText(3) + ")/" + numbers.text(bench().hGetVol(-1)),
            inputText(8) + "/" + inputText(9), inputText(9) + "/" + inputText(8), "(10^-14)^0.5"};
    case 11:
        return {"14-" + conc, inputText(10) + " - 14", "14 -" + inputText(3), "-log(" + conc + ")"};
    case 12:
        return {"-log(" + conc + ")", "14 -" + inputText(11), "-log((10^-14)^0.5)",
                inputText(10) + "* -log(10)"};
    default:
        return {};
    }
}

std::string StrongGuidance::resultText(int index, double value) const {
    return index == 10 ? powerText(value) : GuidedCalculation::resultText(index, value);
}

} // namespace quendal
