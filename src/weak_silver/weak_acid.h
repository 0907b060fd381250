// The pH of a weak acid during its titration with a strong base. Which formula holds is read off
// the particles in the beaker, what goes into it off the amounts of substance.
#pragma once

#include <optional>

namespace quendal {

// Acid constant of acetic acid at 25 °C as school books have it.
inline constexpr double kPKs = 4.76;

enum class WeakCase {
    Acid = 1,       // no base yet
    Buffer = 2,     // acid beside its base
    Base = 3,       // the equivalence point: all acid has become its base
    BaseExcess = 4, // hydroxide is left over
};

// `concentration` of the acid in mol/L; `acidParticles` and `hydroxideParticles` as counted in the
// beaker, one for each mmol. None for counts that can't occur.
std::optional<WeakCase> weakCaseOf(double concentration, int acidParticles, int hydroxideParticles);

// Amounts of a point that the formulas work on.
struct WeakAmounts {
    double concentration = 0; // mol/L of the acid
    double acidMol = 0;
    double baseMol = 0;
    double totalVol = 0; // L in the beaker, above 0
};

struct WeakReading {
    double pH = 0;
    double conc = 0;              // mol/L: of the acid, with base in excess that of the excess
    std::optional<double> excess; // mol, only with base in excess
    std::optional<double> pOH;    // only with base in excess
};

// None where the formula of the case has no value: a buffer without base.
std::optional<WeakReading> weakReading(WeakCase which, const WeakAmounts& amounts);

} // namespace quendal
