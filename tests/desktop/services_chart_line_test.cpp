// Fitted lines: how far they are drawn, and that they change nothing else.
#include "chart_pixels.h"
#include "desktop/charts/fitted_segments.h"
#include "services_host.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quendal {
namespace {

using test::drawn;
using test::pixelsLike;

constexpr ChartRange kXs{0, 20};
constexpr ChartRange kYs{0, 50};
constexpr double kOvershoot = 1.6; // of an axis of 20

TEST(FittedSegments, ALineAloneReachesOverTheWholeChart) {
    const auto segments =
        fittedSegments({{.slope = 1, .intercept = 5, .from = 3, .to = 9}}, kXs, kYs);
    ASSERT_EQ(segments.size(), 1U);
    EXPECT_EQ(segments[0].start.x, 0);
    EXPECT_EQ(segments[0].start.y, 5);
    EXPECT_EQ(segments[0].end.x, 20);
    EXPECT_EQ(segments[0].end.y, 25);
}

TEST(FittedSegments, LinesAreCutToTheSheet) {
    const auto segments = fittedSegments({{.slope = -10, .intercept = 100}}, kXs, kYs);
    ASSERT_EQ(segments.size(), 1U);
    EXPECT_DOUBLE_EQ(segments[0].start.x, 5);
    EXPECT_DOUBLE_EQ(segments[0].start.y, 50);
    EXPECT_DOUBLE_EQ(segments[0].end.x, 10);
    EXPECT_DOUBLE_EQ(segments[0].end.y, 0);
    const auto steep = fittedSegments({{.slope = 1e200, .intercept = -1e201}}, kXs, kYs);
    for (const ChartSegment& segment : steep) {
        EXPECT_GE(segment.start.y, 0);
        EXPECT_LE(segment.end.y, 50);
    }
}

TEST(FittedSegments, LinesBesideTheSheetAreLeftOut) {
    EXPECT_TRUE(fittedSegments({{.slope = 0, .intercept = 51}}, kXs, kYs).empty());
    EXPECT_TRUE(fittedSegments({{.slope = 0, .intercept = -1}}, kXs, kYs).empty());
    EXPECT_TRUE(fittedSegments({{.slope = 1, .intercept = 80}}, kXs, kYs).empty());
    EXPECT_TRUE(fittedSegments({{.slope = std::nan(""), .intercept = 1}}, kXs, kYs).empty());
    EXPECT_TRUE(fittedSegments({{.slope = 1, .intercept = INFINITY}}, kXs, kYs).empty());
    EXPECT_EQ(fittedSegments({{.slope = 0, .intercept = 50}}, kXs, kYs).size(), 1U);
}

// Two legs of a V that meet at (10, 10).
const FittedLine kFalling{.slope = -3, .intercept = 40, .from = 0, .to = 9};
const FittedLine kRising{.slope = 2, .intercept = -10, .from = 12, .to = 20};

TEST(FittedSegments, TwoLinesEndALittleBeyondTheirCrossing) {
    const auto segments = fittedSegments({kFalling, kRising}, kXs, kYs);
    ASSERT_EQ(segments.size(), 2U);
    EXPECT_EQ(segments[0].start.x, 0);
    EXPECT_DOUBLE_EQ(segments[0].end.x, 10 + kOvershoot);
    EXPECT_DOUBLE_EQ(segments[1].start.x, 10 - kOvershoot);
    EXPECT_EQ(segments[1].end.x, 20);
}

TEST(FittedSegments, NoLineEndsInsideItsPoints) {
    FittedLine longer = kFalling;
    longer.to = 11.5;
    const auto segments = fittedSegments({longer, kRising}, kXs, kYs);
    ASSERT_EQ(segments.size(), 2U);
    EXPECT_DOUBLE_EQ(segments[0].end.x, 10 + kOvershoot);
    longer.to = 11.9;
    EXPECT_DOUBLE_EQ(fittedSegments({longer, kRising}, kXs, kYs)[0].end.x, 12);
}

TEST(FittedSegments, NeighboursThatCrossElsewhereReachTheOthersPoints) {
    const FittedLine even{.slope = -0.01, .intercept = 7, .from = 0, .to = 9};
    const FittedLine next{.slope = -0.02, .intercept = 7.02, .from = 12, .to = 20}; // meet at 2
    for (const FittedLine& right :
         {next, FittedLine{.slope = even.slope, .intercept = 6, .from = 12, .to = 20}}) {
        const auto segments = fittedSegments({even, right}, kXs, kYs);
        ASSERT_EQ(segments.size(), 2U);
        EXPECT_EQ(segments[0].end.x, 12);
        EXPECT_EQ(segments[1].start.x, 9);
    }
}

class ChartLineTest : public testing::Test {
  protected:
    static ChartSnapshot points(std::vector<FittedLine> lines) {
        ChartSnapshot chart{.xTitle = "V in mL", .yTitle = "G"};
        ChartSeries& series = chart.series.emplace_back("x");
        series.Style = {.LineVisible = false, .MarkerVisible = true, .Colour = palette(12)};
        series.Data.Add(0, 0);
        series.Data.Add(20, 50);
        series.fittedLines = std::move(lines);
        return chart;
    }
    test::ServiceHost host_;
};

TEST_F(ChartLineTest, FittedLinesAreDashedInTheColourOfTheSeries) {
    const int without = pixelsLike(drawn(points({})), Qt::red, 60);
    const int with = pixelsLike(drawn(points({{.slope = 0, .intercept = 20}})), Qt::red, 60);
    EXPECT_GT(with, without + 300);
    EXPECT_LT(with, without + 800); // a full line has one pixel in each of 830 columns or more
}

TEST_F(ChartLineTest, FittedLinesChangeNeitherTheAxesNorTheLegend) {
    const ChartSnapshot without = points({});
    const ChartSnapshot with = points({{.slope = 40, .intercept = -300}});
    EXPECT_EQ(with.xRange().upper, without.xRange().upper);
    EXPECT_EQ(with.yRange().lower, without.yRange().lower);
    EXPECT_EQ(with.yRange().upper, without.yRange().upper);
    const QImage before = drawn(without);
    const QImage after = drawn(with);
    EXPECT_NE(after, before);
    const QRect legend(60, 20, 150, 30);
    EXPECT_EQ(after.copy(legend), before.copy(legend));
}

TEST_F(ChartLineTest, FittedLinesStayInThePlot) {
    const QImage before = drawn(points({}));
    const QImage after = drawn(points({{.slope = 40, .intercept = -300}}));
    for (const QRect& outside :
         {QRect(0, 0, 900, 12), QRect(0, 0, 48, 560), QRect(0, 514, 900, 46)}) {
        EXPECT_EQ(after.copy(outside), before.copy(outside)) << outside.x() << ' ' << outside.y();
    }
}

} // namespace
} // namespace quendal
