#include "weak_acid.h"

#include "activity.h"

#include <cmath>

namespace quendal::curves {

double acetateConcentration(double total, double lgHydrogenActivity, double ionicStrength) {
    // Law of mass action: c(HAc) / c(Ac-) = a(H+) γ / Ka.
    const double undissociatedToAcetate =
        std::pow(10.0, lgHydrogenActivity + kAceticAcidPk) * activityCoefficient(1, ionicStrength);
    return total / (1.0 + undissociatedToAcetate);
}

Equilibrium weakAcidState(const Titration& titration, double addedMillilitres) {
    const Mixture mixture = mix(titration, addedMillilitres);
    return solveEquilibrium([&mixture](double lgActivity, double strength) {
        const double acetate = acetateConcentration(mixture.sample, lgActivity, strength);
        std::vector<Ion> ions = waterIons(lgActivity, strength);
        ions.push_back({.charge = 1, .concentration = mixture.reagent}); // Na+
        ions.push_back({.charge = -1, .concentration = acetate});
        return ions;
    });
}

double weakAcidPh(const Titration& titration, double addedMillilitres) {
    return -weakAcidState(titration, addedMillilitres).lgActivity;
}

} // namespace quendal::curves
