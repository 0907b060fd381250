// A weak acid (acetic acid, HAc) titrated with a strong base (NaOH).
#pragma once

#include "equilibrium.h"
#include "titration.h"

namespace quendal::curves {

// pKa of acetic acid on the activity scale at 25 °C.
// Source: Harned and Ehlers, J. Am. Chem. Soc. 55 (1933) 652. The learner calculates with 4.76.
inline constexpr double kAceticAcidPk = 4.756;

// Ac- in mol/L, out of `total` mol/L of HAc and Ac-, at a given lg a(H+). HAc carries no charge:
// its activity is its concentration.
double acetateConcentration(double total, double lgHydrogenActivity, double ionicStrength);

// The solution after `addedMillilitres` (0 or more) of base; its leading ion is H+ and its ions are
// H+, OH-, Na+ and Ac-.
Equilibrium weakAcidState(const Titration& titration, double addedMillilitres);

// pH = -lg a(H+), as a glass electrode shows it.
double weakAcidPh(const Titration& titration, double addedMillilitres);

} // namespace quendal::curves
