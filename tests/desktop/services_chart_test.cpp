#include "desktop/charts/chart_plot.h"
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

int pixelsLike(const QImage& image, const QColor& wanted, int tolerance = 30) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            count += std::abs(c.red() - wanted.red()) <= tolerance &&
                             std::abs(c.green() - wanted.green()) <= tolerance &&
                             std::abs(c.blue() - wanted.blue()) <= tolerance
                         ? 1
                         : 0;
        }
    }
    return count;
}

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
    static QImage draw(const ChartSnapshot& chart, QSize size = {900, 560}, double scale = 1) {
        return plotChart(chart, size, scale).toImage();
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
    const QImage bare = draw(chart);
    EXPECT_GT(pixelsLike(bare, look::kAccent), 1500);
    EXPECT_EQ(pixelsLike(bare, Qt::red), 0);
    EXPECT_GT(pixelsLike(bare, look::kInk), 300); // titles and numbers

    ChartSeries& mine = chart.series.emplace_back("Meine pH-Rechnungen");
    mine.Style = {.LineVisible = false, .MarkerVisible = true, .MarkerStyle = 2};
    mine.Style.Colour = palette(12);
    mine.Data.Add(5, 0.5);
    const QImage one = draw(chart);
    const int red = pixelsLike(one, Qt::red);
    EXPECT_GT(red, 60); // the point and its sign in the legend
    mine.Data.Add(15, 12.5);
    EXPECT_GT(pixelsLike(draw(chart), Qt::red), red + 30);
}

TEST_F(ChartTest, TitlesStandAtTheAxes) {
    ChartSnapshot chart = curve();
    const QImage with = draw(chart);
    chart.xTitle.clear();
    chart.yTitle.clear();
    const QImage without = draw(chart);
    EXPECT_NE(with.copy(0, 520, 900, 40), without.copy(0, 520, 900, 40));
    EXPECT_NE(with.copy(0, 0, 40, 560), without.copy(0, 0, 40, 560));
}

TEST_F(ChartTest, FittedLinesReachOverTheWholeChart) {
    ChartSnapshot chart = curve();
    chart.series[0].Style.Colour = palette(12);
    const int before = pixelsLike(draw(chart), look::kAccent.darker(115));
    chart.series[0].fittedLines.push_back({.slope = 0, .intercept = 4});
    chart.series[0].fittedLines.push_back({.slope = std::nan(""), .intercept = 4});
    EXPECT_GT(pixelsLike(draw(chart), look::kAccent.darker(115)), before + 400);
}

TEST_F(ChartTest, AnEmptyChartHasAxesAndAWord) {
    const QImage image = draw({});
    EXPECT_GT(pixelsLike(image, look::kCalmInk), 300);
    EXPECT_GT(pixelsLike(image, look::kInk), 50); // numbers at the axes
}

TEST_F(ChartTest, OddSizesDrawNothingWorseThanNothing) {
    EXPECT_TRUE(plotChart(curve(), {0, 100}, 1).isNull());
    EXPECT_FALSE(plotChart(curve(), {20, 10}, 1).isNull());
    EXPECT_EQ(draw(curve(), {1800, 1120}, 2).size(), QSize(1800, 1120));
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
