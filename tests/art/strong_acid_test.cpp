#include "strong_acid.h"

#include "activity.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quendal::curves {
namespace {

class StrongAcid : public testing::TestWithParam<double> {
  protected:
    Titration titration_{.sampleConcentration = GetParam()};
    double ph(double millilitres) const { return strongAcidPh(titration_, millilitres); }
};

TEST_P(StrongAcid, StartsAtTheActivityOfTheAcid) {
    const double c = GetParam();
    EXPECT_NEAR(ph(0.0), -std::log10(c * activityCoefficient(1, c)), 1e-9);
    EXPECT_NEAR(ph(0.0), -std::log10(c), 0.15) << "activity may shift the pH only so far";
}

TEST_P(StrongAcid, EndsAtTheActivityOfTheBaseInExcess) {
    const double excess = (20.0 - 10.0 * GetParam()) / 30.0;
    const double strength = 20.0 / 30.0; // all Na+ of the beaker
    const double lgHydroxide = std::log10(excess * activityCoefficient(1, strength));
    EXPECT_NEAR(ph(20.0), kWaterPk + lgHydroxide, 1e-9);
}

TEST_P(StrongAcid, IsNeutralAtTheEquivalencePoint) {
    EXPECT_NEAR(ph(10.0 * GetParam()), kWaterPk / 2, 1e-6);
}

TEST_P(StrongAcid, IsSteepestAroundTheEquivalencePoint) {
    double steepest = 0.0;
    double where = 0.0;
    for (const double v : burettePoints()) {
        const double slope = ph(v + 0.05) - ph(std::max(0.0, v - 0.05));
        if (slope > steepest) {
            steepest = slope;
            where = v;
        }
    }
    EXPECT_NEAR(where, 10.0 * GetParam(), 1e-9);
    EXPECT_GT(steepest, 6.0);
}

TEST_P(StrongAcid, RisesWithEveryDrop) {
    const auto points = burettePoints();
    for (std::size_t i = 1; i < points.size(); ++i) {
        EXPECT_GT(ph(points[i]), ph(points[i - 1])) << points[i] << " mL";
    }
}

TEST_P(StrongAcid, BalancesItsCharges) {
    for (const double v : burettePoints()) {
        const Equilibrium state = strongAcidState(titration_, v);
        EXPECT_LT(std::abs(netCharge(state.ions)), 1e-14) << v << " mL";
        EXPECT_NEAR(ionicStrength(state.ions), state.ionicStrength, 1e-13) << v << " mL";
    }
}

INSTANTIATE_TEST_SUITE_P(Concentrations, StrongAcid, testing::Values(0.6, 0.8, 1.0, 1.2, 1.4));

TEST(Titration, DilutesBothSolutions) {
    const Mixture mixture = mix({.sampleConcentration = 0.8}, 10.0);
    EXPECT_DOUBLE_EQ(mixture.sample, 0.4);
    EXPECT_DOUBLE_EQ(mixture.reagent, 0.5);
}

TEST(Titration, HasAPointEveryTenthOfAMillilitre) {
    const auto points = burettePoints();
    ASSERT_EQ(points.size(), 201U);
    EXPECT_EQ(points.front(), 0.0);
    EXPECT_EQ(points[1], 0.1);
    EXPECT_EQ(points.back(), 20.0);
}

} // namespace
} // namespace quendal::curves
