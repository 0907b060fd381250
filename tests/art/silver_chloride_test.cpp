#include "silver_chloride.h"

#include "activity.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <utility>

namespace quendal::curves {
namespace {

// Places in Equilibrium::ions.
enum Place { Silver, Chloride, TwoChlorides, ThreeChlorides };

class SilverChloride : public testing::TestWithParam<double> {
  protected:
    Titration titration_{.sampleConcentration = GetParam()};
    double equivalence_ = 10.0 * GetParam(); // mL
    double potential(double millilitres) const { return silverPotential(titration_, millilitres); }
    SilverState state(double millilitres) const { return silverState(titration_, millilitres); }
    double lgSilver(double millilitres) const { return state(millilitres).equilibrium.lgActivity; }
};

TEST_P(SilverChloride, LeavesTheSameAmountOfBothInTheSolid) {
    for (const double v : burettePoints()) {
        const Mixture mixture = mix(titration_, v);
        const SilverState at = state(v);
        EXPECT_NEAR(mixture.reagent - at.dissolvedSilver, mixture.sample - at.dissolvedChloride,
                    1e-13)
            << v << " mL";
    }
}

TEST_P(SilverChloride, IsPrecipitatedFromTheFirstHundredthOfAMillilitreOn) {
    auto points = burettePoints();
    points.front() = 0.01;
    for (const double v : points) {
        EXPECT_GT(mix(titration_, v).reagent, state(v).dissolvedSilver) << v << " mL";
    }
}

TEST_P(SilverChloride, IsAlmostAllPrecipitatedAtTheEquivalencePoint) {
    EXPECT_LT(state(equivalence_).dissolvedSilver, 1e-4 * mix(titration_, equivalence_).reagent);
}

TEST_P(SilverChloride, HasTheRootOfItsProductAtTheEquivalencePoint) {
    const SilverState at = state(equivalence_);
    const auto& ions = at.equilibrium.ions;
    EXPECT_NEAR(at.equilibrium.lgActivity, -0.5 * 9.75, 0.06);
    EXPECT_NEAR(ions[Silver].concentration / ions[Chloride].concentration, 1.0, 0.01);
}

TEST_P(SilverChloride, FollowsTheChlorideInExcess) {
    const double half = 0.5 * equivalence_;
    const Mixture mixture = mix(titration_, half);
    const double gamma =
        activityCoefficientInSalt(kSodiumChlorideLinearTerm, mixture.sample, mixture.sample);
    const double chloride = (mixture.sample - mixture.reagent) * gamma;
    EXPECT_NEAR(lgSilver(half), -9.75 - std::log10(chloride), 1e-3);
}

TEST_P(SilverChloride, FollowsTheSilverInExcess) {
    const double nitrate = 20.0 / 30.0; // it is the ionic strength too
    const double excess = (20.0 - equivalence_) / 30.0;
    const double gamma = activityCoefficientInSalt(kSilverNitrateLinearTerm, nitrate, nitrate);
    EXPECT_NEAR(lgSilver(20.0), std::log10(excess * gamma), 1e-5);
}

TEST_P(SilverChloride, IsSteepestAroundTheEquivalencePoint) {
    std::pair steepest{0.0, 0.0}; // slope, mL
    for (const double v : burettePoints()) {
        const double rise = potential(v + 0.05) - potential(std::max(0.0, v - 0.05));
        steepest = std::max(steepest, {rise, v});
    }
    EXPECT_NEAR(steepest.second, equivalence_, 1e-9);
    EXPECT_GT(steepest.first, 0.2);
}

TEST_P(SilverChloride, RisesWithEveryDrop) {
    const auto points = burettePoints();
    for (std::size_t i = 1; i < points.size(); ++i) {
        EXPECT_GT(potential(points[i]), potential(points[i - 1])) << points[i] << " mL";
    }
}

TEST_P(SilverChloride, BalancesItsCharges) {
    for (const double v : burettePoints()) {
        const Equilibrium at = state(v).equilibrium;
        EXPECT_LT(std::abs(netCharge(at.ions)), 1e-14) << v << " mL";
        EXPECT_NEAR(ionicStrength(at.ions), at.ionicStrength, 1e-13) << v << " mL";
    }
}

INSTANTIATE_TEST_SUITE_P(Concentrations, SilverChloride, testing::Values(0.6, 0.8, 1.0, 1.2, 1.4));

struct ElectrodePoint {
    double concentration;
    double meanCoefficient; // of NaCl at 25 °C, CRC Handbook of Chemistry and Physics
};

class SilverChlorideElectrode : public testing::TestWithParam<ElectrodePoint> {};

// Before any silver is added the electrode is the silver chloride electrode of the books, whose
// standard potential was measured on its own: 0.2223 V, CRC Handbook of Chemistry and Physics.
TEST_P(SilverChlorideElectrode, IsMetWithinTwoMillivolts) {
    const auto [concentration, meanCoefficient] = GetParam();
    const double expected = 0.2223 - 0.05916 * std::log10(concentration * meanCoefficient);
    EXPECT_NEAR(silverPotential({.sampleConcentration = concentration}, 0.0), expected, 0.002);
}

INSTANTIATE_TEST_SUITE_P(Table, SilverChlorideElectrode,
                         testing::Values(ElectrodePoint{0.1, 0.778}, ElectrodePoint{0.2, 0.735},
                                         ElectrodePoint{0.5, 0.681}, ElectrodePoint{1.0, 0.657}));

// 1.9 mg/L and 143.32 g/mol: CRC Handbook of Chemistry and Physics.
TEST(SilverChlorideSolubility, IsThatOfTheTableInPureWater) {
    const SilverState water = silverState({.sampleConcentration = 0.0}, 0.0);
    EXPECT_NEAR(water.dissolvedSilver, 1.9e-3 / 143.32, 0.06 * 1.33e-5);
    EXPECT_NEAR(water.equilibrium.lgActivity, -0.5 * 9.75, 1e-3);
    EXPECT_NEAR(water.dissolvedSilver, water.dissolvedChloride, 1e-13);
}

TEST(SilverChlorideSolubility, FallsInLittleChlorideAndRisesInMuch) {
    const auto dissolved = [](double chloride) {
        return silverState({.sampleConcentration = chloride}, 0.0).dissolvedSilver;
    };
    EXPECT_LT(dissolved(0.003), 0.1 * dissolved(0.0));
    EXPECT_GT(dissolved(1.0), 10.0 * dissolved(0.003));
}

TEST(SilverChlorideSolubility, ComesFromTheConstantsOfTheComplexes) {
    const Equilibrium at = silverState({.sampleConcentration = 1.0}, 0.0).equilibrium;
    const double silver = std::pow(10.0, at.lgActivity);
    const double chloride = std::pow(10.0, -9.75) / silver;
    const double two = at.ions[TwoChlorides].concentration *
                       activityCoefficient(1, at.ionicStrength) / (silver * std::pow(chloride, 2));
    const double three = at.ions[ThreeChlorides].concentration *
                         activityCoefficient(2, at.ionicStrength) /
                         (silver * std::pow(chloride, 3));
    EXPECT_NEAR(std::log10(two), 5.27, 1e-9);
    EXPECT_NEAR(std::log10(three), 5.29, 1e-9);
}

} // namespace
} // namespace quendal::curves
