// Volumes at which a calculation is required.
#pragma once

namespace quendal {

// In mL of titrant, with "," between them: the start, 1, half the equivalence volume, one before
// it, the volume itself, one after it, and twice the volume cut off at 20. Null for any
// concentration (mol/L) but the five of the list; the comparison is exact.
const char* requiredPointsFor(double concentration);

} // namespace quendal
