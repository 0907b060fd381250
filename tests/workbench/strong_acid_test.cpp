#include "workbench/strong_acid.h"

#include "workbench/liquid_color.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quendal {
namespace {

struct WorkedPoint {
    double concentration; // mol/L
    int base;             // mL
    double excess;        // mol
    double conc;          // mol/L
    double pH;
};

class StrongAcidPoint : public testing::TestWithParam<WorkedPoint> {};

PointValues pointAt(double concentration, int base) {
    return strongAcidPoint(concentration, base / 1000.0, (10 + base) / 1000.0);
}

TEST_P(StrongAcidPoint, AgreesWithTheWorkedValue) {
    const WorkedPoint& worked = GetParam();
    const PointValues point = pointAt(worked.concentration, worked.base);
    EXPECT_DOUBLE_EQ(point.excess, worked.excess);
    EXPECT_NEAR(point.conc, worked.conc, 1e-12);
    EXPECT_NEAR(point.reading, worked.pH, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(
    ByHand, StrongAcidPoint,
    testing::Values(WorkedPoint{1.0, 0, 0.01, 1.0, 0.0},
                    WorkedPoint{1.0, 1, 0.009, 9.0 / 11.0, -std::log10(9.0 / 11.0)},
                    WorkedPoint{1.0, 5, 0.005, 5.0 / 15.0, std::log10(3.0)},
                    WorkedPoint{1.0, 9, 0.001, 1.0 / 19.0, std::log10(19.0)},
                    WorkedPoint{1.0, 10, 0.0, 1e-7, 7.0},
                    WorkedPoint{1.0, 11, 0.001, 1.0 / 21.0, 14 - std::log10(21.0)},
                    WorkedPoint{1.0, 20, 0.01, 1.0 / 3.0, 14 - std::log10(3.0)},
                    WorkedPoint{0.6, 0, 0.006, 0.6, -std::log10(0.6)},
                    WorkedPoint{0.6, 6, 0.0, 1e-7, 7.0}, WorkedPoint{0.8, 8, 0.0, 1e-7, 7.0},
                    WorkedPoint{1.2, 12, 0.0, 1e-7, 7.0}, WorkedPoint{1.4, 14, 0.0, 1e-7, 7.0},
                    WorkedPoint{1.4, 15, 0.001, 1.0 / 25.0, 14 - std::log10(25.0)}));

TEST(StrongAcid, TheEquivalencePointIsExact) {
    for (const double c : {0.6, 0.8, 1.0, 1.2, 1.4}) {
        const PointValues point = pointAt(c, static_cast<int>(std::lround(10 * c)));
        EXPECT_EQ(point.reading, 7.0) << c;
        EXPECT_EQ(point.conc, std::pow(10.0, -7.0)) << c;
        EXPECT_EQ(point.excess, 0.0) << c;
        EXPECT_EQ(point.choice, 2) << c;
        EXPECT_FALSE(point.baseInExcess) << c;
    }
}

TEST(StrongAcid, AmountsBelowTheResolutionOfADoubleNearOneAreEqual) {
    EXPECT_NE(1.4 * 0.01, 0.014);
    EXPECT_EQ(excessOf(1.4 * 0.01, 0.014), Excess::None);
    EXPECT_EQ(excessOf(0.01, 0.009), Excess::Acid);
    EXPECT_EQ(excessOf(0.009, 0.01), Excess::Base);
}

TEST(StrongAcid, TheChoiceNamesTheLargerAmount) {
    EXPECT_EQ(pointAt(1.0, 5).choice, 0);
    EXPECT_EQ(pointAt(1.0, 11).choice, 1);
}

TEST(StrongAcid, PohIsGivenBehindTheEquivalencePointOnly) {
    EXPECT_NEAR(pointAt(1.0, 20).pOH, std::log10(3.0), 1e-12);
    EXPECT_EQ(pointAt(1.0, 5).pOH, 0.0);
}

TEST(StrongAcid, TheExcessIsRoundedToThreeDecimals) {
    EXPECT_EQ(pointAt(1.4, 1).excess, 0.013);
    EXPECT_EQ(pointAt(1.2, 5).excess, 0.007);
}

TEST(LiquidColor, TellsAcidNeutralAndBase) {
    EXPECT_EQ(liquidColor(6.999), (Color{214, 172, 172}));
    EXPECT_EQ(liquidColor(7.0), (Color{152, 219, 188}));
    EXPECT_EQ(liquidColor(7.001), (Color{152, 177, 230}));
}

} // namespace
} // namespace quendal
