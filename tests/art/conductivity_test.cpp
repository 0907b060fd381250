#include "conductivity.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

namespace quendal::curves {
namespace {

// Potassium is in no curve; its chloride checks sizes that were fitted to other salts.
constexpr Conductor kPotassium{
    .name = "K+", .charge = 1, .limitingConductivity = 73.5, .size = kSodium.size};

double molarConductivity(const Conductor& cation, const Conductor& anion, double concentration) {
    const auto ions = ionConductivities(
        {{.ion = cation, .concentration = concentration}, {anion, concentration}});
    return ions[0] + ions[1];
}

struct HandbookRow {
    Conductor cation;
    Conductor anion;
    double concentration; // mol/L
    double conductivity;  // S cm²/mol
};

class Handbook : public testing::TestWithParam<HandbookRow> {};

// Molar conductivities at 25 °C: Robinson and Stokes, Electrolyte Solutions, 1959; CRC Handbook of
// Chemistry and Physics.
TEST_P(Handbook, IsMetWithinOnePercent) {
    const auto [cation, anion, concentration, conductivity] = GetParam();
    EXPECT_NEAR(molarConductivity(cation, anion, concentration), conductivity, 0.01 * conductivity)
        << cation.name << " " << anion.name << " " << concentration << " mol/L";
}

// The rows of 0.1 mol/L, but not KCl's, are what the sizes are fitted to; no other row was used.
INSTANTIATE_TEST_SUITE_P(Table, Handbook,
                         testing::Values(HandbookRow{kOxonium, kChloride, 0.001, 421.36},
                                         HandbookRow{kOxonium, kChloride, 0.01, 412.00},
                                         HandbookRow{kOxonium, kChloride, 0.05, 399.09},
                                         HandbookRow{kOxonium, kChloride, 0.1, 391.32},
                                         HandbookRow{kOxonium, kChloride, 0.2, 379.6},
                                         HandbookRow{kSodium, kChloride, 0.001, 123.74},
                                         HandbookRow{kSodium, kChloride, 0.01, 118.51},
                                         HandbookRow{kSodium, kChloride, 0.05, 111.06},
                                         HandbookRow{kSodium, kChloride, 0.1, 106.74},
                                         HandbookRow{kSodium, kChloride, 0.2, 101.71},
                                         HandbookRow{kSodium, kHydroxide, 0.001, 244.7},
                                         HandbookRow{kSodium, kHydroxide, 0.01, 238.0},
                                         HandbookRow{kSodium, kHydroxide, 0.1, 221.0},
                                         HandbookRow{kSodium, kAcetate, 0.001, 88.5},
                                         HandbookRow{kSodium, kAcetate, 0.01, 83.76},
                                         HandbookRow{kSodium, kAcetate, 0.05, 76.92},
                                         HandbookRow{kSodium, kAcetate, 0.1, 72.80},
                                         HandbookRow{kSilverIon, kNitrate, 0.001, 130.51},
                                         HandbookRow{kSilverIon, kNitrate, 0.01, 124.76},
                                         HandbookRow{kSilverIon, kNitrate, 0.05, 115.24},
                                         HandbookRow{kSilverIon, kNitrate, 0.1, 109.14},
                                         HandbookRow{kSilverIon, kNitrate, 0.2, 101.8},
                                         HandbookRow{kPotassium, kChloride, 0.01, 141.27},
                                         HandbookRow{kPotassium, kChloride, 0.1, 128.96},
                                         HandbookRow{kPotassium, kNitrate, 0.01, 135.82},
                                         HandbookRow{kPotassium, kNitrate, 0.1, 120.40}));

TEST(Relaxation, IsThatOfTheLimitingLawInASingleElectrolyte) {
    const auto factors = relaxationFactors({{kOxonium, 0.03}, {kChloride, 0.03}});
    EXPECT_NEAR(factors[0], 1.0 - std::sqrt(0.5), 1e-12);
    EXPECT_NEAR(factors[1], 1.0 - std::sqrt(0.5), 1e-12);
    EXPECT_NEAR(kRelaxation * factors[0], 0.2300, 5e-5);
}

// A trace of an ion of mobility u in a salt whose two ions both have the mobility v: Onsager, Ann.
// N.Y. Acad. Sci. 46 (1945) 241.
TEST(Relaxation, IsOnsagersForATraceInASalt) {
    Conductor anion = kChloride;
    anion.limitingConductivity = kSodium.limitingConductivity;
    const auto factors = relaxationFactors({{kSodium, 0.1}, {anion, 0.1}, {kOxonium, 1e-13}});
    EXPECT_NEAR(factors[2], 1.0 - std::sqrt(50.1 / (50.1 + 349.8)), 1e-9);
}

// Whatever force an ion feels from the others, they feel from it.
TEST(Relaxation, AddsUpToNoForceOnTheWhole) {
    const std::vector<DissolvedConductor> solution{
        {kOxonium, 0.07}, {kSodium, 0.04}, {kChloride, 0.1}, {kNitrate, 0.01}};
    const auto factors = relaxationFactors(solution);
    double force = 0.0;
    for (std::size_t i = 0; i < solution.size(); ++i) {
        force += solution[i].concentration * solution[i].ion.charge * factors[i];
    }
    EXPECT_NEAR(force, 0.0, 1e-13);
}

TEST(Relaxation, TakesTwoHalvesOfAnIonForTheWhole) {
    const auto whole = relaxationFactors({{kOxonium, 0.05}, {kSodium, 0.05}, {kChloride, 0.1}});
    const auto halves = relaxationFactors(
        {{kOxonium, 0.05}, {kSodium, 0.05}, {kChloride, 0.03}, {kChloride, 0.07}});
    EXPECT_NEAR(halves[0], whole[0], 1e-12);
    EXPECT_NEAR(halves[1], whole[1], 1e-12);
    EXPECT_NEAR(halves[2], whole[2], 1e-12);
    EXPECT_NEAR(halves[3], whole[2], 1e-12);
}

TEST(Relaxation, HoldsTheFastIonBackMoreThanTheSlowOne) {
    const auto factors = relaxationFactors({{kOxonium, 0.05}, {kSodium, 0.05}, {kChloride, 0.1}});
    EXPECT_GT(factors[0], factors[2]);
    EXPECT_LT(factors[1], factors[2]);
}

TEST(IonConductivities, AreTheLimitingOnesAtInfiniteDilution) {
    const auto ions = ionConductivities({{kSilverIon, 1e-12}, {kNitrate, 1e-12}});
    EXPECT_NEAR(ions[0], 61.9, 1e-4);
    EXPECT_NEAR(ions[1], 71.46, 1e-4);
}

} // namespace
} // namespace quendal::curves
