// The points of all tasks, and what a learner calculates with at each of them.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace quendal::test {

using TaskPoint = std::tuple<double, int>; // mol/L, mL

// Every sample at every volume of the burette from this one on.
inline auto everyPoint(int firstMl) {
    return testing::Combine(testing::Values(0.6, 0.8, 1.0, 1.2, 1.4), testing::Range(firstMl, 21));
}

inline int equivalenceMl(double concentration) {
    return static_cast<int>(std::lround(10 * concentration));
}

// Another double than std::log10 gives at some places: the forms calculate in this order.
inline double lg(double x) {
    return std::log(x) / std::log(10.0);
}

} // namespace quendal::test
