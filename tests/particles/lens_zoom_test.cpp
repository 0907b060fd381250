#include "particles/lens_zoom.h"

#include <gtest/gtest.h>

#include <limits>

namespace quendal::test {
namespace {

constexpr Size kScreen{1000, 800};

TEST(LensZoom, CountsWholeHundredthsOfASecond) {
    const struct {
        double seconds;
        int hundredths;
    } rows[] = {{0, 0},      {0.0099, 0}, {0.01, 1},  {0.5, 50},
                {0.999, 99}, {1.0, 100},  {7.0, 100}, {-3.0, 0}};
    for (const auto& row : rows) {
        EXPECT_EQ(zoomHundredths(row.seconds), row.hundredths) << row.seconds;
    }
}

TEST(LensZoom, GoesFromTheSourceToTheWhole) {
    const Rect source{100, 200, 300, 100};
    EXPECT_EQ(zoomedRect(source, kScreen, 0), source);
    EXPECT_EQ(zoomedRect(source, kScreen, 50), (Rect{50, 100, 650, 450}));
    EXPECT_EQ(zoomedRect(source, kScreen, 100), (Rect{0, 0, 1000, 800}));
}

TEST(LensZoom, PutsTheEdgesInOrder) {
    EXPECT_EQ(sourceOnScreen(100, 200, 400, 300, kScreen), (Rect{100, 200, 300, 100}));
    EXPECT_EQ(sourceOnScreen(400, 300, 100, 200, kScreen), (Rect{100, 200, 300, 100}));
    EXPECT_EQ(sourceOnScreen(100, 300, 400, 200, kScreen), (Rect{100, 200, 300, 100}));
}

TEST(LensZoom, CutsOffWhatLiesOffTheScreen) {
    EXPECT_EQ(sourceOnScreen(-50, 700, 2000, 900, kScreen), (Rect{0, 700, 1000, 100}));
    EXPECT_EQ(sourceOnScreen(5000, 5000, 6000, 6000, kScreen), (Rect{1000, 800, 0, 0}));
    constexpr double kLeast = std::numeric_limits<int>::min();
    constexpr double kMost = std::numeric_limits<int>::max();
    EXPECT_EQ(sourceOnScreen(kMost, kMost, kLeast, kLeast, kScreen), (Rect{0, 0, 1000, 800}));
}

TEST(LensZoom, StartsFromAPoint) {
    const Rect point = sourceOnScreen(250, 400, 250, 400, kScreen);
    EXPECT_EQ(zoomedRect(point, kScreen, 0), (Rect{250, 400, 0, 0}));
    EXPECT_EQ(zoomedRect(point, kScreen, 10), (Rect{225, 360, 100, 80}));
}

TEST(LensZoom, MagnifiesAPixelAtLeast) {
    EXPECT_EQ(magnifiedPart({100, 200, 300, 100}, kScreen), (Rect{100, 200, 300, 100}));
    EXPECT_EQ(magnifiedPart({250, 400, 0, 0}, kScreen), (Rect{250, 400, 1, 1}));
    EXPECT_EQ(magnifiedPart({1000, 800, 0, 0}, kScreen), (Rect{999, 799, 1, 1}));
    EXPECT_EQ(magnifiedPart({100, 0, 1000, 900}, {600, 500}), (Rect{0, 0, 600, 500}));
}

} // namespace
} // namespace quendal::test
