#include "shell/movie_pen.h"

#include "movie_marks.h"

#include <gtest/gtest.h>

#include <array>

namespace quendal::test {
namespace {

class Pen : public testing::Test {
  protected:
    RecordingSurface surface{200, 100};
    MoviePen pen{surface};
};

TEST_F(Pen, PrintsCentredAndPutsTheColourBack) {
    pen.hXPrint(100, 50, "abcd");
    pen.hXPrint(100, 50, "abcd", kRed);
    const Size size = estimatedTextSize("abcd", kMovieFont);
    ASSERT_EQ(surface.texts.size(), 2U);
    EXPECT_EQ(surface.texts[0].place, (Point{100 - size.width / 2, 50 - size.height / 2}));
    EXPECT_EQ(surface.texts[0].color, kBlack);
    EXPECT_EQ(surface.texts[0].font, kMovieFont);
    EXPECT_EQ(surface.texts[1].color, kRed);
    EXPECT_EQ(pen.color(), kBlack);
}

TEST_F(Pen, LowersTheMOfTheMolarVolume) {
    pen.hXPrint(100, 50, "VM", kRed);
    ASSERT_EQ(surface.texts.size(), 2U);
    const auto& v = surface.texts[0];
    const auto& m = surface.texts[1];
    EXPECT_EQ(v.text, "V");
    EXPECT_EQ(m.text, "M");
    EXPECT_EQ(v.color, kRed);
    EXPECT_EQ(m.color, kRed);
    EXPECT_DOUBLE_EQ(v.place.x, 100 - estimatedTextSize("VM", kMovieFont).width / 2);
    EXPECT_DOUBLE_EQ(m.place.x, v.place.x + estimatedTextSize("V", kMovieFont).width);
    EXPECT_DOUBLE_EQ(m.place.y, v.place.y + 10);
}

TEST_F(Pen, FadesFromNothingToBlack) {
    struct Row {
        double fade;
        int grey;
    };
    // Halves go to the even number.
    for (const Row& row :
         std::array<Row, 6>{{{9.5, 242}, {5, 128}, {3, 76}, {1, 26}, {0.5, 13}, {0, 0}}}) {
        surface.Clear();
        pen.hFadePrint(100, 50, row.fade, "=");
        pen.hFadeBox(10, 20, 30, 24, row.fade);
        const auto channel = static_cast<std::uint8_t>(row.grey);
        const Color grey{channel, channel, channel};
        ASSERT_EQ(surface.texts.size(), 1U);
        EXPECT_EQ(surface.texts[0].color, grey) << row.fade;
        using Lines = std::vector<RecordingSurface::LineMark>;
        EXPECT_EQ(surface.lines, (Lines{{{10, 20}, {30, 20}, grey},
                                        {{30, 20}, {30, 24}, grey},
                                        {{30, 24}, {10, 24}, grey},
                                        {{10, 24}, {10, 20}, grey}}));
        EXPECT_EQ(pen.color(), kBlack);
    }
    surface.Clear();
    pen.hFadePrint(100, 50, 10, "=");
    pen.hFadeBox(10, 20, 30, 24, 10);
    EXPECT_TRUE(surface.order.empty());
}

TEST_F(Pen, MovesOnWholeUnits) {
    struct Row {
        double t;
        Point at;
    };
    // From (10, 21) to (15, 12); 12.5 and 16.5 go to the even neighbour.
    for (const Row& row : std::array<Row, 5>{
             {{0, {10, 21}}, {1, {10, 20}}, {5, {12, 16}}, {7, {14, 15}}, {10, {15, 12}}}}) {
        surface.Clear();
        pen.hMovePrint(10, 21, 15, 12, row.t, "c", kRed);
        ASSERT_EQ(surface.texts.size(), 1U);
        EXPECT_NEAR(middle(surface.texts[0]).x, row.at.x, 1e-9) << row.t;
        EXPECT_NEAR(middle(surface.texts[0]).y, row.at.y, 1e-9) << row.t;
        EXPECT_EQ(surface.texts[0].color, kRed);
    }
}

TEST_F(Pen, PaintsTheBulletOfTheSymbolFontAsADot) {
    pen.setFont({.family = "Marlett", .size = points(10), .bold = true});
    pen.hFadePrint(100, 50, 5, "h");
    EXPECT_TRUE(surface.texts.empty());
    ASSERT_EQ(surface.circles.size(), 1U);
    EXPECT_EQ(surface.circles[0].centre, (Point{100, 50}));
    EXPECT_EQ(surface.circles[0].fill, (Color{128, 128, 128}));
    EXPECT_EQ(surface.circles[0].outline, (Color{128, 128, 128}));
    pen.setFont(kMovieFont);
    pen.hXPrint(100, 50, "h");
    ASSERT_EQ(surface.texts.size(), 1U);
    EXPECT_EQ(surface.texts[0].text, "h");
}

} // namespace
} // namespace quendal::test
