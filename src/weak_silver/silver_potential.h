// The potential of a silver electrode during the titration of chloride with silver ions. The
// section is chosen by the amounts of substance alone.
#pragma once

namespace quendal {

// Negative common logarithm of the solubility product of AgCl in (mol/L)² at 25 °C.
inline constexpr double kPKL = 9.7;

enum class SilverSection {
    ChlorideExcess = 2, // also before the first silver
    Equivalence = 3,
    SilverExcess = 4
};

struct SilverReading {
    SilverSection section = SilverSection::ChlorideExcess;
    double conc = 0;         // mol/L of the chloride that is left; untouched else
    double silverExcess = 0; // mol, only with silver in excess
    double silverIon = 0;    // mol/L of Ag+ in the solution
    double potential = 0;    // V against the standard hydrogen electrode
    bool computed = false;   // without silver there is no potential to compute
};

// `concentration` of the chloride in mol/L, amounts in mol, `totalVol` in L, above 0 once there is
// silver. Doubles are compared as they are: 0.014 mol of silver against 1.4 mol/L times 0.01 L is
// an excess in the last bit, and that is meant.
SilverReading silverReading(double concentration, double chlorideMol, double silverMol,
                            double totalVol);

} // namespace quendal
