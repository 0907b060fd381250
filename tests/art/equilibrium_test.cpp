#include "equilibrium.h"

#include "activity.h"

#include <cmath>
#include <gtest/gtest.h>
#include <stdexcept>

namespace quendal::curves {
namespace {

TEST(Activity, IsIdealAtInfiniteDilution) {
    EXPECT_DOUBLE_EQ(activityCoefficient(1, 0.0), 1.0);
    EXPECT_DOUBLE_EQ(activityCoefficient(0, 0.5), 1.0);
}

TEST(Activity, FollowsTheLimitingLawInDiluteSolution) {
    constexpr double kStrength = 1e-6;
    EXPECT_NEAR(std::log10(activityCoefficient(1, kStrength)), -0.509 * 1e-3, 1e-6);
    EXPECT_NEAR(std::log10(activityCoefficient(2, kStrength)), -4 * 0.509 * 1e-3, 4e-6);
}

struct MeanCoefficient {
    double molality; // mol/kg, taken as mol/L
    double coefficient;
};

class HydrochloricAcid : public testing::TestWithParam<MeanCoefficient> {};

// Mean activity coefficients of HCl at 25 °C: Robinson and Stokes, Electrolyte Solutions, 1959.
TEST_P(HydrochloricAcid, IsWithinFourPercentOfTheTable) {
    const auto [molality, coefficient] = GetParam();
    EXPECT_NEAR(activityCoefficient(1, molality), coefficient, 0.04 * coefficient);
}

INSTANTIATE_TEST_SUITE_P(Table, HydrochloricAcid,
                         testing::Values(MeanCoefficient{0.1, 0.796}, MeanCoefficient{0.2, 0.767},
                                         MeanCoefficient{0.5, 0.757}, MeanCoefficient{1.0, 0.809},
                                         MeanCoefficient{1.2, 0.840}, MeanCoefficient{1.4, 0.876}));

TEST(Equilibrium, PureWaterIsNeutral) {
    const Equilibrium water = solveEquilibrium(waterIons);
    EXPECT_NEAR(-water.lgActivity, kWaterPk / 2, 1e-12);
    EXPECT_NEAR(water.ionicStrength, 1.0058e-7, 1e-10);
}

TEST(Equilibrium, KeepsTheIonicProductOfWater) {
    const auto ions = waterIons(-3.0, 0.7);
    const double coefficient = activityCoefficient(1, 0.7);
    const double product =
        ions[0].concentration * ions[1].concentration * coefficient * coefficient;
    EXPECT_NEAR(std::log10(product), -kWaterPk, 1e-12);
}

TEST(Equilibrium, RefusesWhatCannotBeBalanced) {
    const Speciation onlyPositive = [](double, double) {
        return std::vector<Ion>{{.charge = 1, .concentration = 1.0}};
    };
    EXPECT_THROW(solveEquilibrium(onlyPositive), std::domain_error);
}

} // namespace
} // namespace quendal::curves
