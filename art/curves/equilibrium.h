// The composition of a solution at equilibrium, found from its charge balance. A model tells which
// ions there are at a given activity of one leading ion; everything else is common to all models.
#pragma once

#include <functional>
#include <vector>

namespace quendal::curves {

// Ionic product of water on the activity scale, pKw at 25 °C and 0.1 MPa.
// Source: IAPWS, Release on the Ionization Constant of H2O, 2007.
inline constexpr double kWaterPk = 13.995;

struct Ion {
    int charge = 0;
    double concentration = 0; // mol/L
};

// All ions of a solution at lg a of its leading ion (H+ in acid and base titrations) and at an
// ionic strength in mol/L. The net charge has to rise with lg a.
using Speciation = std::function<std::vector<Ion>(double lgActivity, double ionicStrength)>;

struct Equilibrium {
    double lgActivity = 0;    // of the leading ion
    double ionicStrength = 0; // mol/L
    std::vector<Ion> ions;
};

// Σ z c in mol/L; 0 for a real solution.
double netCharge(const std::vector<Ion>& ions);

// ½ Σ z² c in mol/L.
double ionicStrength(const std::vector<Ion>& ions);

// H+ and OH- in equilibrium with water, at a given lg a(H+).
std::vector<Ion> waterIons(double lgActivity, double ionicStrength);

// The equilibrium of a solution. Throws std::domain_error when no lg a between -20 and 5 balances
// the charges, and std::runtime_error when the ionic strength doesn't settle.
Equilibrium solveEquilibrium(const Speciation& speciation);

} // namespace quendal::curves
