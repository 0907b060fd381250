#include "workbench/frm_AppMainStrong.h"

#include "host/number_service.h"
#include "host/roots.h"
#include "particles/species.h"
#include "shell/session/session.h"
#include "workbench/liquid_color.h"
#include "workbench/strong_acid.h"

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
                 .reagent = "Klick auf                               , um mit jedem Klick         "
                            "       einen  mL Natronlauge ( c= 1 mol/L) zutropfen zu lassen.",
                 .calculate = "Klick auf                                ,um den genauen pH-Wert "
                              "zu berechnen.",
                 .calculateDemo = "Klick auf                                ,um dir den Rechenweg "
                                  "demonstrieren zu lassen",
                 .finished =
                     "Du hast die gesamte Natronlauge zugegeben und dabei nach und nach den "
                     "pH-Wert verändert. Sieh Dir Dein Ergebnis an, indem Du unten auf \"pH-Kurve "
                     "anzeigen\" klickst."},
        .species =
            {{.kind = kHydronium,
              .legend = -kHydronium,
              .term = "H3O+",
              .spoken = "Oxonium-Ionen",
              .trace = Trace::FromEquivalence},
             {.kind = kSodium, .legend = -kSodium, .term = "Na+", .spoken = "Natrium-Ionen"},
             {.kind = kHydrogenChloride,
              .legend = kHydrogenChloride,
              .term = "HCl",
              .spoken = "Chlorwasserstoff",
              .balance = Balance::SampleLessChloride},
             {.kind = kChloride, .legend = -kChloride, .term = "Cl-", .spoken = "Chlorid-Ionen"},
             {.kind = kHydroxide,
              .legend = -kHydroxide,
              .term = "OH-",
              .spoken = "Hydroxid-Ionen",
              .trace = Trace::UpToEquivalence}},
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
