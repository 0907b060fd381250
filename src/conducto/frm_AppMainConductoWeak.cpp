#include "conducto/frm_AppMainConductoWeak.h"

#include "conducto/conductivity.h"
#include "conducto/conducto_data.h"
#include "conducto/conducto_start_forms.h"
#include "conducto/conducto_steps.h"
#include "workbench/balance_lines.h"

namespace quendal {

namespace {

const ConductoVariant& weakVariant() {
    static const ConductoVariant variant{
        .bench = {.formName = "frm_AppMainConductoWeak",
                  .caption = "Morvik // Quendal - Leitfähigkeitstitration: Schwache Säure / starke "
                             "Base",
                  .curveStem = "lf-weak-",
                  .helpFile = "lf.rtf",
                  .readingName = "",
                  .readingUnit = "",
                  .readingDigits = {.direct = 2},
                  .spokenReading = "Leitwert",
                  .spokenUnit = " mS/cm",
                  .calculationTitle = kConductivityTitle,
                  .answerName = "G(ges)=",
                  .wrongDirect = kWrongConductivity,
                  .directHidesControls = true,
                  .countsDirectHelp = true,
                  .compareButton = kConductivityButton,
                  .volumeNames = {" VµV(Essigsäure)  = ", "VµZ(Natronlauge) =", "cµV(S) =",
                                  "cµZ(OH-) = 1 mol/L"},
                  .task = {.sampleBefore =
                               "Klicke auf die            Pipette, um 10 mL Esigsäure  mit (c = ",
                           .sampleAfter = kDilutedSampleAfter,
                           .reagent = kBaseLine,
                           .finished = kAllBaseGivenConductivity,
                           .calculate = kCalculateConductivity},
                  .species = {kHydroniumLine, kAceticAcidLine, kAcetateLine, kSodiumLine,
                              kHydroxideLine},
                  .pipette = {kAceticAcid},
                  .burette = {kSodium, kHydroxide},
                  .countingKinds = {kAceticAcid, kHydroxide},
                  .buretteCountingKind = kHydroxide,
                  .directDigits = 2,
                  .chloride = ChlorideSign::PlainFromNow,
                  .scale = kDilutedScale},
        .model = weakConductivity,
        .tables = conductivityTables,
        .texts = {.graphTitle = kConductivityGraph,
                  .directUnit = "mS/cm",
                  .volumeRule = "V(gesamt) = VµV(HAc) + VµZ(NaOH)",
                  .ionHeading = "2. Berechnung der einzelnen Ionenleitfähigkeiten",
                  .ruleInWords = kRuleInWords,
                  .rule = kRule,
                  .units = kConductivityUnits},
        .rows = {{{"G(H3O+) = ", kSpokenHydronium, kPrintedHydronium},
                  {"G(Ac-)      = ", "Stoffmenge der Acetat-Ionen in Millimol", "40,9"},
                  {"G(Na+)    = ", kSpokenSodium, kPrintedSodium},
                  {"G(OH-)     =", kSpokenHydroxide, kPrintedHydroxide}}},
        .series = {kTotalLook, kHydroniumLook, kAcetateLook, kSodiumLook, kHydroxideLook},
        .lines = LinesOffered::AsAsked,
        .makeStart = makeStart<frm_AppMainConductoWeakStart>};
    return variant;
}

} // namespace

frm_AppMainConductoWeak::frm_AppMainConductoWeak() : ConductoWorkbench(weakVariant()) {}

} // namespace quendal
