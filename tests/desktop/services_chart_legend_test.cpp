// Legends and signs: series are told apart.
#include "chart_pixels.h"
#include "desktop/charts/chart_legend.h"
#include "desktop/charts/chemical_term.h"
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

class ChartLegendTest : public testing::Test {
  protected:
    ChartSnapshot mine() { return ChartSnapshot::of(chart_.mine(), 8); }
    ChartSnapshot all() { return ChartSnapshot::of(chart_.all(), 8); }
    static ChartSnapshot withSeries(int count, bool points = true) {
        ChartSnapshot chart;
        for (int i = 0; i < count; ++i) {
            chart.series.emplace_back("Reihe " + std::to_string(i + 1));
            if (points) {
                chart.series.back().Data.Add(i, i);
            }
        }
        return chart;
    }

    test::ServiceHost host_;
    QCustomPlotChartPainter painter_;
    ChartDocument document_{painter_, "d"};
    test::ConductivityChart chart_{document_};
};

TEST_F(ChartLegendTest, TheKindFollowsTheRoomAndTheSeries) {
    EXPECT_EQ(legendKind(withSeries(2), kWindow), LegendKind::Corner);
    EXPECT_EQ(legendKind(withSeries(6), kWindow), LegendKind::Corner);
    EXPECT_EQ(legendKind(withSeries(7), kWindow), LegendKind::Rows);
    EXPECT_EQ(legendKind(withSeries(10), kWindow), LegendKind::Rows);
    EXPECT_EQ(legendKind(withSeries(5), kPanel), LegendKind::Line);
    EXPECT_EQ(legendKind(withSeries(5), {200, 196}), LegendKind::None);
    EXPECT_EQ(legendKind(withSeries(5), {428, 100}), LegendKind::None);
    EXPECT_EQ(legendKind(withSeries(0), kWindow), LegendKind::None);
}

// A graph that begins empty doesn't move when its first point comes.
TEST_F(ChartLegendTest, AnEmptyPanelHasItsLegendAndAnEmptyWindowNone) {
    EXPECT_EQ(legendKind(withSeries(5, false), kPanel), LegendKind::Line);
    EXPECT_EQ(legendKind(withSeries(2, false), kWindow), LegendKind::None);
}

// The part above the plot, where nothing else is drawn.
QImage above(const QImage& chart, double scale = 1) {
    return chart.copy(0, 0, chart.width(), static_cast<int>(24 * scale));
}

int columnsWithInk(const QImage& image, int fromRight) {
    const QRect edge(image.width() - fromRight, 0, fromRight, image.height());
    return edge.width() * edge.height() - pixelsLike(image.copy(edge), look::kPanel, 2);
}

TEST_F(ChartLegendTest, ThePanelHasAllSignsAndShortNamesInOneLine) {
    const std::vector<QColor> colours = {Qt::black, Qt::red, QColor(0, 128, 0), Qt::blue,
                                         QColor(0, 0, 128)};
    for (const double scale : {1.0, 768.0 / 690, 1080.0 / 690}) {
        const QImage legend = above(drawn(mine(), (QSizeF(kPanel) * scale).toSize(), scale), scale);
        for (const QColor& colour : colours) {
            EXPECT_GT(pixelsLike(legend, colour), 15) << scale << colour.name().toStdString();
        }
        EXPECT_EQ(columnsWithInk(legend, 10), 0) << scale;
    }
}

TEST_F(ChartLegendTest, TheShortNameIsShownInALine) {
    const QImage shortNames = above(drawn(mine(), kPanel));
    for (int i = 1; i <= document_.seriesCount(); ++i) {
        document_.Series(i).name = "x";
    }
    EXPECT_EQ(above(drawn(mine(), kPanel)), shortNames);
    for (int i = 1; i <= document_.seriesCount(); ++i) {
        document_.Series(i).shortName.clear();
    }
    EXPECT_NE(above(drawn(mine(), kPanel)), shortNames);
}

TEST_F(ChartLegendTest, LongNamesTakeMoreLinesAndTooManyNone) {
    chart_.calculate(5);
    const auto plotTop = [&] { // at its right end, where no name reaches
        const QImage image = drawn(mine(), kPanel);
        int y = 0;
        while (y < image.height() && pixelsLike(image.copy(408, y, 6, 1), look::kPanel, 2) == 6) {
            ++y;
        }
        return y;
    };
    const int oneLine = plotTop();
    for (int i = 6; i <= 10; ++i) {
        document_.Series(i).shortName = "Leitwert";
    }
    const int moreLines = plotTop();
    EXPECT_GT(moreLines, oneLine + 12);
    for (int i = 6; i <= 10; ++i) {
        document_.Series(i).shortName = "Ein Name, der für sich allein eine Zeile braucht, ja zwei";
    }
    EXPECT_LT(plotTop(), oneLine);
}

TEST_F(ChartLegendTest, ReferenceAndOwnSeriesStandUnderEachOther) {
    chart_.calculate(21);
    const QImage image = drawn(all(), kWindow);
    for (const QColor& colour : {QColor(Qt::red), QColor(0, 128, 0), QColor(Qt::blue)}) {
        int left[2] = {-1, -1};
        int right[2] = {-1, -1};
        for (const int row : {0, 1}) {
            for (int x = 0; x < image.width(); ++x) {
                if (pixelsLike(image.copy(x, 5 + 22 * row, 1, 20), colour) > 0) {
                    left[row] = left[row] < 0 ? x : left[row];
                    right[row] = x;
                }
            }
            ASSERT_GE(left[row], 0) << row << colour.name().toStdString();
        }
        EXPECT_NEAR(left[0] + right[0], left[1] + right[1], 3); // the middles of line and marker
        EXPECT_GT(right[0] - left[0], right[1] - left[1]);      // a line over a marker
    }
}

QImage onePoint(Marker marker) {
    ChartSnapshot chart;
    ChartSeries& series = chart.series.emplace_back("x");
    series.Style = {
        .LineVisible = false, .MarkerVisible = true, .MarkerStyle = marker, .Colour = palette(12)};
    series.Data.Add(10, 7);
    chart.sheet.include(Point{0, 0});
    chart.sheet.include(Point{20, 14});
    return drawn(chart, {250, 120}).copy(60, 0, 190, 90);
}

int differing(const QImage& one, const QImage& other) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const int step = one.pixelColor(x, y).green() - other.pixelColor(x, y).green();
            count += std::abs(step) > 100 ? 1 : 0;
        }
    }
    return count;
}

TEST_F(ChartLegendTest, MarkersAreToldApartByTheirShapes) {
    const Marker markers[] = {Marker::FilledCircle, Marker::Square, Marker::Triangle,
                              Marker::Diamond, Marker::TriangleDown};
    for (const Marker one : markers) {
        EXPECT_GT(pixelsLike(onePoint(one), Qt::red), 8);
        for (const Marker other : markers) {
            if (one != other) {
                EXPECT_GE(differing(onePoint(one), onePoint(other)), 4)
                    << static_cast<int>(one) << ' ' << static_cast<int>(other);
            }
        }
    }
}

TEST_F(ChartLegendTest, MarkersAtTheEdgeAreWhole) {
    ChartSnapshot middle;
    middle.series.emplace_back("x").Style = {
        .LineVisible = false, .MarkerVisible = true, .Colour = palette(12)};
    middle.sheet.include(Point{0, 0});
    middle.sheet.include(Point{20, 14});
    ChartSnapshot edge = middle;
    middle.series[0].Data.Add(10, 7);
    edge.series[0].Data.Add(20, 0);
    EXPECT_NEAR(pixelsLike(drawn(edge, {250, 120}), Qt::red),
                pixelsLike(drawn(middle, {250, 120}), Qt::red), 3);
}

TEST(ChemicalTerm, SetsIons) {
    EXPECT_EQ(chemicalTerm("H3O+"), "Hµ3|O^+|");
    EXPECT_EQ(chemicalTerm("Meine Cl-"), "Meine Cl^\u2212|");
    EXPECT_EQ(chemicalTerm("c(NO3-) in mol/L"), "c(NOµ3^\u2212|) in mol/L");
    EXPECT_EQ(chemicalTerm("CH3COO-"), "CHµ3|COO^\u2212|");
    EXPECT_EQ(chemicalTerm("Ca2+"), "Ca^2+|");
    EXPECT_EQ(chemicalTerm("H+"), "H^+|");
}

TEST(ChemicalTerm, LeavesOtherTextsAsTheyAre) {
    for (const char* text : {"", "-", "+", "Meine pH-Rechnungen", "Gesamtleitwert",
                             "Salz- und Base", "G in mS/cm", "a+", "3+", "gesamt", "ÄB-", "  "}) {
        EXPECT_EQ(chemicalTerm(text), text);
    }
}

} // namespace
} // namespace quendal
