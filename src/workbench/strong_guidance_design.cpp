// Places and fixed texts of the strong acid's guided calculation: formulas at the left, the
// learner's numbers beside them, from top to bottom as in an exercise book.
#include "workbench/strong_guidance.h"

#include "shell/forms/arrange.h"
#include "workbench/guidance/panel_columns.h"
#include "workbench/workbench.h"

namespace quendal {

namespace {

using namespace panel;

struct LabelPlace {
    int index;
    Column column;
    double row;
    const char* term;
};

constexpr double kRow[] = {0,   66,  96,  126, 192, 222, 252, // steps 1 to 6
                           400, 446, 476, 508, 586, 616};     // steps 7 to 12
constexpr double kHeadings[] = {40, 166, 314, 422, 562};
constexpr double kLines[] = {161, 309, 418, 557};

constexpr LabelPlace kLabels[] = {
    {0, kFormula, kRow[1], "nµV(S) = cµV(S) * VµV(S)"},
    {1, kName, kRow[1], "cµV(S) ="},
    {2, kUnit, kRow[1], "mol / L"},
    {3, kName, kRow[2], "VµV(S) ="},
    {4, kUnit, kRow[2], "L"},
    {5, kFormula, kRow[3], "nµV(S) = x * x"},
    {6, kName, kRow[3], "nµV(S) ="},
    {7, kUnit, kRow[3], "mol"},
    {15, kFormula, kRow[4], "nµZ(OH) = cµZ(OH) * VµZ(OH)"},
    {14, kName, kRow[4], "cµZ(OH) ="},
    {13, kUnit, kRow[4], "mol / L"},
    {12, kName, kRow[5], "VµZ(OH) ="},
    {11, kUnit, kRow[5], "L"},
    {10, kFormula, kRow[6], "n(OH) = x * x"},
    {9, kName, kRow[6], "nµZ(OH) ="},
    {8, kUnit, kRow[6], "mol"},
    {16, kFormula, kRow[8], ""},
    {17, kName, kRow[8], ""},
    {18, kUnit, kRow[8], "mol"},
    {28, kFormula, kRow[9], "V(ges) = VµV(S) + VµZ(OH)"},
    {20, kName, kRow[9], "VGes = "},
    {21, kUnit, kRow[9], "L"},
    {22, kName, kRow[10], ""},
    {25, kUnit, kRow[10], "mol/L"},
    {27, kFormula, kRow[11], "pOH = -log(OH-)"},
    {26, kName, kRow[11], "pOH ="},
};

constexpr const char* kHeadingTexts[] = {
    "1. Stoffmenge vorgelegte Säure", "2. Stoffmenge der zugetropften Base",
    "3. Welche Stoffmenge ist größer? - für pH wichtig!!",
    "4. Konzentration  c(S') oder c(OH') neu berechnen", "5. pH-Wert berechnen"};

constexpr const char* kOptionTexts[] = {"vorgelegte Säure nV(S)", "zugetropfte Base nZ(OH)",
                                        "beide Mengen gleich nV(S)=nZ(OH)"};

constexpr const char* kSpokenInputs[] = {"",
                                         "Konzentration der Säure in mol pro Liter",
                                         "Volumen der Säure in Liter",
                                         "Stoffmenge der Säure in mol",
                                         "Konzentration der Base in mol pro Liter",
                                         "Volumen der Base in Liter",
                                         "Stoffmenge der Base in mol",
                                         "",
                                         "Überschuss in mol",
                                         "Gesamtvolumen in Liter",
                                         "Konzentration des Überschusses in mol pro Liter",
                                         "pOH-Wert",
                                         "pH-Wert"};

} // namespace

void StrongGuidance::design() {
    designFrame(*this, bench().frm_Holder, "pH-Wert ausrechnen");
    lab_CalcStep.each([this](int index, ctl_Label& heading) {
        placeHeading(heading, frm_Calc, kHeadings[index], kHeadingTexts[index]);
    });
    lin_Calc.each([this](int index, Line& line) { placeLine(line, frm_Calc, kLines[index - 1]); });
    for (const LabelPlace& label : kLabels) {
        placeTerm(lab_Calc(label.index), frm_Calc, label.column, label.row, label.term);
    }
    // The fraction needs the height of a row and a half.
    constexpr double kFractionHeight = 44;
    placeTerm(lab_Calc(19), frm_Calc, kFormula, kRow[10] - 8, "", kFractionHeight);
    placeFinalLabels(lab_Calc(23), lab_Calc(24));
    txt_Calc.each([this](int step, clt_TermInput& input) {
        placeInput(input, frm_Calc, kRow[step], kSpokenInputs[step]);
    });
    opt_Calc.each([this](int index, OptionButton& option) {
        placeOption(option, frm_Calc, 338 + 26.0 * index, kOptionTexts[index]);
    });
    arrange(opt_CalcStore(3), frm_Calc, {kName.left - 18, kRow[6] + 29, 190, 24}, {.size = 13});
    opt_CalcStore(3).setText("Wert beibehalten");
    for (int step = 1; step <= kSteps; ++step) {
        const double row = step == 7 ? 384 : kRow[step];
        placeStepButton(but_CalcStep(step), frm_Calc, row, step >= 11 ? "&Fertig" : "Weiter!");
    }
    but_CalcPH.each([this](int index, ctl_Button& button) {
        if (index == 2) {
            placeCalcButton(button, bench().frm_CalcDirect, {240, 60, 34, 32});
        } else {
            placeCalcButton(button, frm_Calc,
                            {kCalculator.left, kRow[index], kCalculator.width, kRowHeight});
        }
    });
    hideAll();
}

void StrongGuidance::placeFinalLabels(ctl_TermLabel& name, ctl_TermLabel& formula) {
    placeTerm(name, frm_Calc, kName, kRow[12], name.term());
    placeTerm(formula, frm_Calc, kFormula, kRow[12], formula.term());
}

} // namespace quendal
