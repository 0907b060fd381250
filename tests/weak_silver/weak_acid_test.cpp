#include "weak_silver/weak_acid.h"

#include "task_points.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace quendal {
namespace {

using test::lg;

// The formulas in long form, with the operations in the order in which a learner writes them.
double pHOfAcid(double conc) {
    return (4.76 - lg(conc)) * 0.5;
}
double pHOfBuffer(double acidMol, double baseMol) {
    return 4.76 - lg((acidMol - baseMol) / baseMol);
}
double pHOfBase(double baseMol, double volume) {
    return 14.0 - (14.0 - 4.76 - lg(baseMol / volume)) * 0.5;
}
double pHOfExcess(double acidMol, double baseMol, double volume) {
    return 14.0 - -lg((baseMol - acidMol) / volume);
}

WeakAmounts amountsAt(double concentration, int ml) {
    return {.concentration = concentration,
            .acidMol = concentration * 0.01,
            .baseMol = ml / 1000.0 * 1.0,
            .totalVol = (10 + ml) / 1000.0};
}

// A settled beaker: each mL turns one HAc into Ac-, what comes behind stays OH-.
WeakCase settledCase(double concentration, int ml) {
    const int acid = test::equivalenceMl(concentration);
    return weakCaseOf(concentration, std::max(0, acid - ml), std::max(0, ml - acid)).value();
}

class WeakAcidPoint : public testing::TestWithParam<test::TaskPoint> {};

TEST_P(WeakAcidPoint, IsExactlyTheFormulaOfItsCase) {
    const auto [concentration, ml] = GetParam();
    const int equivalence = test::equivalenceMl(concentration);
    const WeakAmounts n = amountsAt(concentration, ml);
    const WeakCase which = settledCase(concentration, ml);
    const WeakReading reading = weakReading(which, n).value();
    EXPECT_EQ(reading.excess.has_value(), ml > equivalence);
    EXPECT_EQ(reading.pOH.has_value(), ml > equivalence);
    if (ml == 0) {
        EXPECT_EQ(which, WeakCase::Acid);
        EXPECT_EQ(reading.pH, pHOfAcid(concentration));
    } else if (ml < equivalence) {
        EXPECT_EQ(which, WeakCase::Buffer);
        EXPECT_EQ(reading.pH, pHOfBuffer(n.acidMol, n.baseMol));
    } else if (ml == equivalence) {
        EXPECT_EQ(which, WeakCase::Base);
        EXPECT_EQ(reading.pH, pHOfBase(n.baseMol, n.totalVol));
    } else {
        EXPECT_EQ(which, WeakCase::BaseExcess);
        EXPECT_EQ(reading.pH, pHOfExcess(n.acidMol, n.baseMol, n.totalVol));
        EXPECT_EQ(*reading.excess, n.baseMol - n.acidMol);
        EXPECT_EQ(reading.conc, (n.baseMol - n.acidMol) / n.totalVol);
        EXPECT_EQ(*reading.pOH, -lg(reading.conc));
        return;
    }
    EXPECT_EQ(reading.conc, concentration);
}

INSTANTIATE_TEST_SUITE_P(EveryTask, WeakAcidPoint, test::everyPoint(0));

struct WorkedPoint {
    double concentration; // mol/L
    int ml;
    WeakCase which;
    double pH;
    double within;
};

class WorkedWeakAcid : public testing::TestWithParam<WorkedPoint> {};

TEST_P(WorkedWeakAcid, AgreesWithTheValueByHand) {
    const WorkedPoint& row = GetParam();
    EXPECT_EQ(settledCase(row.concentration, row.ml), row.which);
    const WeakAmounts n = amountsAt(row.concentration, row.ml);
    EXPECT_NEAR(weakReading(row.which, n)->pH, row.pH, row.within);
}

INSTANTIATE_TEST_SUITE_P(ByHand, WorkedWeakAcid,
                         testing::Values(WorkedPoint{1.0, 0, WeakCase::Acid, 2.38, 1e-12},
                                         WorkedPoint{1.0, 5, WeakCase::Buffer, 4.76, 1e-12},
                                         WorkedPoint{1.0, 10, WeakCase::Base, 9.2295, 5e-5},
                                         WorkedPoint{1.0, 11, WeakCase::BaseExcess, 12.678, 5e-4},
                                         WorkedPoint{1.0, 20, WeakCase::BaseExcess, 13.523, 5e-4},
                                         WorkedPoint{0.6, 0, WeakCase::Acid, 2.4909, 5e-5},
                                         WorkedPoint{0.6, 6, WeakCase::Base, 9.1670, 5e-5},
                                         WorkedPoint{1.4, 14, WeakCase::Base, 9.2630, 5e-5},
                                         WorkedPoint{1.4, 15, WeakCase::BaseExcess, 12.602, 5e-4}));

TEST(WeakAcid, TheAcetateComesFromTheBase) {
    for (int ml = 1; ml <= 200; ++ml) {
        const double base = ml / 10000.0;
        const double volume = 0.01 + base;
        EXPECT_EQ(weakReading(WeakCase::Base, {1.0, 0.5, base, volume})->pH, pHOfBase(base, volume))
            << ml;
    }
}

TEST(WeakAcid, HalfTheBaseGivesTheAcidConstant) {
    for (const double concentration : {0.6, 0.8, 1.0, 1.2, 1.4}) {
        const int half = static_cast<int>(std::lround(5 * concentration));
        const WeakReading reading =
            weakReading(WeakCase::Buffer, amountsAt(concentration, half)).value();
        EXPECT_NEAR(reading.pH, 4.76, 1e-12) << concentration;
    }
}

TEST(WeakAcid, ThePohBehindTheEquivalencePoint) {
    EXPECT_NEAR(weakReading(WeakCase::BaseExcess, amountsAt(1.0, 11))->pOH.value(), 1.3222, 5e-5);
}

struct CountCase {
    double concentration;
    int acid;
    int hydroxide;
    std::optional<WeakCase> which;
};

class CaseOfCounts : public testing::TestWithParam<CountCase> {};

TEST_P(CaseOfCounts, HasNoTolerance) {
    const CountCase& row = GetParam();
    EXPECT_EQ(weakCaseOf(row.concentration, row.acid, row.hydroxide), row.which);
}

INSTANTIATE_TEST_SUITE_P(
    All, CaseOfCounts,
    testing::Values(CountCase{0.6, 6, 0, WeakCase::Acid}, // 6 is 0.6 * 10.0 as a double
                    CountCase{0.8, 8, 0, WeakCase::Acid}, CountCase{1.2, 12, 0, WeakCase::Acid},
                    CountCase{1.4, 14, 0, WeakCase::Acid},
                    // Only the acid counts: the hydroxide hasn't met it yet.
                    CountCase{1.0, 10, 3, WeakCase::Acid}, CountCase{1.0, 9, 0, WeakCase::Buffer},
                    CountCase{1.0, 11, 0, WeakCase::Buffer}, CountCase{1.0, 1, 5, WeakCase::Buffer},
                    CountCase{1.0, 0, 0, WeakCase::Base},
                    CountCase{1.0, 0, 1, WeakCase::BaseExcess}, CountCase{1.0, -1, 0, std::nullopt},
                    CountCase{1.0, -1, 3, std::nullopt}, CountCase{1.0, -1, -1, WeakCase::Base}));

TEST(WeakAcid, ABufferWithoutBaseHasNoValue) {
    EXPECT_FALSE(weakReading(WeakCase::Buffer, amountsAt(1.0, 0)).has_value());
}

struct OddCase {
    WeakAmounts amounts;
    double pH;
    double conc;
    double excess;
};

class AmountsAgainstParticles : public testing::TestWithParam<OddCase> {};

// No acid particle is left, but the amounts don't say that there is base in excess.
TEST_P(AmountsAgainstParticles, AreReadAsAStrongAcids) {
    const OddCase& row = GetParam();
    const WeakReading reading = weakReading(WeakCase::BaseExcess, row.amounts).value();
    EXPECT_EQ(reading.pH, row.pH);
    EXPECT_EQ(reading.conc, row.conc);
    EXPECT_EQ(reading.excess.value(), row.excess);
    EXPECT_FALSE(reading.pOH.has_value());
}

constexpr double kEndless = std::numeric_limits<double>::infinity(); // dilutes to exactly 0

INSTANTIATE_TEST_SUITE_P(
    All, AmountsAgainstParticles,
    testing::Values(OddCase{{1.0, 0.01, 0.01, 0.02}, 7.0, 0, 0},
                    // Equal but for the last bit of a double.
                    OddCase{{1.4, 1.4 * 0.01, 0.014, 0.024}, 7.0, 0, 0},
                    OddCase{{1.0, 0.01, 0.01 + 1e-17, 0.02}, 7.0, 0, 0},
                    OddCase{{1.0, 0.01, 0.005, 0.015},
                            -lg((0.01 - 0.005) / 0.015),
                            (0.01 - 0.005) / 0.015,
                            0.01 - 0.005},
                    OddCase{{1.0, 0.01, 0.005, kEndless}, 7.0, 0, 0.01 - 0.005},
                    OddCase{{1.0, 0.01, 0.015, kEndless}, 7.0, 0, 0.015 - 0.01}));

} // namespace
} // namespace quendal
