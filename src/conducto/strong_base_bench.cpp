#include "conducto/strong_base_bench.h"

#include "conducto/conducto_data.h"
#include "workbench/balance_lines.h"

namespace quendal {

WorkbenchVariant dilutedStrongAcid() {
    return {
        .helpFile = "lf.rtf",
        .readingName = "",
        .readingUnit = "",
        .readingDigits = {.direct = 2},
        .spokenReading = "Leitwert",
        .spokenUnit = " mS/cm",
        .directHidesControls = true,
        .countsDirectHelp = true,
        .volumeNames = {"VµV(S)     = ", "VµZ(OH-) =", "cµV(S) =", "cµZ(OH-) = 1 mol/L"},
        .task = {.sampleBefore = "Klicke auf die            Pipette, um 10 mL Salzsäure  mit (c = ",
                 .sampleAfter = kDilutedSampleAfter,
                 .reagent = kBaseLine,
                 .finished = kAllBaseGivenConductivity,
                 .calculate = kCalculateConductivity},
        .species = {kHydroniumLine, kSodiumLine, kChlorideLine, kHydroxideLine},
        .pipette = {kHydronium, kChloride},
        .burette = {kSodium, kHydroxide},
        .countingKinds = {kHydronium, kHydroxide},
        .buretteCountingKind = kHydroxide,
        .directDigits = 2,
        .chloride = ChlorideSign::PlainWhileOpen,
        .scale = kDilutedScale};
}

} // namespace quendal
