#include "equilibrium.h"

#include "activity.h"

#include <cmath>
#include <stdexcept>

namespace quendal::curves {

namespace {

constexpr double kLowestLgActivity = -20.0;
constexpr double kHighestLgActivity = 5.0;
// Halving the bracket so often reaches the resolution of a double.
constexpr int kHalvings = 70;
constexpr int kMostRounds = 200;
constexpr double kStrengthTolerance = 1e-14; // relative

// Bisection: slower than Newton's method, but sure on the flat flanks and the steep jump alike.
double balancingLgActivity(const Speciation& speciation, double strength) {
    double low = kLowestLgActivity;
    double high = kHighestLgActivity;
    if (netCharge(speciation(low, strength)) > 0.0 || netCharge(speciation(high, strength)) < 0.0) {
        throw std::domain_error("the charges can't be balanced");
    }
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = 0.5 * (low + high);
        (netCharge(speciation(middle, strength)) > 0.0 ? high : low) = middle;
    }
    return 0.5 * (low + high);
}

} // namespace

double netCharge(const std::vector<Ion>& ions) {
    double sum = 0.0;
    for (const Ion& ion : ions) {
        sum += ion.charge * ion.concentration;
    }
    return sum;
}

double ionicStrength(const std::vector<Ion>& ions) {
    double sum = 0.0;
    for (const Ion& ion : ions) {
        sum += ion.charge * ion.charge * ion.concentration;
    }
    return 0.5 * sum;
}

std::vector<Ion> waterIons(double lgActivity, double strength) {
    const double coefficient = activityCoefficient(1, strength);
    return {{.charge = 1, .concentration = std::pow(10.0, lgActivity) / coefficient},
            {.charge = -1, .concentration = std::pow(10.0, -kWaterPk - lgActivity) / coefficient}};
}

Equilibrium solveEquilibrium(const Speciation& speciation) {
    Equilibrium state;
    for (int round = 0; round < kMostRounds; ++round) {
        state.lgActivity = balancingLgActivity(speciation, state.ionicStrength);
        state.ions = speciation(state.lgActivity, state.ionicStrength);
        const double next = ionicStrength(state.ions);
        if (std::abs(next - state.ionicStrength) <= kStrengthTolerance * next) {
            return state;
        }
        state.ionicStrength = next;
    }
    throw std::runtime_error("the ionic strength doesn't settle");
}

} // namespace quendal::curves
