#include "strong_acid.h"

#include "activity.h"

#include <cmath>

namespace quendal::curves {

namespace {

constexpr double kFirstSodiumMillilitres = 0.1;

} // namespace

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

IonExponents strongAcidExponents(const Titration& titration, double addedMillilitres) {
    const Equilibrium state = strongAcidState(titration, addedMillilitres);
    const double coefficient = activityCoefficient(1, state.ionicStrength);
    const Mixture mixture = mix(titration, addedMillilitres);
    return {.pH = -state.lgActivity,
            .pOH = kWaterPk + state.lgActivity,
            .pCl = -std::log10(mixture.sample * coefficient),
            .pNa = addedMillilitres < kFirstSodiumMillilitres
                       ? strongAcidExponents(titration, kFirstSodiumMillilitres).pNa
                       : -std::log10(mixture.reagent * coefficient)};
}

} // namespace quendal::curves
