#include "weak_silver/weak_acid.h"

#include "shell/session/session.h"
#include "workbench/strong_acid.h"

namespace quendal {

namespace {

constexpr double kIonProduct = 14.0; // pKw at 25 °C
constexpr double kNeutral = 7.0;     // pH of pure water

double pHOfHydroxide(double pOH) {
    return kIonProduct - pOH;
}

// Only the case without acid particles comes here, so the first two branches are for a beaker whose
// amounts say otherwise: what is in excess then decides as with a strong acid.
WeakReading excessReading(const WeakAmounts& amounts) {
    switch (excessOf(amounts.acidMol, amounts.baseMol)) {
    case Excess::None:
        return {.pH = kNeutral, .conc = 0, .excess = 0.0, .pOH = std::nullopt};
    case Excess::Acid: {
        const double excess = amounts.acidMol - amounts.baseMol;
        const double conc = excess / amounts.totalVol;
        return {.pH = conc == 0.0 ? kNeutral : -hLog10(conc),
                .conc = conc,
                .excess = excess,
                .pOH = std::nullopt};
    }
    case Excess::Base:
        break;
    }
    // c(OH-) = (n(Z) - n(S)) / V(ges), pOH = -log c(OH-), pH = 14 - pOH
    const double excess = amounts.baseMol - amounts.acidMol;
    const double conc = excess / amounts.totalVol;
    if (conc == 0.0) {
        return {.pH = kNeutral, .conc = conc, .excess = excess, .pOH = std::nullopt};
    }
    const double pOH = -hLog10(conc);
    return {.pH = pHOfHydroxide(pOH), .conc = conc, .excess = excess, .pOH = pOH};
}

} // namespace

std::optional<WeakCase> weakCaseOf(double concentration, int acidParticles,
                                   int hydroxideParticles) {
    if (acidParticles == concentration * 10.0) {
        return WeakCase::Acid;
    }
    if (acidParticles > 0) {
        return WeakCase::Buffer;
    }
    if (hydroxideParticles == acidParticles) {
        return WeakCase::Base;
    }
    if (acidParticles != 0) {
        return std::nullopt;
    }
    return WeakCase::BaseExcess;
}

// Acid:   pH = (pKs - log c(HAc)) / 2
// Buffer: pH = pKs - log((n(HAc) - n(OH)) / n(OH))
// Base:   pH = 14 - (14 - pKs - log c(Ac-)) / 2 with c(Ac-) = n(OH) / V(ges)
std::optional<WeakReading> weakReading(WeakCase which, const WeakAmounts& amounts) {
    const double acid = amounts.concentration;
    switch (which) {
    case WeakCase::Acid:
        return WeakReading{.pH = (kPKs - hLog10(acid)) * 0.5,
                           .conc = acid,
                           .excess = std::nullopt,
                           .pOH = std::nullopt};
    case WeakCase::Buffer:
        if (amounts.baseMol == 0.0) {
            return std::nullopt;
        }
        return WeakReading{.pH =
                               kPKs - hLog10((amounts.acidMol - amounts.baseMol) / amounts.baseMol),
                           .conc = acid,
                           .excess = std::nullopt,
                           .pOH = std::nullopt};
    case WeakCase::Base:
        return WeakReading{.pH = kIonProduct -
                                 (kIonProduct - kPKs - hLog10(amounts.baseMol / amounts.totalVol)) *
                                     0.5,
                           .conc = acid,
                           .excess = std::nullopt,
                           .pOH = std::nullopt};
    case WeakCase::BaseExcess:
        break;
    }
    return excessReading(amounts);
}

} // namespace quendal
