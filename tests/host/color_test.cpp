#include "host/color.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

TEST(Color, BlendMixesByPercent) {
    const Color base{153, 204, 204};
    EXPECT_EQ(blend(base, 0, kBlack), base);
    EXPECT_EQ(blend(base, 100, {255, 150, 150}), (Color{255, 150, 150}));
    EXPECT_EQ(blend(base, 60, {255, 150, 150}), (Color{214, 172, 172}));
    EXPECT_EQ(blend(base, 30, {150, 255, 150}), (Color{152, 219, 188}));
    EXPECT_EQ(blend(base, 50, {150, 150, 255}), (Color{152, 177, 230}));
    EXPECT_EQ(blend(base, 250, kBlack), kBlack);
    EXPECT_EQ(blend(base, -5, kBlack), base);
}

TEST(Color, PaletteIsBlackOutside) {
    EXPECT_EQ(palette(12), (Color{255, 0, 0}));
    EXPECT_EQ(palette(2), (Color{0, 128, 0}));
    EXPECT_EQ(palette(9), (Color{0, 0, 255}));
    EXPECT_EQ(palette(15), kWhite);
    EXPECT_EQ(palette(-1), kBlack);
    EXPECT_EQ(palette(16), kBlack);
}

TEST(Color, Text) {
    EXPECT_EQ(colorText({1, 171, 255}), "#01abff");
}

} // namespace
} // namespace quendal
