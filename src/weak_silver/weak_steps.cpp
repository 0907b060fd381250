#include "weak_silver/weak_steps.h"

#include "workbench/guidance/common_steps.h"
#include "workbench/guidance/ladder_texts.h"

namespace quendal {

namespace {

using namespace panel;
using namespace case_panel;

// 1 only acid, 2 acid beside its base, 3 only the base of the acid, 4 hydroxide in excess.
constexpr Cases kAcid = inCases(1);
constexpr Cases kBuffer = inCases(2);
constexpr Cases kBase = inCases(3);
constexpr Cases kExcess = inCases(4);
constexpr Cases kWithBase = kBuffer | kBase | kExcess;

double acidLeft(const PointValues& p) {
    return p.acidMol - p.baseMol;
}
double excess(const PointValues& p) {
    return p.excess;
}
double baseMol(const PointValues& p) {
    return p.baseMol;
}
double totalVol(const PointValues& p) {
    return p.totalVol;
}
double buffer(const PointValues& p) {
    return (p.acidMol - p.baseMol) / p.baseMol;
}
double acetate(const PointValues& p) {
    return p.baseMol / p.totalVol;
}
double conc(const PointValues& p) {
    return p.conc;
}
double pOH(const PointValues& p) {
    return p.pOH;
}
double pH(const PointValues& p) {
    return p.reading;
}

constexpr StepRow kTail[] = {
    {8, Check::Rounded, acidLeft, -1, Fill::Picture3, {}, kBuffer},
    {9, Check::Rounded, baseMol, -1, Fill::Picture3, {}, kBuffer},
    {10, Check::Rounded, buffer, 3, Fill::Picture3, {}, kBuffer},
    {8, Check::Rounded, baseMol, -1, Fill::Picture3, {}, kBase},
    {9, Check::Rounded, totalVol, -1, Fill::Picture3, {}, kBase},
    {10, Check::Rounded, acetate, 3, Fill::Picture3, {}, kBase},
    {8, Check::Rounded, excess, 3, Fill::DefaultText, {}, kExcess},
    {9, Check::Rounded, totalVol, 3, Fill::DefaultText, {}, kExcess},
    {10, Check::Rounded, conc, 3, Fill::Picture3, {}, kExcess},
    {11, Check::Rounded, pOH, 2, Fill::Picture2, {}, kExcess},
    {12, Check::Rounded, pH, 2, Fill::Picture2, {}, kEveryCase},
};

constexpr ShownRow kTailShown[] = {
    // the formula of the pure acid and its number
    {Part::Heading, 3, 12, nullptr, kAcid},
    {Part::Label, 16, 12, nullptr, kAcid, &Details::start},
    {Part::Label, 28, 12, nullptr, kAcid, &Details::start},
    {Part::Label, 19, 12, nullptr, kAcid, &Details::start},
    {Part::Label, 1, 12, nullptr, kAcid, &Details::start},
    {Part::Input, 1, 12, nullptr, kAcid, &Details::start},
    {Part::Label, 2, 12, nullptr, kAcid, &Details::start},
    // 4. what is there now
    {Part::Heading, 3, 8, nullptr, kWithBase, &Details::conc},
    {Part::Heading, 3, 10, nullptr, kWithBase},
    {Part::Label, 16, 8, nullptr, kWithBase, &Details::conc},
    {Part::Label, 17, 8, nullptr, kWithBase, &Details::conc},
    {Part::Input, 8, 8, nullptr, kWithBase, &Details::conc},
    {Part::Label, 18, 8, nullptr, kWithBase, &Details::conc},
    {Part::Label, 28, 9, nullptr, kBuffer | kBase, &Details::conc},
    {Part::Label, 20, 9, nullptr, kWithBase, &Details::conc},
    {Part::Input, 9, 9, nullptr, kWithBase, &Details::conc},
    {Part::Label, 21, 9, nullptr, kWithBase, &Details::conc},
    {Part::Label, 19, 10, nullptr, kWithBase, &Details::conc},
    {Part::Label, 22, 10, nullptr, kWithBase},
    {Part::Input, 10, 10, nullptr, kWithBase},
    {Part::Label, 25, 10, nullptr, kBase | kExcess},
    {Part::Line, 4, 10, nullptr, kWithBase},
    // 5. pOH and pH
    {Part::Heading, 4, 11, nullptr, kExcess},
    {Part::Heading, 4, 12, nullptr, kBuffer | kBase},
    {Part::Label, 27, 11, nullptr, kExcess, &Details::final},
    {Part::Label, 27, 12, nullptr, kBuffer | kBase, &Details::final},
    {Part::Label, 26, 11, nullptr, kExcess},
    {Part::Input, 11, 11, nullptr, kExcess},
    {Part::Label, 23, 12},
    {Part::Input, 12, 12},
};

constexpr TextRow kTexts[] = {
    {Part::Label, 16, "Der pH-Wert für eine schwache Säure", kAcid},
    {Part::Label, 28, "berechnet sich wie folgt:", kAcid},
    {Part::Label, 19, "pH = (1)/(2)*(pKs-log(cµV(HAc)))", kAcid},

    {Part::Heading, 3, "4. HAc und Ac- liegen nebeneinander vor", kBuffer},
    {Part::Label, 16, "n(HAc) =  nµV(HAc) - nµZ(OH) ", kBuffer},
    {Part::Label, 17, "n(HAc) =", kBuffer},
    {Part::Label, 28, "n(Ac-) = nµZ(OH) ", kBuffer},
    {Part::Label, 20, "n(Ac-)", kBuffer},
    {Part::Label, 21, "mol", kBuffer},
    {Part::Label, 19, "n(HAc)/n(Ac-) = n(HAc)/nµZ(OH)", kBuffer},
    {Part::Label, 22, "n(HAc)/n(Ac-) =", kBuffer},
    {Part::Heading, 4, "5. pH-Wert berechnen", kBuffer | kBase},
    {Part::Label, 27, "pH = pKs - log(n(HAc) / n(Ac-))", kBuffer},

    {Part::Heading, 3, "4. Es liegt nur schwache Base Ac- vor", kBase},
    {Part::Label, 16, "n(Ac-) = nµZ(OH-)", kBase},
    {Part::Label, 17, "n(Ac-) =", kBase},
    {Part::Label, 28, "V(gesamt) = VµV(HAc) + VµZ(OH)", kBase},
    {Part::Label, 20, "V(gesamt) =", kBase | kExcess},
    {Part::Label, 21, " L", kBase | kExcess},
    {Part::Label, 19, "c(Ac-) = (n(Ac-))/(V(gesamt)", kBase},
    {Part::Label, 22, "c(Ac-) = ", kBase},
    {Part::Label, 27, "pH = 14 - (1)/(2) * (14 - pKs - log(c(Ac-)))", kBase},

    {Part::Heading, 3, "4. Konzentration der OH- Ionen berechnen", kExcess},
    {Part::Label, 16, "n(OH-) = nµZ(OH) - nµV(HAc)", kExcess},
    {Part::Label, 17, "n(OH-) =", kExcess},
    {Part::Label, 19, "c(OH-) = (n(OH-))/(V(gesamt))", kExcess},
    {Part::Label, 22, "c(OH-) =", kExcess},
    {Part::Heading, 4, "5. pOH-Wert berechnen", kExcess},
    {Part::Heading, 4, "5. pH-Wert berechnen", kExcess, 12},
    {Part::Label, 27, "pOH = -log(OH-)", kExcess},
};

bool onlySample(const LayoutState& s) {
    return s.onlySample;
}
// With base in excess the formula of the result has no rung, though step 11 asks for its flag.
bool bufferOrBase(const LayoutState& s) {
    return s.inOneOf(kBuffer | kBase);
}

constexpr RungRow kRungs[] = {
    {.step = 3, .detail = &Details::acid, .backTo = 1, .reached = 1, .notReached = 3},
    {.step = 6, .detail = &Details::base, .backTo = 4, .reached = 4, .notReached = 6},
    {.step = 7, .detail = &Details::choice, .backTo = 7},
    {.step = 10, .detail = &Details::conc, .backTo = 8, .reached = 8, .notReached = 10},
    {.step = 12, .detail = &Details::start, .backTo = 12, .when = onlySample},
    {.step = 12, .detail = &Details::final, .backTo = 12, .when = bufferOrBase},
};

constexpr int kCalculatorSteps[] = {9, 10, 11, 12};

constexpr double kRow8 = 416;
constexpr double kRow9 = 444;
constexpr double kRow10 = 494;
// The base of the acid has a long rule for its volume, which takes a row of its own.
constexpr double kBaseRow9 = 466;
constexpr double kBaseRow10 = 498;
constexpr double kRow11 = 560;
constexpr double kRow12 = 600;
constexpr double kStartRow = 516; // where the number of the pure acid stands

} // namespace

const GuidanceTables& weakTables() {
    static const GuidanceTables tables{
        .lastStep = 12,
        .choiceStep = 7,
        .steps = joined<StepRow>(amountSteps(-1), kTail),
        .shown = joined<ShownRow>(caseRows(0, &Details::choice), kTailShown),
        .texts = kTexts,
        .rungs = kRungs,
        .calculatorSteps = kCalculatorSteps,
        .reminder = kReminderInOneLine,
        .solveChoiceQuestion = "Das ist leider immer noch falsch! Soll ich das Richtige anklicken?",
        .counting = {.help = true, .solve = true, .reported = true},
        .clearsChoice = true,
        .restsAtEnd = true};
    return tables;
}

const CasePanel& weakPanel() {
    static const CasePanel panel{
        .title = "pH-Wert ausrechnen",
        .headingCount = 5,
        .labelCount = 29,
        .headings = {{0, 36, "1. Stoffmenge vorgelegte  Säure"},
                     {1, 150, "2. Stoffmenge der zugetropften Base"},
                     {2, kChoiceTop, "3. Welcher Fall liegt vor - ist für den pH entscheidend!!"},
                     {3, 391, "4. Konzentration berechnen"},
                     {4, 534, "5. pH-Wert berechnen"}},
        .terms = {{0, kFormula, 60, "nµV(HAc) = cµV(HAc) * VµV(HAc)"},
                  {1, kName, 60, "cµV(HAc) =", kWithBase},
                  {1, kName, kStartRow, "cµV(HAc) =", kAcid},
                  {2, kUnit, 60, "mol / L", kWithBase},
                  {2, kUnit, kStartRow, "mol / L", kAcid},
                  {3, kName, 88, "VµV(HAc) ="},
                  {4, kUnit, 88, "L"},
                  {5, kFormula, 116, "nµV(HAc) = x * x"},
                  {6, kName, 116, "nµV(HAc) ="},
                  {7, kUnit, 116, "mol"},
                  {15, kFormula, 174, "nµZ(OH) = cµZ(OH) * VµZ(OH)"},
                  {14, kName, 174, "cµZ(OH) ="},
                  {13, kUnit, 174, "mol / L"},
                  {12, kName, 202, "VµZ(OH) ="},
                  {11, kUnit, 202, "L"},
                  {10, kFormula, 230, "nµZ(OH) = x * x"},
                  {9, kName, 230, "nµZ(OH) ="},
                  {8, kUnit, 230, "mol"},
                  {16, kFormula, kRow8, {}, kWithBase},
                  {16, kWide, kRow8, {}, kAcid},
                  {17, kName, kRow8},
                  {18, kUnit, kRow8, "mol"},
                  {28, kFormula, kRow9, {}, kBuffer},
                  {28, kWide, kRow9 - 2, {}, kBase, 24},
                  {28, kWide, kRow8 + kRowHeight, {}, kAcid},
                  {20, kName, kRow9, {}, kBuffer},
                  {20, kLongName, kRow9, {}, kExcess},
                  {20, kLongName, kBaseRow9, {}, kBase},
                  {21, kUnit, kRow9, {}, kBuffer | kExcess},
                  {21, kUnit, kBaseRow9, {}, kBase},
                  {19, kWide, kRow10 - 24, {}, kBuffer},
                  {19, kFormula, kBaseRow10 - 10, {}, kBase, kFractionHeight},
                  {19, kFormula, kRow10 - 14, {}, kExcess, kFractionHeight},
                  {19, kWide, kRow9 + kRowHeight, {}, kAcid, kFractionHeight},
                  {22, kWideName, kRow10, {}, kBuffer},
                  {22, kName, kBaseRow10, {}, kBase},
                  {22, kName, kRow10, {}, kExcess},
                  {25, kUnit, kBaseRow10, " mol/L", kBase},
                  {25, kUnit, kRow10, " mol/L", kExcess},
                  {27, kWide, kRow11, {}, kBuffer | kBase, kFractionHeight},
                  {27, kFormula, kRow11, {}, kExcess},
                  {26, kName, kRow11, "pOH ="},
                  {23, kName, kRow12, "pH ="}},
        .rows = {0, 60, 88, 116, 174, 202, 230, 359, kRow8, kRow9, kRow10, kRow11, kRow12},
        .movedRows = {{9, kBase, kBaseRow9}, {10, kBase, kBaseRow10}},
        .lines = {146, 260, 388, 532},
        .options = {"(Fast) nur HAc", "HAc neben Ac-", "(Fast) nur Ac-", "Wichtig nur OH- "},
        .hints = {"nµZ(OH) = 0", "0 < nµZ(OH) < nµV(HAc)", "nµZ(OH) = nµV(HAc)",
                  "nµZ(OH) > nµV(HAc)"},
        .spoken = {"", "Konzentration der Essigsäure in mol pro Liter",
                   "Volumen der Essigsäure in Liter", "Stoffmenge der Essigsäure in mol",
                   "Konzentration der Base in mol pro Liter", "Volumen der Base in Liter",
                   "Stoffmenge der Base in mol", "", "Neue Stoffmenge in mol",
                   "Stoffmenge Acetat in mol oder Gesamtvolumen in Liter",
                   "Verhältnis oder Konzentration", "pOH-Wert", "pH-Wert"},
        .sample = {"nµV(HAc) = ", "nµV(HAc) = x * x"},
        .reagent = {"nµZ(OH) = ", "nµZ(OH) = x * x"}};
    return panel;
}

} // namespace quendal
