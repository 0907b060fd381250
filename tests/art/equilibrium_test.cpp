#include "equilibrium.h"

#include "activity.h"

#include <cmath>
#include <gtest/gtest.h>
#include <stdexcept>

namespace quendal::curves {
namespace {

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
