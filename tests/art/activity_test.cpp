#include "activity.h"

#include <cmath>
#include <gtest/gtest.h>

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

struct SaltCoefficient {
    const char* salt;
    double linearTerm;
    double molality; // mol/kg, taken as mol/L
    double coefficient;
};

class SaltTable : public testing::TestWithParam<SaltCoefficient> {};

// Mean activity coefficients at 25 °C: CRC Handbook of Chemistry and Physics.
TEST_P(SaltTable, IsMetWithinThreePercent) {
    const auto [salt, linearTerm, molality, coefficient] = GetParam();
    EXPECT_NEAR(activityCoefficientInSalt(linearTerm, molality, molality), coefficient,
                0.03 * coefficient)
        << salt;
}

INSTANTIATE_TEST_SUITE_P(
    Salts, SaltTable,
    testing::Values(SaltCoefficient{"NaCl", kSodiumChlorideLinearTerm, 0.1, 0.778},
                    SaltCoefficient{"NaCl", kSodiumChlorideLinearTerm, 0.2, 0.735},
                    SaltCoefficient{"NaCl", kSodiumChlorideLinearTerm, 0.5, 0.681},
                    SaltCoefficient{"NaCl", kSodiumChlorideLinearTerm, 1.0, 0.657},
                    SaltCoefficient{"AgNO3", kSilverNitrateLinearTerm, 0.1, 0.732},
                    SaltCoefficient{"AgNO3", kSilverNitrateLinearTerm, 0.2, 0.656},
                    SaltCoefficient{"AgNO3", kSilverNitrateLinearTerm, 0.5, 0.536},
                    SaltCoefficient{"AgNO3", kSilverNitrateLinearTerm, 1.0, 0.430}));

TEST(Activity, ForgetsTheSaltInDiluteSolution) {
    constexpr double kStrength = 1e-6;
    EXPECT_NEAR(activityCoefficientInSalt(kSilverNitrateLinearTerm, kStrength, kStrength),
                activityCoefficient(1, kStrength), 1e-6);
    EXPECT_DOUBLE_EQ(activityCoefficientInSalt(kSodiumChlorideLinearTerm, 0.0, 0.0), 1.0);
}

} // namespace
} // namespace quendal::curves
