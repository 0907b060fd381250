// Electrical conductivity of univalent ions in water at 25 °C, alone or in a mixture.
#pragma once

#include <vector>

namespace quendal::curves {

struct Conductor {
    const char* name;
    int charge;                  // 1 or -1
    double limitingConductivity; // S cm²/mol, at infinite dilution
    double size;                 // Å, nearest approach of two ions; see below
};

// Limiting conductivities: Robinson and Stokes, Electrolyte Solutions, 2nd edition, 1959.
// The sizes are fitted to the molar conductivities of single electrolytes at 0.1 mol/L: of NaCl
// with one size for both of its ions, then of HCl, NaOH, sodium acetate, KNO3 (potassium as large
// as sodium) and AgNO3 with one new ion each. A size far below that of an ion, as of nitrate,
// stands for ions that go in pairs.
inline constexpr Conductor kOxonium{
    .name = "H3O+", .charge = 1, .limitingConductivity = 349.8, .size = 4.2};
inline constexpr Conductor kSodium{
    .name = "Na+", .charge = 1, .limitingConductivity = 50.1, .size = 4.2};
inline constexpr Conductor kSilverIon{
    .name = "Ag+", .charge = 1, .limitingConductivity = 61.9, .size = 3.6};
inline constexpr Conductor kHydroxide{
    .name = "OH-", .charge = -1, .limitingConductivity = 198.6, .size = 2.9};
inline constexpr Conductor kChloride{
    .name = "Cl-", .charge = -1, .limitingConductivity = 76.35, .size = 4.2};
inline constexpr Conductor kAcetate{
    .name = "Ac-", .charge = -1, .limitingConductivity = 40.9, .size = 3.7};
inline constexpr Conductor kNitrate{
    .name = "NO3-", .charge = -1, .limitingConductivity = 71.46, .size = 0.7};

// Coefficients for water at 25 °C. A single electrolyte loses (0.2300 Λ0 + 60.65) √I / (1 + B å √I)
// of its molar conductivity: 0.2300 is kRelaxation times 1 - √½, and each ion bears half of 60.65.
// Source: Robinson and Stokes, Electrolyte Solutions, 2nd edition, 1959.
inline constexpr double kRelaxation = 0.7853;        // L^½ mol^-½
inline constexpr double kElectrophoresis = 30.325;   // S cm² mol^-1 L^½ mol^-½
inline constexpr double kInverseAtmosphere = 0.3291; // B, Å^-1 L^½ mol^-½

struct DissolvedConductor {
    Conductor ion;
    double concentration = 0; // mol/L
};

// How much the cloud of other ions holds each ion back as it is rebuilt around it, in units of
// kRelaxation √I: 1 - √½ in a single electrolyte, more for a fast ion among slow ones.
// Theory: Onsager and Fuoss, J. Phys. Chem. 36 (1932) 2689. At least one concentration is above 0.
std::vector<double> relaxationFactors(const std::vector<DissolvedConductor>& solution);

// λ of each ion in S cm²/mol,
//   λ = λ0 - (kRelaxation r λ0 + kElectrophoresis) √I / (1 + B å √I),
// with the relaxation factor r. Good to 1 % for single electrolytes up to an ionic strength I of
// 0.2 mol/L.
std::vector<double> ionConductivities(const std::vector<DissolvedConductor>& solution);

} // namespace quendal::curves
