#include "strong_acid.h"

namespace quendal::curves {

Equilibrium strongAcidState(const Titration& titration, double addedMillilitres) {
    const Mixture mixture = mix(titration, addedMillilitres);
    return solveEquilibrium([&mixture](double lgActivity, double strength) {
        std::vector<Ion> ions = waterIons(lgActivity, strength);
        ions.push_back({.charge = 1, .concentration = mixture.reagent}); // Na+
        ions.push_back({.charge = -1, .concentration = mixture.sample}); // Cl-
        return ions;
    });
}

double strongAcidPh(const Titration& titration, double addedMillilitres) {
    return -strongAcidState(titration, addedMillilitres).lgActivity;
}

} // namespace quendal::curves
