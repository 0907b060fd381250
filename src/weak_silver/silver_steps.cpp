#include "weak_silver/silver_steps.h"

#include "host/number_service.h"
#include "workbench/guidance/common_steps.h"
#include "workbench/guidance/ladder_texts.h"

namespace quendal {

namespace {

using namespace panel;
using namespace case_panel;

// 2 chloride left, 3 equivalence, 4 silver left. The model never gives 1, no silver at all: its
// rows hold the text that explains such a point.
constexpr Cases kNoSilver = inCases(1);
constexpr Cases kChloride = inCases(2);
constexpr Cases kEquivalence = inCases(3);
constexpr Cases kSilverLeft = inCases(4);
constexpr Cases kWithAmount = kChloride | kSilverLeft; // there is a concentration to work out
constexpr Cases kFromProduct = kChloride | kEquivalence;
constexpr Cases kWithSilver = kChloride | kEquivalence | kSilverLeft;

double chlorideLeft(const PointValues& p) {
    return p.acidMol - p.baseMol;
}
double nothing(const PointValues& /*point*/) {
    return 0;
}
double silverLeft(const PointValues& p) {
    return roundDecimals(p.baseMol - p.acidMol, 3);
}
double mixedVol(const PointValues& p) {
    return p.baseVol + p.acidVol;
}
double chlorideConc(const PointValues& p) {
    return (p.acidMol - p.baseMol) / (p.baseVol + p.acidVol);
}
double silverConc(const PointValues& p) {
    return (p.baseMol - p.acidMol) / (p.baseVol + p.acidVol);
}
double silverIon(const PointValues& p) {
    return p.silverIon;
}
double potential(const PointValues& p) {
    return p.reading;
}

constexpr StepRow kTail[] = {
    {8, Check::Rounded, chlorideLeft, -1, Fill::Picture3, {}, kChloride},
    {9, Check::Rounded, mixedVol, -1, Fill::Picture3, {}, kWithAmount},
    {10, Check::Rounded, chlorideConc, 3, Fill::Picture3, {}, kChloride},
    {8, Check::Rounded, nothing, -1, Fill::Picture3, {}, kEquivalence},
    // Not a step of this section: a demo fills it in for the lines of the calculator.
    {10, Check::None, silverIon, 3, Fill::Power, {}, kEquivalence},
    // Three decimals make every small concentration equal to 0: the check is that loose.
    {11, Check::Rounded, silverIon, 3, Fill::Power, {}, kFromProduct},
    {8, Check::Rounded, silverLeft, -1, Fill::Picture3, {}, kSilverLeft},
    {10, Check::Rounded, silverConc, 3, Fill::Picture3, {}, kSilverLeft},
    {12, Check::Rounded, potential, 3, Fill::Picture3, {}, kWithSilver},
};

constexpr ShownRow kTailShown[] = {
    // why there is no potential without silver
    {Part::Heading, 4, 8, nullptr, kNoSilver},
    {Part::Label, 16, 8, nullptr, kNoSilver},
    {Part::Label, 19, 8, nullptr, kNoSilver},
    {Part::Label, 23, 8, nullptr, kNoSilver},
    {Part::StepButton, 5, 8, nullptr, kNoSilver},
    // 4. the concentration of what is left
    {Part::Heading, 4, 8, nullptr, kEquivalence},
    {Part::Heading, 4, 8, nullptr, kWithAmount, &Details::conc},
    {Part::Heading, 4, 10, nullptr, kWithAmount},
    {Part::Label, 16, 8, nullptr, kEquivalence},
    {Part::Label, 16, 8, nullptr, kWithAmount, &Details::conc},
    {Part::Label, 17, 8, nullptr, kEquivalence},
    {Part::Label, 17, 8, nullptr, kWithAmount, &Details::conc},
    {Part::Input, 8, 8, nullptr, kEquivalence},
    {Part::Input, 8, 8, nullptr, kWithAmount, &Details::conc},
    {Part::Label, 18, 8, nullptr, kEquivalence},
    {Part::Label, 18, 8, nullptr, kWithAmount, &Details::conc},
    {Part::Label, 20, 9, nullptr, kWithAmount, &Details::conc},
    {Part::Input, 9, 9, nullptr, kWithAmount, &Details::conc},
    {Part::Label, 21, 9, nullptr, kWithAmount, &Details::conc},
    {Part::Label, 19, 10, nullptr, kWithAmount, &Details::conc},
    {Part::Label, 22, 10, nullptr, kWithAmount},
    {Part::Input, 10, 10, nullptr, kWithAmount},
    {Part::Label, 25, 10, nullptr, kWithAmount},
    {Part::Line, 4, 10, nullptr, kWithAmount},
    {Part::Line, 4, 8, nullptr, kEquivalence},
    // 5. c(Ag+)
    {Part::Heading, 5, 11, nullptr, kFromProduct},
    {Part::Label, 23, 11, nullptr, kFromProduct, &Details::silver},
    {Part::Label, 26, 11, nullptr, kFromProduct},
    {Part::Input, 11, 11, nullptr, kFromProduct},
    {Part::Label, 28, 11, nullptr, kFromProduct},
    // 6. the potential, with silver left over 5.
    {Part::Heading, 6, 12, nullptr, kFromProduct},
    {Part::Heading, 5, 12, nullptr, kSilverLeft},
    {Part::Label, 27, 12, nullptr, kFromProduct, &Details::final},
    {Part::Label, 27, 12, nullptr, kSilverLeft},
    {Part::Label, 24, 12, nullptr, kWithSilver},
    {Part::Input, 12, 12, nullptr, kWithSilver},
    {Part::Label, 29, 12, nullptr, kWithSilver},
};

constexpr TextRow kTexts[] = {
    {Part::Heading, 4, "4. Potential berechnen", kNoSilver},
    {Part::Label, 16, "Die Menge der Silber-Ionen ist nicht bekannt,", kNoSilver},
    {Part::Label, 19, "deswegen kann das Potential nicht berechnet", kNoSilver},
    {Part::Label, 23, "werden", kNoSilver},

    {Part::Heading, 4, "4. Neue Konzentration der Chlorid-Ionen berechnen", kFromProduct},
    {Part::Label, 16, "n(Cl')=nµV(Cl-)-nµZ(Ag+)", kFromProduct},
    {Part::Label, 17, "n(Cl')=", kFromProduct},
    {Part::Label, 19, "c(Cl') = (n(Cl'))/(VGes))", kChloride},
    {Part::Label, 22, "c(Cl') = ", kChloride},
    {Part::Heading, 5, "5. Neue Konzentration der Silber-Ionen berechnen", kChloride},
    {Part::Heading, 5, "5. Konzentration der Silber-Ionen", kEquivalence},
    {Part::Label, 23, "c(Ag+) = KµL / c(Cl')", kChloride},
    {Part::Label, 23, "c(Ag+) = KµL^0.5)", kEquivalence},
    {Part::Heading, 6, "6. Potential berechnen", kFromProduct},

    {Part::Heading, 4, "4. Neue Konzentration der Silber-Ionen berechnen", kSilverLeft},
    {Part::Label, 16, "n(Ag+)=nµZ(Ag+)-nµV(Cl-)", kSilverLeft},
    {Part::Label, 17, "n(Ag+)=", kSilverLeft},
    {Part::Label, 19, "c(Ag+) = (n(Ag+))/(VGes))", kSilverLeft},
    {Part::Label, 22, "c(Ag+) = ", kSilverLeft},
    {Part::Heading, 5, "5. Potential berechnen", kSilverLeft},
};

// The count of tries starts anew at the last three, whatever the learner answers.
constexpr RungRow kRungs[] = {
    {.step = 3, .detail = &Details::acid, .backTo = 1, .notReached = 3},
    {.step = 6, .detail = &Details::base, .backTo = 4, .reached = 4, .notReached = 6},
    {.step = 10,
     .detail = &Details::conc,
     .backTo = 8,
     .resetsTriesAtOnce = true,
     .reached = 8,
     .notReached = 10},
    {.step = 11, .detail = &Details::silver, .backTo = 11, .resetsTriesAtOnce = true},
    {.step = 12, .detail = &Details::final, .backTo = 12, .resetsTriesAtOnce = true},
};

constexpr int kCalculatorSteps[] = {8, 9, 10, 11, 12};

constexpr double kRow8 = 415;
constexpr double kRow9 = 442;
constexpr double kRow10 = 476;
constexpr double kRow11 = 536;
constexpr double kRow12 = 614;

} // namespace

const GuidanceTables& silverTables() {
    static const GuidanceTables tables{
        .lastStep = 12,
        .choiceStep = 7,
        .steps = joined<StepRow>(amountSteps(-1), kTail),
        // The conditions beside the options come with the reagent's detail: there is no rung at 7.
        .shown = joined<ShownRow>(caseRows(1, &Details::base), kTailShown),
        .texts = kTexts,
        .rungs = kRungs,
        .calculatorSteps = kCalculatorSteps,
        .reminder = kReminderInOneLine,
        .solveChoiceQuestion = kClickForYou,
        .counting = {.help = false, .solve = false, .reported = false},
        .clearsChoice = true,
        .restsAtEnd = true};
    return tables;
}

const CasePanel& silverPanel() {
    static const CasePanel panel{
        .title = "Potential ausrechnen",
        .headingCount = 7,
        .labelCount = 30,
        .headings = {{1, 36, "1.Vorgelegte  Stoffmenge Chlorid"},
                     {2, 150, "2. Zugegebene Stoffmenge der Silber-Ionen"},
                     {3, kChoiceTop, "3. Welcher Fall liegt vor? - wichtig für Potential"},
                     {4, 390, "4. Konzentration berechnen"},
                     {5, 511, "5. pH-Wert berechnen", kFromProduct},
                     {5, 566, "5. pH-Wert berechnen", kSilverLeft},
                     {6, 567, ""}},
        .terms = {{0, kFormula, 60, "nµV(Cl-) = cµV(Cl-) * VµV(Cl-)"},
                  {1, kName, 60, "cµV(Cl-) ="},
                  {2, kUnit, 60, "mol / L"},
                  {3, kName, 88, "VµV(Cl-) ="},
                  {4, kUnit, 88, "L"},
                  {5, kFormula, 116, "n(Cl-) = x * x"},
                  {6, kName, 116, "nµV(Cl-) ="},
                  {7, kUnit, 116, "mol"},
                  {15, kFormula, 174, "nµZ(Ag+) = cµZ(Ag+) * VµZ(Ag+)"},
                  {14, kName, 174, "cµZ(Ag+) ="},
                  {13, kUnit, 174, "mol / L"},
                  {12, kName, 202, "VµZ(Ag+) ="},
                  {11, kUnit, 202, "L"},
                  {10, kFormula, 230, "nµZ(Ag+) = x * x"},
                  {9, kName, 230, "nµZ(Ag+) ="},
                  {8, kUnit, 230, "mol"},
                  {16, kFormula, kRow8, {}, kWithSilver},
                  {16, kWide, kRow8, {}, kNoSilver},
                  {17, kName, kRow8},
                  {18, kUnit, kRow8, "mol"},
                  {20, kName, kRow9, "VGes="},
                  {21, kUnit, kRow9, "L"},
                  {19, kFormula, kRow10 - 10, {}, kWithSilver, kFractionHeight},
                  {19, kWide, kRow9, {}, kNoSilver},
                  {22, kName, kRow10},
                  {25, kUnit, kRow10, "mol / L"},
                  {23, kFormula, kRow11, {}, kWithSilver},
                  {23, kWide, kRow9 + kRowHeight, {}, kNoSilver},
                  {26, kName, kRow11, "c(Ag+) = "},
                  {28, kUnit, kRow11, "mol / L"},
                  {27, kWide, kRow12 - 26, "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"},
                  {24, kName, kRow12, "E = "},
                  {29, kUnit, kRow12, "V"}},
        .rows = {0, 60, 88, 116, 174, 202, 230, 359, kRow8, kRow9, kRow10, kRow11, kRow12},
        .movedRows = {},
        .lines = {146, 260, 387, 508},
        .options = {"(Fast) Nur Cl-", "Mehr Cl- als Ag+", "Genau gleich", "Mehr Ag+ als Cl-"},
        .hints = {"nµZ(Ag+) = 0", "0 < nµZ(Ag+) < nµV(Cl-)", "nµZ(Ag+) = nµV(Cl-)",
                  "nµZ(Ag+) > nµV(Cl-)"},
        .spoken = {"", "Konzentration der Chlorid-Ionen in mol pro Liter",
                   "Volumen der Chlorid-Lösung in Liter", "Stoffmenge der Chlorid-Ionen in mol",
                   "Konzentration der Silber-Ionen in der Bürette in mol pro Liter",
                   "Volumen der zugegebenen Silber-Lösung in Liter",
                   "Stoffmenge der zugegebenen Silber-Ionen in mol", "",
                   "Stoffmenge im Überschuss in mol", "Gesamtvolumen in Liter",
                   "Konzentration des Überschusses in mol pro Liter",
                   "Konzentration der Silber-Ionen in mol pro Liter", "Potential in Volt"},
        .sample = {"nµV(Cl-) = ", "n(Cl-) = x * x"},
        .reagent = {"nµZ(Ag+) = ", "nµZ(Ag+) = x * x"}};
    return panel;
}

} // namespace quendal
