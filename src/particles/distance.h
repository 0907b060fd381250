// Comparing distances without their square roots, with the very result that the roots would give.
#pragma once

#include <cmath>

namespace quendal {

inline double distanceSquare(double x1, double y1, double x2, double y2) {
    const double dx = x1 - x2;
    const double dy = y1 - y2;
    return dx * dx + dy * dy;
}

// True exactly when sqrt(a) < sqrt(b) as doubles. The root never grows where its square doesn't, so
// a >= b is settled at once; and where a is below b by more than 2^-50 of it, the true roots differ
// by more than 2^-51, while rounding moves each by at most 2^-53. Only in the narrow band between
// may two squares share one root, and only there the roots are taken.
inline bool isNearer(double a, double b) {
    constexpr double kSurely = 1.0 - 0x1.0p-50;
    return a < b && (a < b * kSurely || std::sqrt(a) < std::sqrt(b));
}

} // namespace quendal
