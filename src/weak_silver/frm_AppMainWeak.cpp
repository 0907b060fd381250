#include "weak_silver/frm_AppMainWeak.h"

#include "host/message_box.h"
#include "host/number_service.h"
#include "host/roots.h"
#include "shell/forms/arrange.h"
#include "shell/session/session.h"
#include "weak_silver/weak_acid.h"
#include "workbench/balance_lines.h"
#include "workbench/liquid_color.h"
#include "workbench/task_texts.h"

namespace quendal {

namespace {

const WorkbenchVariant& weakVariant() {
    static const WorkbenchVariant variant{
        .formName = "frm_AppMainWeak",
        .caption = "Morvik // Quendal - Schwache Säure mit starker Base",
        .curveStem = "phschwach",
        .seriesName = "Meine pH-Rechnungen",
        .helpFile = "weak.rtf",
        .readingName = "pH Wert:",
        .readingUnit = "",
        .readingDigits = {.direct = 3, .guided = 2},
        .calculationTitle = "pH-Wert ausrechnen",
        .answerName = "pH =",
        .wrongDirect = "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim "
                       "Errechnen Schritt für Schritt helfen?",
        .compareTitle = "",
        .volumeNames = {"VµV(HAc)   = ", "VµZ(OH-) =", "cµV(HAc) =", "cµZ(OH-) = 1 mol/L"},
        .task = {.sampleBefore = "Klicke auf die            Pipette, um 10 mL Essigsäure  (c = ",
                 .sampleAfter = " mol/L) in das Becherglas fließen zu lassen",
                 .reagent = kBaseLine,
                 .finished = kAllBaseGiven},
        .species = {kHydroniumLine, kSodiumLine, kAceticAcidLine, kAcetateLine, kHydroxideLine},
        .pipette = {kAceticAcid},
        .burette = {kSodium, kHydroxide},
        .countingKinds = {kAceticAcid, kHydroxide},
        .buretteCountingKind = kHydroxide,
        .directDigits = 3,
        .countsParticles = true};
    return variant;
}

} // namespace

frm_AppMainWeak::frm_AppMainWeak()
    : LensWorkbench(weakVariant(), LensView::Acid, "Säure-Base-Gleichgewicht ansehen"), vPKs(kPKs),
      guidance_(*this) {
    design();
    arrange(lab_Step0, ctl_Frame2, {36, 134, 396, 22}, {.size = 15});
    lab_Step0.setText("Schwache Säure mit  pKs = 4,76");
}

std::optional<Workbench::Reading> frm_AppMainWeak::presentReading() {
    hCalcPH();
    if (vVol == 0) {
        return std::nullopt;
    }
    return Reading{.shown = vPhNow, .liquid = liquidColor(vPh)};
}

void frm_AppMainWeak::hCalcPH() {
    vCountHAc = vMolecules.COUNTSORT(kAceticAcid);
    vCountOH = vMolecules.COUNTSORT(kHydroxide);
    readAmounts();
    if (vVol == 0 || !readCase()) {
        return;
    }
    const NumberService& numbers = CoreLib().NumberService;
    vExcess = roundDecimals(vExcess, 3);
    vPhText = numbers.Format(vPh, 3);
    vPhNow = numbers.Parse(vPhText);
}

// False where the case has no value, which leaves what the run before has shown.
bool frm_AppMainWeak::readCase() {
    const auto which = weakCaseOf(session().SessionConcentration, vCountHAc, vCountOH);
    if (!which) {
        CoreLib().MessageBox.Ok("Ungültiger fall", "");
        return true;
    }
    vCase = static_cast<int>(*which);
    const auto reading = weakReading(*which, {.concentration = vConc,
                                              .acidMol = vAcidMol,
                                              .baseMol = vBaseMol,
                                              .totalVol = hGetVol(-1)});
    if (!reading) {
        return false;
    }
    vPh = reading->pH;
    vConc = reading->conc;
    vExcess = reading->excess.value_or(vExcess);
    vPOH = reading->pOH.value_or(vPOH);
    return true;
}

void frm_AppMainWeak::describe(FieldTable& table) const {
    LensWorkbench::describe(table);
    table.add("vCountOH", vCountOH);
    table.add("vCountHAc", vCountHAc);
    table.add("vPKs", vPKs);
    table.add("vPh", vPh);
    table.add("vPOH", vPOH);
    table.add("vExcess", vExcess);
    table.add("vCase", vCase);
    table.add("vPhText", vPhText);
}

} // namespace quendal
