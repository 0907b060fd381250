// What every titration of the program begins with.
#pragma once

namespace quendal {

inline constexpr double kSampleVolume = 0.01;      // L
inline constexpr double kReagentConcentration = 1; // mol/L

} // namespace quendal
