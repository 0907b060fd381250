#include "chart_pixels.h"
#include "desktop/charts/qcustomplot_chart_painter.h"
#include "desktop/pictures/picture_surface.h"
#include "desktop/windows/look.h"
#include "host/form.h"
#include "host/pictures.h"
#include "services_host.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quendal {
namespace {

using test::drawn;
using test::pixelsLike;

class ChartTest : public testing::Test {
  protected:
    ChartSnapshot curve() {
        ChartSnapshot chart{
            .xTitle = "V(NaOH) in mL", .yTitle = "pH", .series = {}, .lettering = 8};
        ChartSeries& series = chart.series.emplace_back("Messung");
        for (int i = 0; i <= 200; ++i) {
            series.Data.Add(i / 10.0, 7 + 6 * std::tanh((i - 100) / 10.0));
        }
        return chart;
    }

    test::ServiceHost host_;
};

TEST_F(ChartTest, RangesEndOnRoundNumbers) {
    const ChartSnapshot chart = curve();
    EXPECT_DOUBLE_EQ(chart.xRange().lower, 0);
    EXPECT_DOUBLE_EQ(chart.xRange().upper, 20);
    EXPECT_DOUBLE_EQ(chart.yRange().lower, 0);
    EXPECT_DOUBLE_EQ(chart.yRange().upper, 14);
}

TEST_F(ChartTest, RangesOfOddSeriesAreUsable) {
    ChartSnapshot chart;
    EXPECT_DOUBLE_EQ(chart.xRange().upper, 20);
    EXPECT_DOUBLE_EQ(chart.yRange().upper, 14);
    chart.series.emplace_back("x").Data.Add(std::nan(""), 1);
    EXPECT_TRUE(chart.empty());
    chart.series.emplace_back("y").Data.Add(5, 5);
    EXPECT_FALSE(chart.empty());
    EXPECT_LT(chart.xRange().lower, chart.xRange().upper);
    chart.series.back().Data.Add(1e300, -1e300);
    EXPECT_TRUE(std::isfinite(chart.yRange().lower));
}

TEST_F(ChartTest, StepsAreOneTwoOrFive) {
    EXPECT_DOUBLE_EQ(roundStep(20, 8), 5);
    EXPECT_DOUBLE_EQ(roundStep(14, 8), 2);
    EXPECT_DOUBLE_EQ(roundStep(0.8, 8), 0.1);
    EXPECT_DOUBLE_EQ(roundStep(0, 8), 1);
    EXPECT_DOUBLE_EQ(roundStep(INFINITY, 8), 1);
}

TEST_F(ChartTest, TheLegendGoesWhereNoPointsAre) {
    EXPECT_EQ(curve().freeCorner(), ChartSnapshot::Corner::TopLeft);
    ChartSnapshot falling;
    ChartSeries& series = falling.series.emplace_back("f");
    for (int i = 0; i <= 100; ++i) {
        series.Data.Add(i, 100 - i);
    }
    EXPECT_EQ(falling.freeCorner(), ChartSnapshot::Corner::TopRight);
}

TEST_F(ChartTest, ShowsCurvePointsAndLetters) {
    ChartSnapshot chart = curve();
    const QImage bare = drawn(chart);
    EXPECT_GT(pixelsLike(bare, look::kAccent), 1500);
    EXPECT_EQ(pixelsLike(bare, Qt::red), 0);
    EXPECT_GT(pixelsLike(bare, look::kInk), 300); // titles and numbers

    ChartSeries& mine = chart.series.emplace_back("Meine pH-Rechnungen");
    mine.Style = {.LineVisible = false,
                  .MarkerVisible = true,
                  .MarkerStyle = Marker::FilledCircle,
                  .Colour = palette(12)};
    mine.Data.Add(5, 0.5);
    const QImage one = drawn(chart);
    const int red = pixelsLike(one, Qt::red);
    EXPECT_GT(red, 60); // the point and its sign in the legend
    mine.Data.Add(15, 12.5);
    EXPECT_GT(pixelsLike(drawn(chart), Qt::red), red + 30);
}

TEST_F(ChartTest, TitlesStandAtTheAxes) {
    ChartSnapshot chart = curve();
    const QImage with = drawn(chart);
    chart.xTitle.clear();
    chart.yTitle.clear();
    const QImage without = drawn(chart);
    EXPECT_NE(with.copy(0, 520, 900, 40), without.copy(0, 520, 900, 40));
    EXPECT_NE(with.copy(0, 0, 40, 560), without.copy(0, 0, 40, 560));
}

TEST_F(ChartTest, ASeriesHasItsColour) {
    ChartSnapshot chart = curve();
    chart.series[0].Style.Colour = palette(12);
    const QImage red = drawn(chart);
    EXPECT_EQ(pixelsLike(red, look::kAccent), 0);
    EXPECT_GT(pixelsLike(red, Qt::red), 1500);
}

TEST_F(ChartTest, SeriesWithoutColourAreToldApart) {
    ChartSnapshot chart = curve();
    for (const Point point : {Point{0, 2}, Point{20, 3}}) {
        chart.series.emplace_back("Zweite").Data.Add(point.x, point.y);
    }
    chart.series[1].Data.Add(20, 5);
    const QImage image = drawn(chart);
    EXPECT_GT(pixelsLike(image, look::kAccent), 1500);
    EXPECT_GT(pixelsLike(image, look::kFocus), 1000);
}

// The pure yellow and green of the particles can't be seen on a white sheet.
TEST_F(ChartTest, PaleColoursAreDarkened) {
    for (const Color pale : {Color{255, 255, 0}, Color{0, 255, 0}}) {
        ChartSnapshot chart = curve();
        chart.series[0].Style.Colour = pale;
        const QColor shown =
            look::readable(look::toQColor(pale), look::kPanel, look::kShapeContrast);
        const QImage image = drawn(chart);
        EXPECT_EQ(pixelsLike(image, look::toQColor(pale)), 0);
        EXPECT_GT(pixelsLike(image, shown), 1500);
        EXPECT_GE(look::contrast(shown, look::kPanel), 3);
    }
}

TEST_F(ChartTest, NumbersHaveTheSignOfTheLocale) {
    ChartSnapshot chart;
    chart.series.emplace_back("x").Data.Add(0, 0);
    chart.series.back().Data.Add(0.5, 0.5);
    host_.fake.numbers.setDecimalSign(DecimalSign::Comma);
    const QImage comma = drawn(chart);
    host_.fake.numbers.setDecimalSign(DecimalSign::Point);
    const QImage point = drawn(chart);
    EXPECT_NE(comma, point);
    const QRect plot(100, 0, 780, 500); // beside the numbers
    EXPECT_EQ(comma.copy(plot), point.copy(plot));
}

TEST_F(ChartTest, OddSizesDrawNothingWorseThanNothing) {
    EXPECT_TRUE(plotChart(curve(), {0, 100}, 1).isNull());
    EXPECT_FALSE(plotChart(curve(), {20, 10}, 1).isNull());
    EXPECT_EQ(drawn(curve(), {1800, 1120}, 2).size(), QSize(1800, 1120));
}

TEST_F(ChartTest, APictureBoxShowsItAfterTheDocumentHasGone) {
    class Holder final : public Form {
      public:
        Holder() : Form("frm_H", {300, 200}) { pic.setPlace(0, 0, 300, 200); }
        PictureBox pic{*this, "pic"};
    };
    Holder form;
    PictureSurface surface(form.pic);
    form.pic.attachSurface(&surface);
    QCustomPlotChartPainter painter;
    {
        ChartDocument document(painter, "d");
        ChartSeries& series = document.AddSeries(1, "Kurve");
        series.Data.Add(0, 0);
        series.Data.Add(20, 14);
        document.View().RenderTo(form.pic, 0, 0, 8.0);
    }
    surface.finish();
    const QImage image = surface.image({600, 400}, 2);
    EXPECT_GT(pixelsLike(image, look::kAccent), 500);
    form.pic.attachSurface(nullptr);
    ChartDocument other(painter, "o");
    other.View().RenderTo(form.pic, 0, 0, 8.0); // no surface: nobody sees it, nothing happens
}

} // namespace
} // namespace quendal
