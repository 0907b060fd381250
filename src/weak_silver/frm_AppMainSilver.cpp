#include "weak_silver/frm_AppMainSilver.h"

#include "host/number_service.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "shell/forms/arrange.h"
#include "shell/session/session.h"
#include "weak_silver/frm_AppMainSilverStart.h"
#include "weak_silver/silver_potential.h"
#include "workbench/balance_lines.h"
#include "workbench/liquid_color.h"
#include "workbench/task_texts.h"

namespace quendal {

namespace {

const WorkbenchVariant& silverVariant() {
    static const WorkbenchVariant variant{
        .formName = "frm_AppMainSilver",
        .caption = "Morvik // Quendal - Potentiometrie",
        .curveStem = "potsilber",
        .seriesName = "Meine pH-Rechnungen", // as on the other forms: meant
        .helpFile = "silver.rtf",
        .readingName = "Potential:",
        .readingUnit = " V",
        // A direct answer leaves the reading as it is.
        .readingDigits = {.direct = std::nullopt, .guided = 2},
        .spokenReading = "Potential",
        .spokenUnit = " V",
        .calculationTitle = "Potential ausrechnen",
        .answerName = "E / V =",
        .wrongDirect = kWrongPotential,
        .compareTitle = kComparePotential,
        .volumeNames = {"VµV(Cl-)   = ", "VµZ(Ag+) =", "cµV(Cl-) =", "cµZ(Ag+) = 1 mol/L"},
        .task = {.sampleBefore =
                     "Klicke auf die            Pipette, um 10 mL Natriumchlorid-Lösung  (c = ",
                 .sampleAfter = " mol/L) in das Becherglas fließen zu lassen",
                 .reagent = kSilverNitrateLine,
                 .finished = "Du hast die gesamte Silbernitrat-Lösung zugegeben und dabei nach und "
                             "nach das Potential verändert. Sieh Dir Dein Ergebnis an, indem Du "
                             "unten auf \"pH-Kurve anzeigen\" klickst."},
        .species = {kSilverLine, kSodiumLine, kChlorideLine, kNitrateLine},
        .pipette = {kChloride, kSodium},
        .burette = {kNitrate, kSilver},
        .countingKinds = {kChloride, kSilver},
        .buretteCountingKind = kSilver,
        .directDigits = 2,
        .firstPoint = FirstPoint::AfterReagent};
    return variant;
}

} // namespace

frm_AppMainSilver::frm_AppMainSilver()
    : LensWorkbench(silverVariant(), LensView::SilverChloride, "Löslichkeitsgleichgewicht ansehen"),
      vPKL(kPKL), guidance_(*this) {
    design();
    but_ShowMag.setVisible(false);
    arrange(lab_KLInfo, ctl_Frame2, {36, 119, 396, 44}, {.size = 15});
    lab_KLInfo.setTerm("Hinweis: KµL(AgCl) = 10^-9.7 (mol²)/(  L²)");
}

// The start form comes first; whoever doesn't accept it has no task.
void frm_AppMainSilver::Form_Load() {
    LensWorkbench::Form_Load();
    frm_AppMainSilverStart start;
    CoreLib().Windows.ShowModal(start);
    if (!start.Accepted) {
        CoreLib().Windows.Unload(*this);
    }
}

std::optional<Workbench::Reading> frm_AppMainSilver::presentReading() {
    hCalcPH();
    if (vVol == 0) {
        return std::nullopt;
    }
    return Reading{.shown = vPotentialNow, .liquid = kPlainLiquid};
}

void frm_AppMainSilver::hCalcPH() {
    readAmounts();
    const SilverReading reading = silverReading(vConc, vAcidMol, vBaseMol, hGetVol(-1));
    vCase = static_cast<int>(reading.section);
    if (reading.computed) {
        vConc = reading.conc;
        vSilverIon = reading.silverIon;
        vPotential = reading.potential;
    }
    if (reading.section == SilverSection::SilverExcess) {
        vSilverExcess = reading.silverExcess;
    }
    const NumberService& numbers = CoreLib().NumberService;
    vPotentialText = numbers.Format(vPotential, 2);
    vPotentialNow = numbers.Parse(vPotentialText);
}

void frm_AppMainSilver::reagentComing() {
    but_ShowMag.setVisible(true);
}

bool frm_AppMainSilver::answerable() const {
    return vCase != 1;
}

void frm_AppMainSilver::describe(FieldTable& table) const {
    LensWorkbench::describe(table);
    table.add("vSilverExcess", vSilverExcess);
    table.add("vSilverIon", vSilverIon);
    table.add("vPKL", vPKL);
    table.add("vPotential", vPotential);
    table.add("vCase", vCase);
    table.add("vPotentialText", vPotentialText);
    table.add("vPotentialNow", vPotentialNow);
}

} // namespace quendal
