#include "workbench/strong_acid.h"

#include "host/number_service.h"
#include "shell/session/session.h"
#include "workbench/amounts.h"

#include <cmath>

namespace quendal {

namespace {

constexpr double kNeutral = 7.0;   // pH of pure water
constexpr double kIonProduct = 14; // pKw at 25 °C

// pX = -log c; a concentration of 0 reads as neutral.
double negativeLog(double concentration) {
    return concentration == 0.0 ? kNeutral : -hLog10(concentration);
}

} // namespace

Excess excessOf(double acidMol, double baseMol) {
    // volatile keeps each sum a double of its own, also where registers are wider.
    const volatile double a = acidMol + 1.0;
    const volatile double b = baseMol + 1.0;
    if (a == b) {
        return Excess::None;
    }
    return acidMol > baseMol ? Excess::Acid : Excess::Base;
}

// n(S) = c(S) * V(S), n(Z) = c(Z) * V(Z)
// before:  c(H3O+) = (n(S) - n(Z)) / V(ges), pH = -log c(H3O+)
// at:      c(H3O+) = 10^-7, pH = 7
// behind:  c(OH-) = (n(Z) - n(S)) / V(ges), pOH = -log c(OH-), pH = 14 - pOH
PointValues strongAcidPoint(double concentration, double baseVol, double totalVol) {
    PointValues p{.concentration = concentration,
                  .acidVol = kSampleVolume,
                  .acidMol = concentration * kSampleVolume,
                  .baseConc = kReagentConcentration,
                  .baseVol = baseVol,
                  .baseMol = baseVol * kReagentConcentration,
                  .totalVol = totalVol};
    switch (excessOf(p.acidMol, p.baseMol)) {
    case Excess::None:
        p.conc = std::pow(10.0, -7.0);
        p.reading = kNeutral;
        p.choice = 2;
        break;
    case Excess::Acid:
        p.excess = p.acidMol - p.baseMol;
        p.conc = p.excess / totalVol;
        p.reading = negativeLog(p.conc);
        p.choice = 0;
        break;
    case Excess::Base:
        p.excess = p.baseMol - p.acidMol;
        p.conc = p.excess / totalVol;
        p.choice = 1;
        p.baseInExcess = true;
        p.pOH = negativeLog(p.conc);
        p.reading = p.conc == 0.0 ? kNeutral : kIonProduct - p.pOH;
        break;
    }
    p.excess = roundDecimals(p.excess, 3);
    return p;
}

} // namespace quendal
