#include "silver_chloride.h"

#include "activity.h"

#include <cmath>

namespace quendal::curves {

namespace {

// Activities of the species in a solution saturated with AgCl, at a given lg a(Ag+).
struct Saturated {
    explicit Saturated(double lgSilverActivity)
        : silver(std::pow(10.0, lgSilverActivity)),
          chloride(std::pow(10.0, -kSilverChloridePkl - lgSilverActivity)),
          twoChlorides(std::pow(10.0, kLgBetaTwoChlorides - kSilverChloridePkl) * chloride),
          threeChlorides(std::pow(10.0, kLgBetaThreeChlorides - kSilverChloridePkl) * chloride *
                         chloride) {}

    double silver;
    double chloride;
    double twoChlorides;   // AgCl2-
    double threeChlorides; // AgCl3 2-
};

// The uncharged complex has one concentration above the solid, whatever else is dissolved.
double unchargedComplex() {
    return std::pow(10.0, kLgBetaOneChloride - kSilverChloridePkl);
}

std::vector<Ion> silverIons(const Mixture& mixture, double lgSilverActivity, double strength) {
    const double sodium = mixture.sample;
    const double nitrate = mixture.reagent;
    const Saturated activity(lgSilverActivity);
    const double ofSilver = activityCoefficientInSalt(kSilverNitrateLinearTerm, nitrate, strength);
    const double ofChloride =
        activityCoefficientInSalt(kSodiumChlorideLinearTerm, sodium, strength);
    return {
        {.charge = 1, .concentration = activity.silver / ofSilver},
        {.charge = -1, .concentration = activity.chloride / ofChloride},
        {.charge = -1, .concentration = activity.twoChlorides / activityCoefficient(1, strength)},
        {.charge = -2, .concentration = activity.threeChlorides / activityCoefficient(2, strength)},
        {.charge = 1, .concentration = sodium},
        {.charge = -1, .concentration = nitrate}};
}

} // namespace

SilverState silverState(const Titration& titration, double addedMillilitres) {
    const Mixture mixture = mix(titration, addedMillilitres);
    SilverState state;
    state.equilibrium = solveEquilibrium([&mixture](double lgActivity, double strength) {
        return silverIons(mixture, lgActivity, strength);
    });
    const auto& ions = state.equilibrium.ions;
    const double one = unchargedComplex();
    const double two = ions[2].concentration;
    const double three = ions[3].concentration;
    state.dissolvedSilver = ions[0].concentration + one + two + three;
    state.dissolvedChloride = ions[1].concentration + one + 2.0 * two + 3.0 * three;
    return state;
}

double silverPotential(const Titration& titration, double addedMillilitres) {
    return kSilverStandardPotential +
           kNernstSlope * silverState(titration, addedMillilitres).equilibrium.lgActivity;
}

} // namespace quendal::curves
