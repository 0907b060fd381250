#include "particles/lens_glass.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace quendal::test {
namespace {

constexpr Size kPlain{1, 1};

TEST(LensGlass, LiesInTheFrameOfTheLens) {
    for (const Point& point : glassOutline(kPlain)) {
        EXPECT_TRUE(point.x > 85 && point.x < 480 && point.y > 20 && point.y < 420);
    }
    const GlassOutline wide = glassOutline({3, 2});
    EXPECT_NEAR(wide.front().x, glassOutline(kPlain).front().x * 3, 1e-9);
    EXPECT_NEAR(wide.front().y, glassOutline(kPlain).front().y * 2, 1e-9);
}

TEST(LensGlass, HoldsTheCornersOfTheScene) {
    for (const Point corner : {Point{143, 96}, Point{423, 96}, Point{143, 345}, Point{423, 345}}) {
        EXPECT_TRUE(insideGlass(corner, 0, kPlain));
    }
    EXPECT_FALSE(insideGlass({85, 20}, 0, kPlain));
    EXPECT_FALSE(insideGlass({282, 410}, 10, kPlain)); // reaches over the rim
    EXPECT_TRUE(insideGlass({282, 410}, -10, kPlain));
    EXPECT_FALSE(insideGlass({282, 440}, -10, kPlain));
}

TEST(LensGlass, CutsBallsAtTheRim) {
    for (const Size unit : {kPlain, Size{2.5, 1.7}}) {
        const Point centre{282 * unit.width, 410 * unit.height};
        int kept = 0;
        for (const Point& point : ballInGlass(centre, 12, unit)) {
            EXPECT_TRUE(insideGlass(point, -1e-6, unit));
            kept += std::abs(std::hypot(point.x - centre.x, point.y - centre.y) - 12) < 1e-9;
        }
        EXPECT_GT(kept, 0); // the part inside is still round
        EXPECT_LT(kept, 32);
    }
}

TEST(LensGlass, HasACrystalOfIonsInTurn) {
    const auto ions = crystalIons();
    EXPECT_EQ(ions.size(), 100U);
    EXPECT_EQ(ions.front().centre, (Point{95, 320})); // 10 and 300 from the frame's corner
    EXPECT_EQ(ions.back().centre, (Point{475, 400}));
    for (std::size_t i = 0; i < ions.size(); ++i) {
        const std::size_t row = i / 20 + 1;
        const std::size_t column = i % 20 + 1;
        EXPECT_EQ(ions[i].sign, (row + column) % 2 == 0 ? IonSign::Minus : IonSign::Plus);
        EXPECT_EQ(ionColor(ions[i].sign), palette((row + column) % 2 == 0 ? 2 : 7));
    }
}

TEST(LensGlass, RoundsTheCornersOfABox) {
    const auto outline = roundedBox({10, 20, 100, 40}, 8);
    const auto [left, right] = std::minmax_element(outline.begin(), outline.end(),
                                                   [](Point a, Point b) { return a.x < b.x; });
    EXPECT_NEAR(left->x, 10, 1e-9);
    EXPECT_NEAR(right->x, 110, 1e-9);
    for (const Point& point : outline) {
        EXPECT_GT(std::hypot(point.x - 10, point.y - 20), 3); // nothing in the corner itself
    }
}

} // namespace
} // namespace quendal::test
