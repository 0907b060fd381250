#include "host/virtual_clock.h"

#include <algorithm>
#include <cmath>

namespace quendal {

void VirtualClock::SleepMs(double milliseconds) {
    if (beforeSleep) {
        beforeSleep();
    }
    if (milliseconds > 0) {
        microseconds_ += std::llround(milliseconds * 1000.0);
    }
}

void VirtualClock::advanceTo(double seconds) {
    // Upwards, so that what is due at `seconds` is due after the move.
    microseconds_ =
        std::max(microseconds_, static_cast<std::int64_t>(std::ceil(seconds * 1e6 - 1e-6)));
}

} // namespace quendal
