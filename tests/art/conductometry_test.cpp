#include "conductometry.h"

#include "silver_chloride.h"
#include "strong_acid.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <utility>

namespace quendal::curves {
namespace {

// A value at each tenth of a millilitre.
using Curve = std::vector<double>;

class ConductivityCurves : public testing::TestWithParam<double> {
  protected:
    double equivalence_ = 10.0 * GetParam(); // mL
    std::size_t kink_ = static_cast<std::size_t>(std::lround(10.0 * equivalence_));
    Titration titration_{.waterVolume = 90.0, .sampleConcentration = GetParam()};

    std::vector<double> at(const Conductometry& conductometry, double millilitres) const {
        return totalAndShares(conductometry, titration_, millilitres);
    }
    // Series 0 is the total, 1 to 4 the ions.
    Curve curve(const Conductometry& conductometry, std::size_t series) const {
        Curve values;
        for (const double v : burettePoints()) {
            values.push_back(at(conductometry, v)[series]);
        }
        return values;
    }
};

// The first index at which the curve doesn't rise (or fall) any more.
std::size_t risesUpTo(const Curve& curve, std::size_t from) {
    const auto begin = curve.begin() + static_cast<std::ptrdiff_t>(from);
    return static_cast<std::size_t>(std::is_sorted_until(begin, curve.end()) - curve.begin()) - 1;
}

std::size_t fallsUpTo(const Curve& curve, std::size_t from) {
    const auto begin = curve.begin() + static_cast<std::ptrdiff_t>(from);
    return static_cast<std::size_t>(std::is_sorted_until(begin, curve.end(), std::greater<>()) -
                                    curve.begin()) -
           1;
}

// How much steeper the curve is behind a point than before it, over one millilitre each, in
// mS/cm per mL.
double bend(const Curve& curve, std::size_t at) {
    return curve[at + 10] - 2.0 * curve[at] + curve[at - 10];
}

TEST_P(ConductivityCurves, HaveTheSumOfTheirIonsAsTotal) {
    for (const auto* form :
         {&kStrongAcidConductometry, &kWeakAcidConductometry, &kSilverConductometry}) {
        for (const double v : burettePoints()) {
            const auto values = at(*form, v);
            ASSERT_EQ(values.size(), 5U);
            EXPECT_DOUBLE_EQ(values[0], std::accumulate(values.begin() + 1, values.end(), 0.0));
            EXPECT_GE(*std::min_element(values.begin(), values.end()), 0.0) << v << " mL";
        }
    }
}

TEST_P(ConductivityCurves, OfStrongAcidFallToTheEquivalencePointAndRiseBehindIt) {
    const Curve total = curve(kStrongAcidConductometry, 0);
    EXPECT_EQ(fallsUpTo(total, 0), kink_);
    EXPECT_EQ(risesUpTo(total, kink_), total.size() - 1);
    EXPECT_GT(total.front(), 3.0 * total[kink_]);
}

TEST_P(ConductivityCurves, OfStrongAcidAreThoseOfTheSaltAtTheEquivalencePoint) {
    const double salt = mix(titration_, equivalence_).reagent;
    const auto ions = ionConductivities({{kChloride, salt}, {kSodium, salt}});
    const auto values = at(kStrongAcidConductometry, equivalence_);
    EXPECT_NEAR(values[2], ions[0] * salt, 1e-4);
    EXPECT_NEAR(values[3], ions[1] * salt, 1e-4);
    EXPECT_LT(values[1], 1e-4);
    EXPECT_LT(values[4], 1e-4);
}

TEST_P(ConductivityCurves, OfWeakAcidDipInTheFirstDropsAndThenRise) {
    const Curve total = curve(kWeakAcidConductometry, 0);
    const std::size_t lowest = fallsUpTo(total, 0);
    EXPECT_GE(lowest, 1U);
    EXPECT_LE(lowest, 3U);
    EXPECT_EQ(risesUpTo(total, lowest), total.size() - 1);
    EXPECT_LT(total.front(), 0.02 * at(kStrongAcidConductometry, 0.0)[0]);
}

TEST_P(ConductivityCurves, OfWeakAcidKinkUpwardsAtTheEquivalencePoint) {
    const Curve total = curve(kWeakAcidConductometry, 0);
    EXPECT_GT(bend(total, kink_), 1.0);
    EXPECT_LT(std::abs(bend(total, kink_ - 20)), 0.05);
    EXPECT_LT(std::abs(bend(total, kink_ + 20)), 0.05);
}

TEST_P(ConductivityCurves, OfWeakAcidHaveOxoniumInTheBufferToo) {
    const auto half = at(kWeakAcidConductometry, 0.5 * equivalence_);
    EXPECT_GT(half[1], 0.005);
    EXPECT_LT(half[1], 0.012);
    EXPECT_GT(at(kWeakAcidConductometry, equivalence_)[4], 0.001) << "acetate is a base";
}

TEST_P(ConductivityCurves, OfSilverFallALittleAndThenRise) {
    const Curve total = curve(kSilverConductometry, 0);
    EXPECT_EQ(fallsUpTo(total, 0), kink_);
    EXPECT_EQ(risesUpTo(total, kink_), total.size() - 1);
    EXPECT_GT(total[kink_], 0.78 * total.front());
    EXPECT_GT(bend(total, kink_), 0.7);
}

TEST_P(ConductivityCurves, OfSilverChangeChlorideForNitrate) {
    EXPECT_LT(at(kSilverConductometry, equivalence_)[1], 0.002);
    EXPECT_EQ(risesUpTo(curve(kSilverConductometry, 3), 0), 200U);
    EXPECT_EQ(fallsUpTo(curve(kSilverConductometry, 1), 0), 200U);
}

// Even if a complex were as fast as chloride for each of its charges.
TEST_P(ConductivityCurves, OfSilverLeaveNothingOutThatCounts) {
    for (const double v : burettePoints()) {
        const auto& ions = silverState(titration_, v).equilibrium.ions;
        EXPECT_LT(80.0 * (ions[2].concentration + 4.0 * ions[3].concentration), 0.001) << v;
    }
}

INSTANTIATE_TEST_SUITE_P(Concentrations, ConductivityCurves,
                         testing::Values(0.6, 0.8, 1.0, 1.2, 1.4));

struct StartRow {
    const Conductometry* form;
    double conductivity; // mS/cm of 0.1 mol/L of the sample
    double tolerance;    // mS/cm
};

class ConductivityStart : public testing::TestWithParam<StartRow> {};

// 10 mL of 1 mol/L in 100 mL are 0.1 mol/L, as the handbook tables them: Robinson and Stokes,
// Electrolyte Solutions, 1959; acetic acid: MacInnes and Shedlovsky, J. Am. Chem. Soc. 54 (1932)
// 1429.
TEST_P(ConductivityStart, IsThatOfTheHandbook) {
    const auto [form, conductivity, tolerance] = GetParam();
    EXPECT_NEAR(totalAndShares(*form, {.waterVolume = 90.0}, 0.0)[0], conductivity, tolerance);
}

INSTANTIATE_TEST_SUITE_P(Table, ConductivityStart,
                         testing::Values(StartRow{&kStrongAcidConductometry, 39.13, 0.2},
                                         StartRow{&kWeakAcidConductometry, 0.520, 0.015},
                                         StartRow{&kSilverConductometry, 10.67, 0.05}));

class Exponents : public testing::TestWithParam<double> {
  protected:
    IonExponents at(double millilitres) const {
        return strongAcidExponents({.waterVolume = 90.0, .sampleConcentration = GetParam()},
                                   millilitres);
    }
};

TEST_P(Exponents, OfAcidAndBaseAddUpToThatOfWater) {
    for (const double v : burettePoints()) {
        EXPECT_NEAR(at(v).pH + at(v).pOH, kWaterPk, 1e-12) << v << " mL";
    }
}

TEST_P(Exponents, OfAcidAndChlorideAreTheSameBeforeAnyBase) {
    EXPECT_NEAR(at(0.0).pH, at(0.0).pCl, 1e-9);
}

TEST_P(Exponents, OfTheSaltsIonsAreTheSameAtTheEquivalencePoint) {
    const IonExponents salt = at(10.0 * GetParam());
    EXPECT_NEAR(salt.pCl, salt.pNa, 1e-9);
    EXPECT_NEAR(salt.pH, salt.pOH, 1e-5);
}

TEST_P(Exponents, OfSodiumBeginWithThatOfTheFirstTenthOfAMillilitre) {
    EXPECT_EQ(at(0.0).pNa, at(0.1).pNa);
    EXPECT_NEAR(at(0.1).pNa - at(1.0).pNa, 1.0, 0.01);
}

INSTANTIATE_TEST_SUITE_P(Concentrations, Exponents, testing::Values(0.6, 1.0, 1.4));

} // namespace
} // namespace quendal::curves
