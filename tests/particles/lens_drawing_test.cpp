#include "particles/lens_drawing.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

namespace quendal::test {
namespace {

using CircleMark = RecordingSurface::CircleMark;
using BoxMark = RecordingSurface::BoxMark;

class Ball : public testing::Test {
  protected:
    RecordingSurface surface{280, 249};
};

TEST_F(Ball, IsAFilledCircleWithAnOutline) {
    hDrawBall(surface, 50, 60, 10, palette(2), false, palette(12), false, false);
    EXPECT_EQ(surface.circles, (std::vector<CircleMark>{{{50, 60}, 10, palette(2), kBlack}}));
    EXPECT_TRUE(surface.boxes.empty());
}

TEST_F(Ball, HasItsHaloBehindIt) {
    hDrawBall(surface, 50, 60, 5, palette(1), true, palette(12), false, false);
    EXPECT_EQ(surface.circles, (std::vector<CircleMark>{{{50, 60}, 7, palette(12), palette(12)},
                                                        {{50, 60}, 5, palette(1), kBlack}}));
}

TEST_F(Ball, BearsAWhiteSign) {
    hDrawBall(surface, 50, 60, 10, palette(2), false, palette(2), true, false);
    const BoxMark level{{44.5, 59}, {55.5, 61}, kWhite}; // 12 by 3, both corners included
    EXPECT_EQ(surface.boxes, std::vector<BoxMark>{level});
    EXPECT_EQ(surface.order, "cb");
    surface.Clear();
    hDrawBall(surface, 50, 60, 10, palette(2), false, palette(2), false, true);
    EXPECT_EQ(surface.boxes, (std::vector<BoxMark>{level, {{49, 54.5}, {51, 65.5}, kWhite}}));
}

TEST_F(Ball, FillsOnlyAroundItsCircles) {
    surface.setFillStyle(FillStyle::Solid);
    hDrawBall(surface, 50, 60, 10, palette(2), true, palette(12), true, true);
    EXPECT_EQ(surface.fillStyle(), FillStyle::None);
}

TEST_F(Ball, SignsKeepTheirShapeWhereTheScreenStretchesThem) {
    drawSign(surface, {50, 60}, 10, IonSign::Plus, kBlack, 3, {0.5, 1});
    EXPECT_EQ(surface.boxes, (std::vector<BoxMark>{{{47.5, 59}, {52.5, 61}, kBlack},
                                                   {{49.75, 54.5}, {50.25, 65.5}, kBlack}}));
}

} // namespace
} // namespace quendal::test
