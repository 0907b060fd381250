// Chloride (NaCl) titrated with silver nitrate; a silver electrode follows the precipitation.
#pragma once

#include "equilibrium.h"
#include "titration.h"

namespace quendal::curves {

// pKL of silver chloride on the activity scale at 25 °C: KL = a(Ag+) a(Cl-).
// Source: CRC Handbook of Chemistry and Physics, KL = 1.77e-10. The learner calculates with 9.7.
inline constexpr double kSilverChloridePkl = 9.75;

// lg β of the dissolved complexes of Ag+ with one, two and three Cl- on the activity scale at 25
// °C. A fourth Cl- is left out: its constant is known to 1.7 units only, and it carries little
// silver. Source: SKB, Data report for the safety assessment SR-Site, TR-10-52, 2010.
inline constexpr double kLgBetaOneChloride = 3.27;
inline constexpr double kLgBetaTwoChlorides = 5.27;
inline constexpr double kLgBetaThreeChlorides = 5.29;

// Standard potential of Ag+/Ag in V against the standard hydrogen electrode at 25 °C.
// Source: CRC Handbook of Chemistry and Physics. The learner calculates with 0.8.
inline constexpr double kSilverStandardPotential = 0.7996;

// R T ln 10 / F in V at 25 °C. The learner calculates with 0.059.
inline constexpr double kNernstSlope = 0.05916;

struct SilverState {
    Equilibrium equilibrium;      // leading ion: Ag+; ions: Ag+, Cl-, AgCl2-, AgCl3 2-, Na+, NO3-
    double dissolvedSilver = 0;   // mol/L, as Ag+ and in complexes
    double dissolvedChloride = 0; // mol/L, as Cl- and in complexes
};

// The solution after `addedMillilitres` (0 or more) of silver nitrate, saturated with AgCl. That
// holds from the first 0.01 mL on. At 0 mL it stands for the traces of AgCl which a silver
// electrode in chloride carries: what is dissolved then comes from the electrode, and its potential
// is defined. Water's own ions are left out: at pH 7 they weigh nothing here.
SilverState silverState(const Titration& titration, double addedMillilitres);

// Potential in V of a silver electrode against the standard hydrogen electrode.
double silverPotential(const Titration& titration, double addedMillilitres);

} // namespace quendal::curves
