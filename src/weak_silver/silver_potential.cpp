#include "weak_silver/silver_potential.h"

#include "shell/session/session.h"

#include <cmath>

namespace quendal {

namespace {

constexpr double kStandardPotential = 0.8; // V, Ag+/Ag
constexpr double kNernst = 0.059;          // V, ln 10 * R * T / F at 25 °C

// E = 0.8 V - 0.059 V * log(1 / c(Ag+))
double nernst(double silverIon) {
    return kStandardPotential - kNernst * hLog10(1.0 / silverIon);
}

} // namespace

// before:  c(Cl') = (n(Cl-) - n(Ag+)) / V(ges), c(Ag+) = KL / c(Cl')
// at:      c(Ag+) = KL^0.5
// behind:  c(Ag+) = (n(Ag+) - n(Cl-)) / V(ges)
SilverReading silverReading(double concentration, double chlorideMol, double silverMol,
                            double totalVol) {
    SilverReading reading{.conc = concentration};
    if (silverMol == 0.0) {
        return reading;
    }
    const double product = std::pow(10.0, -kPKL);
    if (silverMol < chlorideMol) {
        reading.conc = (chlorideMol - silverMol) / totalVol;
        reading.silverIon = product / reading.conc;
    } else if (silverMol == chlorideMol) {
        reading.section = SilverSection::Equivalence;
        reading.silverIon = std::sqrt(product);
    } else {
        reading.section = SilverSection::SilverExcess;
        reading.silverExcess = silverMol - chlorideMol;
        reading.silverIon = reading.silverExcess / totalVol;
    }
    reading.potential = nernst(reading.silverIon);
    reading.computed = true;
    return reading;
}

} // namespace quendal
