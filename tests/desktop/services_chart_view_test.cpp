// What of a document a view shows, and on which axes.
#include "chart_pixels.h"
#include "desktop/charts/qcustomplot_chart_painter.h"
#include "desktop/windows/look.h"
#include "services_host.h"
#include "support/conductivity_chart.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

using test::drawn;
using test::pixelsLike;

constexpr QSize kPanel(428, 196);
constexpr QSize kWindow(908, 520);

class ChartViewTest : public testing::Test {
  protected:
    ChartSnapshot mine() { return ChartSnapshot::of(chart_.mine(), 8); }
    ChartSnapshot all() { return ChartSnapshot::of(chart_.all(), 8); }

    test::ServiceHost host_;
    QCustomPlotChartPainter painter_;
    ChartDocument document_{painter_, "d"};
    test::ConductivityChart chart_{document_};
};

TEST_F(ChartViewTest, TheAxesAreThoseOfTheWholeDocument) {
    const ChartSnapshot empty = mine();
    EXPECT_TRUE(empty.empty());
    EXPECT_EQ(empty.series.size(), 5U);
    EXPECT_DOUBLE_EQ(empty.xRange().upper, 20);
    EXPECT_DOUBLE_EQ(empty.yRange().upper, 50);
    for (int count = 1; count <= 21; ++count) {
        chart_.calculate(count);
        const ChartSnapshot grown = mine();
        EXPECT_FALSE(grown.empty());
        EXPECT_DOUBLE_EQ(grown.xRange().upper, empty.xRange().upper) << count;
        EXPECT_DOUBLE_EQ(grown.yRange().lower, empty.yRange().lower) << count;
        EXPECT_DOUBLE_EQ(grown.yRange().upper, empty.yRange().upper) << count;
    }
}

TEST_F(ChartViewTest, APointFarOutStillHasItsPlace) {
    chart_.calculate(3);
    document_.Series(6).Data.Add(40, 130);
    EXPECT_DOUBLE_EQ(mine().xRange().upper, 40);
    EXPECT_DOUBLE_EQ(mine().yRange().upper, 140);
}

TEST_F(ChartViewTest, RoomIsKeptForPoints) {
    chart_.mine().KeepRoomFor({30, 75});
    EXPECT_DOUBLE_EQ(mine().xRange().upper, 30);
    EXPECT_DOUBLE_EQ(mine().yRange().upper, 80);
    EXPECT_DOUBLE_EQ(all().yRange().upper, 40);
}

TEST_F(ChartViewTest, ShowsNothingOfTheOtherSeries) {
    chart_.calculate(0);
    const QImage panel = drawn(mine(), kPanel);
    const QRect plot(60, 40, 340, 90);
    EXPECT_EQ(pixelsLike(panel.copy(plot), Qt::red), 0);
    EXPECT_GT(pixelsLike(drawn(all(), kWindow).copy(60, 80, 800, 360), Qt::red), 300);
}

TEST_F(ChartViewTest, AnEmptyViewShowsItsAxesAndItsNote) {
    const QImage noted = drawn(mine(), kPanel);
    chart_.mine().emptyNote.clear();
    const QImage bare = drawn(mine(), kPanel);
    const QRect middle(100, 60, 260, 70);
    EXPECT_GT(pixelsLike(noted.copy(middle), look::kCalmInk, 60),
              pixelsLike(bare.copy(middle), look::kCalmInk, 60) + 200);
    const QRect numbers(15, 20, 25, 150);
    EXPECT_GT(pixelsLike(bare.copy(numbers), look::kInk, 60), 50);
    EXPECT_EQ(noted.copy(numbers), bare.copy(numbers));
}

TEST_F(ChartViewTest, TheNoteGoesWithTheFirstPoint) {
    chart_.calculate(1);
    const QImage noted = drawn(mine(), kPanel);
    chart_.mine().emptyNote.clear();
    EXPECT_EQ(noted, drawn(mine(), kPanel));
}

TEST_F(ChartViewTest, ALongNoteStaysInTheChart) {
    chart_.mine().emptyNote = "Dieser Satz ist so lang, dass er sich in dem kleinen Feld nur in "
                              "mehreren Zeilen schreiben lässt, ohne über dessen Rand zu laufen.";
    const QImage image = drawn(mine(), kPanel);
    EXPECT_EQ(pixelsLike(image.copy(0, 0, 2, kPanel.height()), look::kCalmInk, 60), 0);
    EXPECT_EQ(pixelsLike(image.copy(kPanel.width() - 2, 0, 2, kPanel.height()), look::kCalmInk, 60),
              0);
    const QRect firstLine(60, 70, 330, 14);
    EXPECT_GT(pixelsLike(image.copy(firstLine), look::kCalmInk, 60), 50);
}

} // namespace
} // namespace quendal
