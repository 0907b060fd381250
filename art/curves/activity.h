// Activity coefficients of ions in water at 25 °C.
#pragma once

namespace quendal::curves {

// Slope of the Debye-Hückel law for water at 25 °C in L^½ mol^-½.
// Source: Stumm and Morgan, Aquatic Chemistry, 3rd edition, 1996.
inline constexpr double kDebyeHueckelSlope = 0.509;

// Factor of the linear term of the Davies equation in L/mol.
// Source: C. W. Davies, Ion Association, 1962.
inline constexpr double kDaviesLinearTerm = 0.3;

// Activity coefficient of an ion by the Davies equation,
//   lg γ = -A z² (√I / (1 + √I) - 0.3 I),
// at an ionic strength I of 0 or more in mol/L. The equation is made for I up to 0.5 mol/L; for
// hydrochloric acid it stays within 4 % of the tabulated mean coefficients up to 1.4 mol/L.
double activityCoefficient(int charge, double ionicStrength);

// Linear terms of single salts in L/mol, fitted to their mean activity coefficients at 25 °C from
// 0.1 to 1 mol/L. They meet the table within 3 %; Davies' common term is up to 20 % (NaCl) and 84 %
// (AgNO3) above it, which is 5 and 16 mV at an electrode.
// Source of the coefficients: CRC Handbook of Chemistry and Physics, after Hamer and Wu, 1972.
inline constexpr double kSodiumChlorideLinearTerm = 0.075;
inline constexpr double kSilverNitrateLinearTerm = -0.12;

// Activity coefficient of a univalent ion by Guggenheim's equation,
//   lg γ = -A √I / (1 + √I) + b c,
// at an ionic strength I and a concentration c of its counter-ion, both 0 or more in mol/L; b is
// the linear term of the salt of the two. Source: E. A. Guggenheim, Phil. Mag. 19 (1935) 588.
double activityCoefficientInSalt(double linearTerm, double counterIon, double ionicStrength);

} // namespace quendal::curves
