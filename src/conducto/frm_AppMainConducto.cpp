#include "conducto/frm_AppMainConducto.h"

#include "conducto/conductivity.h"
#include "conducto/conducto_data.h"
#include "conducto/conducto_start_forms.h"
#include "conducto/conducto_steps.h"
#include "conducto/strong_base_bench.h"

namespace quendal {

namespace {

WorkbenchVariant bench() {
    WorkbenchVariant bench = dilutedStrongAcid();
    bench.formName = "frm_AppMainConducto";
    bench.caption = "Morvik // Quendal - Konduktometrie - Salzsäure mit Natronlauge";
    bench.curveStem = "lf-strong-";
    bench.calculationTitle = kConductivityTitle;
    bench.answerName = "G(ges)=";
    bench.wrongDirect = kWrongConductivity;
    bench.compareButton = kConductivityButton;
    return bench;
}

const ConductoVariant& strongVariant() {
    static const ConductoVariant variant{
        .bench = bench(),
        .model = strongConductivity,
        .tables = conductivityTables,
        .texts = {.graphTitle = kConductivityGraph,
                  .directUnit = "mS/cm",
                  .volumeRule = "V(gesamt) = VµV(HCl) + VµZ(NaOH)",
                  .ionHeading = "2. Berechnung der einzelnen IonenLeitfähigkeiten",
                  .ruleInWords = kRuleInWords,
                  .rule = kRule,
                  .units = kConductivityUnits},
        .rows = {{{"G(H3O+) = ", kSpokenHydronium, kPrintedHydronium},
                  // With a point, in contrast to the others.
                  {"G(Cl-)       = ", "Stoffmenge der Chlorid-Ionen in Millimol", "76.4"},
                  {"G(Na+)    = ", kSpokenSodium, kPrintedSodium},
                  {"G(OH-)     =", kSpokenHydroxide, kPrintedHydroxide}}},
        .series = {kTotalLook, kHydroniumLook, kChlorideLook, kSodiumLook, kHydroxideLook},
        .colouredByPh = true,
        .makeStart = makeStart<frm_AppMainConductoStart>};
    return variant;
}

} // namespace

frm_AppMainConducto::frm_AppMainConducto() : ConductoWorkbench(strongVariant()) {
    obey(ctl_Executor);
}

} // namespace quendal
