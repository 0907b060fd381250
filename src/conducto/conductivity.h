// What the conductivities of all titrations have in common: an ion's share is its amount divided by
// the volume times its limiting conductivity, G = n / V * lambda.
#pragma once

#include "workbench/guidance/point_values.h"

namespace quendal {

// Limiting ionic conductivities in water at 25 °C in mS*cm^2/mmol, handbook values.
inline constexpr double kHydroniumConductivity = 349.8;
inline constexpr double kHydroxideConductivity = 198.6;
inline constexpr double kChlorideConductivity = 76.4;
inline constexpr double kSodiumConductivity = 50.1;
inline constexpr double kAcetateConductivity = 40.9;
inline constexpr double kNitrateConductivity = 71.5;
inline constexpr double kSilverConductivity = 61.9;

inline constexpr double kDilutedSample = 100; // mL: 10 mL of sample in 90 mL of water

// Which of the two amounts is the larger one, as the cases of a point count it.
inline constexpr int kSampleLeft = 1; // or both are equal
inline constexpr int kReagentLeft = 2;

// What is in the beaker at `titrantMl` mL of reagent of 1 mol/L, the sample at `concentration`
// mol/L: amounts in mmol, volumes in mL.
class Mixture {
  public:
    Mixture(double concentration, double titrantMl)
        : sample(concentration / 10 * 100), reagent(titrantMl), volume(titrantMl + kDilutedSample) {
    }

    bool reagentLeft() const { return sample < reagent; }
    // What of the sample the reagent has left over, and the other way round; may be below 0.
    double sampleExcess() const { return sample - reagent; }
    double reagentExcess() const { return reagent - sample; }
    // mS/cm of `amount` mmol.
    double share(double amount, double conductivity) const {
        return amount / volume * conductivity;
    }

    const double sample;
    const double reagent;
    const double volume;
};

// The value that two decimals of it tell.
double twoDecimals(double value);

// The point with its four values, each to two decimals, and their sum as the fifth; the amounts are
// freed of what binary fractions leave behind the ninth decimal (1.4 mol/L). Those that are below 0
// count as 0.
PointValues conductoPoint(const Mixture& mixture, const std::array<double, 4>& amounts,
                          const std::array<double, 4>& values);

// The models: ions in the order in which the tutor asks for them.
PointValues strongConductivity(double concentration, double titrantMl); // H3O+, Cl-, Na+, OH-
PointValues weakConductivity(double concentration, double titrantMl);   // H3O+, Ac-, Na+, OH-
PointValues silverConductivity(double concentration, double titrantMl); // Cl-, Na+, NO3-, Ag+
// c(H3O+) and c(OH-) in mol/L with the pH and the pOH: c(H3O+), pH, c(OH-), pOH. What is not in
// excess is 0, its logarithm too.
PointValues strongLogarithms(double concentration, double titrantMl);

} // namespace quendal
