#include "desktop/services/desktop_clock.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace quendal {

namespace {

// Taken before main begins, so that times count from the start of the process.
const std::chrono::steady_clock::time_point kStart = std::chrono::steady_clock::now();

// No routine of the program sleeps longer; a broken number must not put the program to sleep.
constexpr double kLongestSleepMs = 60000;

} // namespace

double DesktopClock::Now() const {
    const auto passed = std::chrono::steady_clock::now() - kStart;
    const auto whole = std::chrono::duration_cast<std::chrono::microseconds>(passed).count();
    return static_cast<double>(whole) / 1e6;
}

void DesktopClock::SleepMs(double milliseconds) {
    if (beforeSleep) {
        beforeSleep();
    }
    if (milliseconds > 0) {
        const double bounded = std::min(milliseconds, kLongestSleepMs);
        std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(bounded));
    }
}

} // namespace quendal
