#include "particles/distance.h"

#include "support/fake_roots.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quendal::test {
namespace {

bool rootsCompare(double a, double b) {
    return std::sqrt(a) < std::sqrt(b);
}

TEST(Distance, DifferentSquaresMayShareOneRoot) {
    const double above = std::nextafter(2.0, 3.0);
    ASSERT_EQ(std::sqrt(above), std::sqrt(2.0));
    EXPECT_FALSE(isNearer(2.0, above));
    EXPECT_TRUE(isNearer(2.0, 2.000000001));
    EXPECT_FALSE(isNearer(2.0, 2.0));
    EXPECT_FALSE(isNearer(2.0, 1.0));
}

TEST(Distance, AgreesWithRootsNearEveryMagnitude) {
    SeededRandom random;
    int shared = 0;
    for (int round = 0; round < 400'000; ++round) {
        const double a =
            std::ldexp(0.5 + random.next() / 2, static_cast<int>(random.next() * 60) - 30);
        double b = a;
        for (int steps = static_cast<int>(random.next() * 12); steps > 0; --steps) {
            b = std::nextafter(b, 1e300);
        }
        ASSERT_EQ(isNearer(a, b), rootsCompare(a, b)) << a << " " << b;
        ASSERT_EQ(isNearer(b, a), rootsCompare(b, a)) << a << " " << b;
        shared += a < b && !isNearer(a, b) ? 1 : 0;
    }
    EXPECT_GT(shared, 1000); // the narrow band was met
}

TEST(Distance, AgreesWithRootsAtTheEndsOfTheRange) {
    constexpr double kTiny = std::numeric_limits<double>::denorm_min();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    constexpr double kLargest = std::numeric_limits<double>::max();
    const double values[] = {0.0,   -0.0,     kTiny,     2 * kTiny, 3 * kTiny,    1e-310,
                             1e300, kLargest, kInfinity, kNan,      4096 * kTiny, 4097 * kTiny};
    for (const double a : values) {
        for (const double b : values) {
            EXPECT_EQ(isNearer(a, b), rootsCompare(a, b)) << a << " " << b;
        }
    }
}

} // namespace
} // namespace quendal::test
