#include "weak_acid.h"

#include "activity.h"

#include <cmath>
#include <gtest/gtest.h>
#include <utility>

namespace quendal::curves {
namespace {

// Places in Equilibrium::ions.
enum Place { Hydrogen, Hydroxide, Sodium, Acetate };

class WeakAcid : public testing::TestWithParam<double> {
  protected:
    Titration titration_{.sampleConcentration = GetParam()};
    double equivalence_ = 10.0 * GetParam(); // mL
    double ph(double millilitres) const { return weakAcidPh(titration_, millilitres); }
    Equilibrium state(double millilitres) const { return weakAcidState(titration_, millilitres); }
};

TEST_P(WeakAcid, ObeysTheLawOfMassActionBeforeTheEquivalencePoint) {
    for (double v = 0.0; v < equivalence_ - 0.05; v += 0.1) {
        const Equilibrium at = state(v);
        const double gamma = activityCoefficient(1, at.ionicStrength);
        const double acetate = at.ions[Acetate].concentration;
        const double undissociated = mix(titration_, v).sample - acetate;
        const double hydrogen = at.ions[Hydrogen].concentration;
        const double constant = hydrogen * gamma * acetate * gamma / undissociated;
        EXPECT_NEAR(std::log10(constant), -4.756, 1e-9) << v << " mL";
    }
}

TEST_P(WeakAcid, StartsNearTheRootOfTheConstantTimesTheConcentration) {
    EXPECT_NEAR(ph(0.0), 0.5 * (4.756 - std::log10(GetParam())), 0.005);
}

TEST_P(WeakAcid, ShowsThePkShiftedByTheActivityAtHalfOfTheEquivalence) {
    const Equilibrium half = state(0.5 * equivalence_);
    const double shift = std::log10(activityCoefficient(1, half.ionicStrength));
    EXPECT_NEAR(-half.lgActivity, 4.756 + shift, 1e-3);
    EXPECT_NEAR(-half.lgActivity, 4.756, 0.15);
}

// Ac- + H2O = HAc + OH- alone: c(HAc) = c(OH-).
TEST_P(WeakAcid, IsBasicByHydrolysisAtTheEquivalencePoint) {
    const Equilibrium end = state(equivalence_);
    const double acetate = mix(titration_, equivalence_).sample;
    const double shift = std::log10(activityCoefficient(1, end.ionicStrength));
    const double expected = 0.5 * (kWaterPk + 4.756 + std::log10(acetate)) + shift;
    EXPECT_NEAR(-end.lgActivity, expected, 1e-4);
    EXPECT_GT(-end.lgActivity, 9.0);
    EXPECT_LT(-end.lgActivity, 9.2);
}

TEST_P(WeakAcid, EndsAtTheActivityOfTheBaseInExcess) {
    const double excess = (20.0 - equivalence_) / 30.0;
    const double gamma = activityCoefficient(1, 20.0 / 30.0); // all Na+ of the beaker
    EXPECT_NEAR(ph(20.0), kWaterPk + std::log10(excess * gamma), 1e-6);
}

TEST_P(WeakAcid, IsSteepestAroundTheEquivalencePoint) {
    std::pair steepest{0.0, 0.0}; // slope, mL
    for (const double v : burettePoints()) {
        if (v > 1.0) { // the first drops are steep too
            steepest = std::max(steepest, {ph(v + 0.05) - ph(v - 0.05), v});
        }
    }
    EXPECT_NEAR(steepest.second, equivalence_, 1e-9);
    EXPECT_GT(steepest.first, 3.0);
}

TEST_P(WeakAcid, RisesWithEveryDrop) {
    const auto points = burettePoints();
    for (std::size_t i = 1; i < points.size(); ++i) {
        EXPECT_GT(ph(points[i]), ph(points[i - 1])) << points[i] << " mL";
    }
}

TEST_P(WeakAcid, BalancesItsCharges) {
    for (const double v : burettePoints()) {
        const Equilibrium at = state(v);
        EXPECT_LT(std::abs(netCharge(at.ions)), 1e-14) << v << " mL";
        EXPECT_NEAR(ionicStrength(at.ions), at.ionicStrength, 1e-13) << v << " mL";
    }
}

INSTANTIATE_TEST_SUITE_P(Concentrations, WeakAcid, testing::Values(0.6, 0.8, 1.0, 1.2, 1.4));

TEST(Acetate, IsHalfOfTheAcidWhereThePhIsThePk) {
    EXPECT_NEAR(acetateConcentration(0.8, -kAceticAcidPk, 0.0), 0.4, 1e-15);
}

TEST(Acetate, IsNothingInStrongAcidAndAllInStrongBase) {
    EXPECT_LT(acetateConcentration(1.0, 0.0, 1.0), 3e-5);
    EXPECT_NEAR(acetateConcentration(1.0, -13.0, 1.0), 1.0, 1e-8);
}

} // namespace
} // namespace quendal::curves
