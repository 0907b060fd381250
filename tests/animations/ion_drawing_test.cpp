#include "animations/ion_drawing.h"
#include "animations/ion_field.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace quendal::test {
namespace {

using BoxMark = RecordingSurface::BoxMark;
using CircleMark = RecordingSurface::CircleMark;

constexpr double r = IonField::kRadius;

class IonDrawing : public testing::Test {
  protected:
    IonDrawing() {
        field.setUp([] { return 0.5; });
    }

    Ion& ion(int number) { return field.Ions[static_cast<std::size_t>(number)]; }
    void draw(Size unit = {1, 1}) { drawIons(surface, field, unit); }
    // Only this ion, which has slot 1, is looked at: all others have lost ball and sign.
    void drawOnly(const Ion& shown) {
        for (int number = 2; number <= 40; ++number) {
            ion(number) = {.Deposited = true};
        }
        ion(1) = shown;
        draw();
    }

    RecordingSurface surface{IonField::kWidth, IonField::kHeight};
    IonField field;
};

TEST_F(IonDrawing, BeginsWithTheBorder) {
    draw();
    ASSERT_EQ(surface.polygons.size(), 1U);
    EXPECT_EQ(surface.order.front(), 'p');
    EXPECT_EQ(surface.polygons[0].outline, palette(13));
    EXPECT_EQ(surface.polygons[0].corners,
              (std::vector<Point>{{0, 0}, {354, 0}, {354, 214}, {0, 214}}));
}

// Notes the way of filling at the border, which no recording keeps.
TEST_F(IonDrawing, FillsItsBallsOnly) {
    class Fills final : public Surface {
      public:
        double ScaleWidth() const override { return 355; }
        double ScaleHeight() const override { return 215; }
        Size TextSize(std::string_view, const FontSpec&) const override { return {}; }
        void Clear() override {}
        void Line(Point, Point, Color, double) override {}
        void Box(Point, Point, Color) override {}
        void Circle(Point, double, Color) override { balls += fillStyle() == FillStyle::Solid; }
        void Polygon(std::span<const Point>, Color) override {
            borders += fillStyle() == FillStyle::None;
        }
        void Text(Point, std::string_view, const FontSpec&, Color) override {}
        void Copy(const PicturePtr&, Point) override {}
        void StretchBlt(const Rect&, const PicturePtr&, const Rect&, RasterOp) override {}
        int balls = 0;
        int borders = 0;
    };
    Fills fills;
    for (int round = 1; round <= 2; ++round) {
        drawIons(fills, field, {1, 1});
        EXPECT_EQ(fills.balls, round * 20);
        EXPECT_EQ(fills.borders, round);
    }
}

struct BallRow {
    bool negative;
    bool fast;
    bool deposited;
    Color fill;
    Color rim;
};

class Balls : public IonDrawing, public testing::WithParamInterface<BallRow> {};

INSTANTIATE_TEST_SUITE_P(All, Balls,
                         testing::Values(BallRow{false, false, false, {0, 0, 255}, {0, 0, 128}},
                                         BallRow{false, false, true, {0, 0, 200}, {0, 0, 128}},
                                         BallRow{false, true, false, {100, 100, 255}, {0, 0, 180}},
                                         BallRow{false, true, true, {0, 0, 220}, {0, 0, 180}},
                                         BallRow{true, false, false, {255, 0, 0}, {128, 0, 0}},
                                         BallRow{true, false, true, {200, 0, 0}, {128, 0, 0}},
                                         BallRow{true, true, false, {255, 100, 100}, {180, 0, 0}},
                                         BallRow{true, true, true, {220, 0, 0}, {180, 0, 0}}));

TEST_P(Balls, HaveTheColoursOfTheirState) {
    const BallRow& row = GetParam();
    field.FastIons = row.fast;
    drawOnly(
        {.X = 60, .Y = 70, .Negative = row.negative, .Active = true, .Deposited = row.deposited});
    EXPECT_EQ(surface.circles, (std::vector<CircleMark>{{{60, 70}, r, row.fill, row.rim}}));
    EXPECT_EQ(surface.boxes.empty(), row.deposited);
}

TEST_F(IonDrawing, ShowsAsManyAsAreCounted) {
    for (const int count : {10, 20, 40}) {
        field.IonCount = count;
        draw();
        EXPECT_EQ(surface.circles.size(), static_cast<std::size_t>(count));
        // Half of them have a plus of two bars.
        EXPECT_EQ(surface.boxes.size(), static_cast<std::size_t>(count) * 3 / 2);
    }
}

TEST_F(IonDrawing, CountsThoseThatSit) {
    field.DepositedCount = 7;
    ion(3).Deposited = ion(20).Deposited = ion(21).Deposited = true;
    draw();
    EXPECT_EQ(field.DepositedCount, 2);
    field.IonCount = 40;
    draw();
    draw();
    EXPECT_EQ(field.DepositedCount, 3);
    field.IonCount = 10;
    draw();
    EXPECT_EQ(field.DepositedCount, 1);
}

TEST_F(IonDrawing, LeavesTheSignOfOneThatIsNotActive) {
    drawOnly({.X = 60, .Y = 70, .Active = false});
    EXPECT_TRUE(surface.circles.empty());
    EXPECT_EQ(surface.boxes.size(), 2U);
    EXPECT_EQ(field.DepositedCount, 19); // the others, active or not
}

// What a box covers: both of its corners belong to it, and an ion's place is the middle of a unit.
struct Extent {
    double left, right, top, bottom;
};

Extent around(const BoxMark& box, Point middle) {
    return {box.from.x - 0.5 - middle.x, box.to.x + 0.5 - middle.x, box.from.y - 0.5 - middle.y,
            box.to.y + 0.5 - middle.y};
}

void expectExtent(const BoxMark& box, Point middle, const Extent& shares) {
    const Extent found = around(box, middle);
    EXPECT_EQ(box.color, kWhite);
    EXPECT_NEAR(found.left, shares.left * r, 1e-9);
    EXPECT_NEAR(found.right, shares.right * r, 1e-9);
    EXPECT_NEAR(found.top, shares.top * r, 1e-9);
    EXPECT_NEAR(found.bottom, shares.bottom * r, 1e-9);
}

TEST_F(IonDrawing, SignsAreWhiteBars) {
    drawOnly({.X = 60, .Y = 70, .Negative = true, .Active = true});
    ASSERT_EQ(surface.boxes.size(), 1U);
    expectExtent(surface.boxes[0], {60, 70}, {-0.5, 0.5, -0.15, 0.15});
    drawOnly({.X = 60, .Y = 70, .Active = true});
    ASSERT_EQ(surface.boxes.size(), 2U);
    expectExtent(surface.boxes[0], {60, 70}, {-0.5, 0.5, -0.15, 0.15});
    expectExtent(surface.boxes[1], {60, 70}, {-0.15, 0.15, -0.5, 0.5});
}

TEST_F(IonDrawing, DoubleChargesHaveTwoSignsSideBySide) {
    field.DoubleCharge = true;
    drawOnly({.X = 60, .Y = 70, .Negative = true, .Active = true});
    ASSERT_EQ(surface.boxes.size(), 2U);
    expectExtent(surface.boxes[0], {60, 70}, {-0.9, -0.2, -0.1, 0.1});
    expectExtent(surface.boxes[1], {60, 70}, {0.2, 0.9, -0.1, 0.1});
    drawOnly({.X = 60, .Y = 70, .Active = true});
    ASSERT_EQ(surface.boxes.size(), 4U);
    expectExtent(surface.boxes[1], {60, 70}, {-0.65, -0.45, -0.35, 0.35});
    expectExtent(surface.boxes[3], {60, 70}, {0.45, 0.65, -0.35, 0.35});
}

// On a screen that stretches the field more on one axis, where balls stay round.
TEST_F(IonDrawing, SignsStayWithinTheirBallsOnEveryScreen) {
    field.IonCount = 40;
    for (const bool twice : {false, true}) {
        for (const Size screen : {Size{1366, 768}, Size{800, 600}, Size{768, 1024}}) {
            const double across = screen.width / 800;
            const double down = screen.height / 600;
            const double least = std::min(across, down);
            field.DoubleCharge = twice;
            draw({least / across, least / down});
            const Point middle{ion(1).X, ion(1).Y}; // all of them stand in one place
            for (const BoxMark& box : surface.boxes) {
                const Extent found = around(box, middle);
                const double x = std::max(-found.left, found.right) * across;
                const double y = std::max(-found.top, found.bottom) * down;
                EXPECT_LT(std::hypot(x, y), r * least);
            }
        }
    }
}

} // namespace
} // namespace quendal::test
