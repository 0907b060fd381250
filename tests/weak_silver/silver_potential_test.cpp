#include "weak_silver/silver_potential.h"

#include "task_points.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quendal {
namespace {

using test::lg;

// The formulas in long form, with the operations in the order in which a learner writes them.
double potentialOf(double silverIon) {
    return 0.8 - 0.059 * lg(1.0 / silverIon);
}

SilverReading readingAt(double concentration, int ml) {
    return silverReading(concentration, concentration * 0.01, ml / 1000.0 * 1.0,
                         (10 + ml) / 1000.0);
}

class SilverPoint : public testing::TestWithParam<test::TaskPoint> {};

TEST_P(SilverPoint, IsExactlyTheFormulaOfItsSection) {
    const auto [concentration, ml] = GetParam();
    const int equivalence = test::equivalenceMl(concentration);
    const double chloride = concentration * 0.01;
    const double silver = ml / 1000.0;
    const double volume = (10 + ml) / 1000.0;
    const SilverReading reading = readingAt(concentration, ml);
    EXPECT_EQ(reading.computed, ml > 0);
    // In the last bit of a double 14 mL are more than 1.4 mol/L.
    const bool lastBit = concentration == 1.4 && ml == 14;
    if (ml == 0) {
        EXPECT_EQ(reading.section, SilverSection::ChlorideExcess);
        EXPECT_EQ(reading.conc, concentration);
        EXPECT_EQ(reading.potential, 0.0);
        return;
    }
    if (ml < equivalence) {
        EXPECT_EQ(reading.section, SilverSection::ChlorideExcess);
        EXPECT_EQ(reading.conc, (chloride - silver) / volume);
        EXPECT_EQ(reading.silverIon, std::pow(10.0, -9.7) / reading.conc);
    } else if (ml == equivalence && !lastBit) {
        EXPECT_EQ(reading.section, SilverSection::Equivalence);
        EXPECT_EQ(reading.conc, concentration);
        EXPECT_EQ(reading.silverIon, std::sqrt(std::pow(10.0, -9.7)));
    } else {
        EXPECT_EQ(reading.section, SilverSection::SilverExcess);
        EXPECT_EQ(reading.conc, concentration);
        EXPECT_EQ(reading.silverExcess, silver - chloride);
        EXPECT_EQ(reading.silverIon, (silver - chloride) / volume);
    }
    EXPECT_EQ(reading.potential, potentialOf(reading.silverIon));
}

INSTANTIATE_TEST_SUITE_P(EveryTask, SilverPoint, test::everyPoint(0));

struct WorkedPoint {
    double concentration; // mol/L
    int ml;
    SilverSection section;
    double silverIon; // mol/L
    double potential; // V
};

class WorkedSilver : public testing::TestWithParam<WorkedPoint> {};

TEST_P(WorkedSilver, AgreesWithTheValueByHand) {
    const WorkedPoint& row = GetParam();
    const SilverReading reading = readingAt(row.concentration, row.ml);
    EXPECT_EQ(reading.section, row.section);
    EXPECT_NEAR(reading.silverIon / row.silverIon, 1, 1e-4);
    EXPECT_NEAR(reading.potential, row.potential, 5e-5);
}

INSTANTIATE_TEST_SUITE_P(
    ByHand, WorkedSilver,
    testing::Values(WorkedPoint{1.0, 1, SilverSection::ChlorideExcess, 2.4387e-10, 0.23284},
                    WorkedPoint{1.0, 10, SilverSection::Equivalence, 1.4125e-5, 0.51385},
                    WorkedPoint{1.0, 11, SilverSection::SilverExcess, 0.047619, 0.7220},
                    WorkedPoint{0.6, 6, SilverSection::Equivalence, 1.4125e-5, 0.51385},
                    WorkedPoint{1.2, 12, SilverSection::Equivalence, 1.4125e-5, 0.51385},
                    WorkedPoint{1.4, 15, SilverSection::SilverExcess, 0.04, 0.71752}));

TEST(SilverPotential, FourteenMillilitresOfTheStrongestSampleAreAnExcessInTheLastBit) {
    EXPECT_LT(1.4 * 0.01, 14 / 1000.0);
    const SilverReading reading = readingAt(1.4, 14);
    EXPECT_EQ(reading.section, SilverSection::SilverExcess);
    EXPECT_NEAR(reading.silverExcess, 1.7e-18, 0.1e-18);
    EXPECT_NEAR(reading.potential, -0.15, 0.01);
}

TEST(SilverPotential, OneBitDecidesTheSection) {
    const double chloride = 0.01;
    const double less = std::nextafter(chloride, 0.0);
    const double more = std::nextafter(chloride, 1.0);
    EXPECT_EQ(silverReading(1, chloride, less, 0.02).section, SilverSection::ChlorideExcess);
    EXPECT_EQ(silverReading(1, chloride, chloride, 0.02).section, SilverSection::Equivalence);
    EXPECT_EQ(silverReading(1, chloride, more, 0.02).section, SilverSection::SilverExcess);
}

} // namespace
} // namespace quendal
