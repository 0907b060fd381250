// What all titrations share: volumes, dilution and the grid of points.
#pragma once

#include <vector>

namespace quendal::curves {

struct Titration {
    double sampleVolume = 10.0;        // mL
    double waterVolume = 0.0;          // mL, in the beaker from the start
    double sampleConcentration = 1.0;  // mol/L
    double reagentConcentration = 1.0; // mol/L
};

// Concentrations in the beaker before any reaction, in mol/L.
struct Mixture {
    double sample = 0;
    double reagent = 0;
};

// Volumes are taken as additive.
Mixture mix(const Titration& titration, double addedMillilitres);

// 0.0, 0.1, ... 20.0 mL.
std::vector<double> burettePoints();

} // namespace quendal::curves
