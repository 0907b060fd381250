#include "conducto/frm_AppMainConductoSilver.h"

#include "conducto/conductivity.h"
#include "conducto/conducto_data.h"
#include "conducto/conducto_start_forms.h"
#include "conducto/conducto_steps.h"
#include "workbench/balance_lines.h"

namespace quendal {

namespace {

const ConductoVariant& silverVariant() {
    static const ConductoVariant variant{
        .bench = {.formName = "frm_AppMainConductoSilver",
                  .caption = "Morvik // Quendal - Leitfähigkeitstitration: NatriumChlorid-Lösung "
                             "mit  Silbernitrat-Lösung",
                  .curveStem = "lf-silver-",
                  .helpFile = "lf.rtf",
                  .readingName = "",
                  .readingUnit = "",
                  .readingDigits = {.direct = 2},
                  .spokenReading = "Leitwert",
                  .spokenUnit = " mS/cm",
                  .calculationTitle = kConductivityTitle,
                  .answerName = "G=",
                  // Both speak of the potential, as on the form with the silver electrode: meant.
                  .wrongDirect = kWrongPotential,
                  .directHidesControls = true,
                  .countsDirectHelp = true,
                  .compareTitle = kComparePotential,
                  .compareButton = "Titrations-Kurve anzeigen",
                  .volumeNames = {" VµV(NaCl-Lösung)     = ", "VµZ(AgNO3-Lösung) =",
                                  "V(Gesamt)                  =", ""},
                  .totalVolumeShown = true,
                  .task = {.sampleBefore =
                               "Klicke auf die            Pipette, um 10 mL NaCl-Lösung  mit (c = ",
                           .sampleAfter = kDilutedSampleAfter,
                           .reagent = kSilverNitrateLine,
                           .finished = "Du hast die gesamte Silbernitrat-Lösung zugegeben und "
                                       "dabei nach und nach die Leitfähigkeit verändert. Sieh Dir "
                                       "Dein Ergebnis an, indem Du unten auf \"Titrations-Kurve "
                                       "anzeigen\" klickst.",
                           .calculate = kCalculateConductivity},
                  .balanceTitle = "Aktuelle Teilchen-Bilanz",
                  .species = {kSilverLine, kChlorideLine, kNitrateLine, kSodiumLine},
                  .pipette = {kChloride, kSodium},
                  .burette = {kNitrate, kSilver},
                  .countingKinds = {kChloride, kSilver},
                  .buretteCountingKind = kSilver,
                  .directDigits = 2,
                  .chloride = ChlorideSign::PlainFromNow,
                  .scale = kDilutedScale},
        .model = silverConductivity,
        .tables = conductivityTables,
        .texts = {.graphTitle = kConductivityGraph,
                  .directUnit = "mS/cm",
                  .volumeRule = "V(gesamt) = VµV(NaCl) + VµZ(AgNOµ3)",
                  .ionHeading = "2. Berechnung der einzelnen IonenLeitfähigkeiten",
                  .ruleInWords = kRuleInWords,
                  .rule = kRule,
                  .units = kConductivityUnits},
        .rows = {{{"G(Cl-) = ", "Stoffmenge der Chlorid-Ionen in Millimol", "76,4"},
                  {"G(Na+)       = ", kSpokenSodium, kPrintedSodium},
                  {"G(NOµ3-)    = ", "Stoffmenge der Nitrat-Ionen in Millimol", "71,5"},
                  {"G(Ag+)  =", "Stoffmenge der Silber-Ionen in Millimol", "61,9"}}},
        .series = {kTotalLook, kChlorideLook, kSodiumLook, kNitrateLook, kSilverLook},
        .makeStart = makeStart<frm_AppMainConductoSilverStart>};
    return variant;
}

} // namespace

frm_AppMainConductoSilver::frm_AppMainConductoSilver() : ConductoWorkbench(silverVariant()) {}

} // namespace quendal
