#include "workbench/frm_AppMainStrong.h"

#include "host/number_service.h"
#include "host/roots.h"
#include "shell/session/session.h"
#include "workbench/balance_lines.h"
#include "workbench/liquid_color.h"
#include "workbench/strong_acid.h"
#include "workbench/task_texts.h"

namespace quendal {

namespace {

const WorkbenchVariant& strongVariant() {
    static const WorkbenchVariant variant{
        .formName = "frm_AppMainStrong",
        .caption = "Morvik // Quendal - Starke Säure mit starker Base",
        .curveStem = "phstark",
        .seriesName = "Meine pH-Rechnungen",
        .helpFile = "strong.rtf",
        .readingName = "pH Wert:",
        .readingUnit = "",
        .readingDigits = {.direct = 2, .guided = 2},
        .calculationTitle = "pH-Wert ausrechnen",
        .answerName = "pH =",
        .wrongDirect = "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim "
                       "Errechnen Schritt für Schritt helfen?",
        .compareTitle = "",
        .volumeNames = {"VµV(S)     = ", "VµZ(OH-) =", "cµV(S) =", "cµZ(OH-) = 1 mol/L"},
        .task = {.sampleBefore = "Klicke auf die            Pipette, um 10 mL Salzsäure  (c = ",
                 .sampleAfter = " mol/L) in das Becherglas fließen zu lassen",
                 .reagent = kBaseLine,
                 .finished = kAllBaseGiven},
        .species = {kHydroniumLine,
                    kSodiumLine,
                    {.kind = kHydrogenChloride,
                     .legend = kHydrogenChloride,
                     .term = "HCl",
                     .spoken = "Chlorwasserstoff",
                     .balance = Balance::SampleLessChloride},
                    kChlorideLine,
                    kHydroxideLine},
        .pipette = {kHydronium, kChloride},
        .burette = {kSodium, kHydroxide},
        .countingKinds = {kHydronium, kHydroxide},
        .buretteCountingKind = kHydroxide,
        .directDigits = 2,
        .chloride = ChlorideSign::PlainWhileOpen};
    return variant;
}

} // namespace

frm_AppMainStrong::frm_AppMainStrong() : Workbench(strongVariant()), guidance_(*this) {
    design();
}

std::optional<Workbench::Reading> frm_AppMainStrong::presentReading() {
    if (vVol == 0) {
        return std::nullopt;
    }
    const PointValues point =
        strongAcidPoint(session().SessionConcentration, hGetVol(1), hGetVol(-1));
    const NumberService& numbers = CoreLib().NumberService;
    return Reading{.shown = numbers.Parse(numbers.Format(point.reading, 3)),
                   .liquid = liquidColor(point.reading)};
}

} // namespace quendal
