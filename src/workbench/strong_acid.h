// The pH of a strong acid during its titration with a strong base: plain arithmetic on amounts of
// substance, with the ionic product of water built in as 14 and 7.
#pragma once

#include "workbench/guidance/point_values.h"

namespace quendal {

enum class Excess { None, Acid, Base };

// Which amount is larger. Amounts that differ by less than the resolution of a double near 1 count
// as equal: 1.4 times 0.01 and 0.014 are the equivalence point though they aren't the same double.
Excess excessOf(double acidMol, double baseMol);

// Reference values of a point: `concentration` in mol/L of 10 mL of acid, `baseVol` in L of base of
// 1 mol/L, `totalVol` in L of the beaker, above 0.
PointValues strongAcidPoint(double concentration, double baseVol, double totalVol);

} // namespace quendal
