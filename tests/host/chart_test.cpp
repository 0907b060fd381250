#include "host/chart.h"

#include "host/form.h"
#include "host/log_capture.h"
#include "host/pictures.h"
#include "support/fake_files.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quendal {
namespace {

class RecordingPainter final : public ChartPainter {
  public:
    void render(const ChartView& view, PictureBox& target, double scale) override {
        calls.push_back({&view, &target, scale});
    }
    struct Call {
        const ChartView* view;
        PictureBox* target;
        double scale;
    };
    std::vector<Call> calls;
};

class Chart : public testing::Test {
  protected:
    Chart() { files.write("ph.crv", kCurve); }

    static constexpr const char* kCurve = "# x-Achse: V\n# y-Achse: pH\nV;Kurve\n0;1\n20;13\n";

    test::MemoryFiles files;
    RecordingPainter painter;
    ChartDocuments documents{files, painter};
};

TEST_F(Chart, OpensCurves) {
    const LogCapture log;
    ChartDocument& document = documents.Open("ph.crv", 0, 0, 0);
    EXPECT_EQ(documents.Count(), 1);
    EXPECT_EQ(document.name, "ph.crv");
    EXPECT_EQ(document.xTitle, "V");
    EXPECT_EQ(document.Series(1).Data.LastX(), 20);
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(Chart, AMissingCurveIsAnEmptyDocumentAndALoggedLine) {
    const LogCapture log;
    ChartDocument& document = documents.Open("weg.crv", 0, 0, 0);
    EXPECT_EQ(documents.Count(), 1);
    EXPECT_EQ(document.seriesCount(), 0);
    EXPECT_EQ(document.Series(1).Data.Count(), 0);
    ASSERT_EQ(log.lines.size(), 1U);
    EXPECT_EQ(log.lines[0], "Kurve weg.crv: Die Datei fehlt oder ist nicht lesbar.");
}

TEST_F(Chart, ABrokenCurveIsAnEmptyDocumentAndALoggedLine) {
    const LogCapture log;
    files.write("kaputt.crv", "V;pH\n0;x\n");
    EXPECT_EQ(documents.Open("kaputt.crv", 0, 0, 0).seriesCount(), 0);
    ASSERT_EQ(log.lines.size(), 1U);
    EXPECT_EQ(log.lines[0], "Kurve kaputt.crv: Zeile 2: Eine Spalte enthält keine Zahl.");
}

TEST_F(Chart, ClosesByNumber) {
    files.write("zwei.crv", kCurve);
    documents.Open("ph.crv", 0, 0, 0);
    ChartDocument& second = documents.Open("zwei.crv", 0, 0, 0);
    documents.Close(0, -1, 0, 0);
    documents.Close(3, -1, 0, 0);
    EXPECT_EQ(documents.Count(), 2);
    documents.Close(1, -1, 0, 0);
    EXPECT_EQ(documents.Count(), 1);
    EXPECT_EQ(second.name, "zwei.crv");
    documents.Close(1, -1, 0, 0);
    EXPECT_EQ(documents.Count(), 0);
}

TEST_F(Chart, AddedSeriesStayWhereTheyAre) {
    ChartDocument& document = documents.Open("ph.crv", 0, 0, 0);
    ChartSeries& own = document.AddSeries(1, "Meine pH-Rechnungen");
    EXPECT_EQ(own.Data.LastX(), 0);
    for (int i = 0; i < 50; ++i) {
        document.AddSeries(1, "x");
    }
    own.Data.Add(20, 13.5);
    own.Data.Add(3, 0.2);
    EXPECT_EQ(document.Series(2).name, "Meine pH-Rechnungen");
    EXPECT_EQ(document.Series(2).Data.Count(), 2);
    EXPECT_EQ(document.Series(2).Data.X(1), 20);
    EXPECT_EQ(document.Series(2).Data.LastX(), 3);
    EXPECT_EQ(document.Series(2).Data.Y(3), 0);
    EXPECT_EQ(document.indexOf(own), 2);
    EXPECT_EQ(document.indexOf(ChartSeries("fremd")), 0);
}

TEST_F(Chart, ASeriesThatIsNotThereStaysEmpty) {
    ChartDocument& document = documents.Open("ph.crv", 0, 0, 0);
    document.Series(7).Data.Add(1, 2);
    EXPECT_EQ(document.Series(7).Data.Count(), 0);
    EXPECT_EQ(document.seriesCount(), 1);
    EXPECT_EQ(std::as_const(document).Series(0).Data.Count(), 0);
}

class Window final : public Form {
  public:
    Window() : Form("frm_Test", {100, 100}) {}
    PictureBox pic_Graph{*this, "pic_Graph"};
    PictureBox pic_pH{*this, "pic_pH"};
};

TEST_F(Chart, RendersAndRedraws) {
    ChartDocument& document = documents.Open("ph.crv", 0, 0, 0);
    document.View().Redraw(0);
    EXPECT_TRUE(painter.calls.empty());
    Window window;
    document.Axes(1).RenderTo(window.pic_Graph, 0, 0, 8.0);
    document.View().Redraw(0);
    ASSERT_EQ(painter.calls.size(), 2U);
    EXPECT_EQ(painter.calls[1].view, &document.View());
    EXPECT_EQ(painter.calls[1].target, &window.pic_Graph);
    EXPECT_EQ(painter.calls[1].scale, 8.0);
}

TEST_F(Chart, NothingIsRedrawnIntoAPictureThatIsGone) {
    ChartDocument& document = documents.Open("ph.crv", 0, 0, 0);
    {
        Window window;
        document.View().RenderTo(window.pic_Graph, 0, 0, 8.0);
    }
    document.View().Redraw(0);
    EXPECT_EQ(painter.calls.size(), 1U);
}

TEST_F(Chart, EachViewIsRedrawnIntoItsOwnPicture) {
    ChartDocument& document = documents.Open("ph.crv", 0, 0, 0);
    ChartView& mine = document.AddView("Mein Graph");
    Window window;
    document.View().RenderTo(window.pic_pH, 0, 0, 8.0);
    mine.RenderTo(window.pic_Graph, 0, 0, 9.0);
    mine.Redraw(0);
    document.View().Redraw(0);
    ASSERT_EQ(painter.calls.size(), 4U);
    EXPECT_EQ(painter.calls[2].view, &mine);
    EXPECT_EQ(painter.calls[2].target, &window.pic_Graph);
    EXPECT_EQ(painter.calls[2].scale, 9.0);
    EXPECT_EQ(painter.calls[3].view, &document.View());
    EXPECT_EQ(painter.calls[3].target, &window.pic_pH);
    EXPECT_EQ(painter.calls[3].scale, 8.0);
}

TEST_F(Chart, AViewWhosePictureHasGoneLeavesTheOthersAlone) {
    ChartDocument& document = documents.Open("ph.crv", 0, 0, 0);
    ChartView& mine = document.AddView("Mein Graph");
    Window form;
    mine.RenderTo(form.pic_Graph, 0, 0, 8.0);
    {
        Window dialog;
        document.View().RenderTo(dialog.pic_pH, 0, 0, 8.0);
    }
    document.View().Redraw(0);
    EXPECT_EQ(painter.calls.size(), 2U);
    mine.Redraw(0);
    ASSERT_EQ(painter.calls.size(), 3U);
    EXPECT_EQ(painter.calls[2].target, &form.pic_Graph);
}

TEST_F(Chart, AddedViewsStayWhereTheyAre) {
    ChartDocument& document = documents.Open("ph.crv", 0, 0, 0);
    ChartView& whole = document.Axes(1);
    ChartView& mine = document.AddView("Mein Graph");
    for (int i = 0; i < 50; ++i) {
        document.AddView("x");
    }
    EXPECT_EQ(&document.Axes(1), &whole);
    EXPECT_EQ(&document.Axes(2), &mine);
    EXPECT_EQ(mine.name, "Mein Graph");
    EXPECT_EQ(&mine.document(), &document);
}

TEST_F(Chart, AViewThatIsNotThereIsTheFirst) {
    ChartDocument& document = documents.Open("ph.crv", 0, 0, 0);
    document.AddView("Mein Graph");
    for (const int index : {-1, 0, 3, 99}) {
        EXPECT_EQ(&document.Axes(index), &document.View()) << index;
    }
}

TEST_F(Chart, AViewShowsTheWholeDocumentOrWhatItIsTold) {
    ChartDocument& document = documents.Open("ph.crv", 0, 0, 0);
    ChartSeries& second = document.AddSeries(1, "b");
    ChartSeries& third = document.AddSeries(1, "c");
    using Shown = std::vector<const ChartSeries*>;
    ChartView& mine = document.AddView("Mein Graph");
    EXPECT_EQ(mine.shown(), (Shown{&document.Series(1), &second, &third}));
    mine.ShowOnly({&third, &second});
    EXPECT_EQ(mine.shown(), (Shown{&third, &second}));
    document.AddSeries(1, "d");
    EXPECT_EQ(mine.shown(), (Shown{&third, &second}));
    EXPECT_EQ(document.View().shown().size(), 4U);
}

TEST_F(Chart, AViewKeepsRoomForPoints) {
    ChartView& view = documents.Open("ph.crv", 0, 0, 0).View();
    EXPECT_TRUE(view.reserved().empty());
    view.KeepRoomFor({20, 42.6});
    ASSERT_EQ(view.reserved().size(), 1U);
    EXPECT_EQ(view.reserved()[0].y, 42.6);
}

TEST_F(Chart, KnowsItsActiveSeries) {
    ChartView& view = documents.Open("ph.crv", 0, 0, 0).Axes(1);
    EXPECT_EQ(view.activeSeries(), 1);
    view.SetActiveSeries(2, -1);
    EXPECT_EQ(view.activeSeries(), 2);
}

TEST(SeriesData, SortsByX) {
    SeriesData data;
    for (const Point point : {Point{12.5, 1}, Point{3, 2}, Point{12.5, 3}, Point{0, 4}}) {
        data.Add(point.x, point.y);
    }
    EXPECT_EQ(data.LastX(), 0);
    data.Sort();
    EXPECT_EQ(data.LastX(), 12.5);
    const double ys[] = {4, 2, 1, 3}; // points with the same x keep their order
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(data.Y(i), ys[i - 1]) << i;
    }
}

SeriesData line(double slope, double intercept, int count) {
    SeriesData data;
    for (int i = 1; i <= count; ++i) {
        data.Add(i, intercept + slope * i);
    }
    return data;
}

TEST(FitLine, FindsTheLine) {
    const auto fit = fitLine(line(-0.5, 42, 10), 1, 10);
    ASSERT_TRUE(fit);
    EXPECT_NEAR(fit->slope, -0.5, 1e-12);
    EXPECT_NEAR(fit->intercept, 42, 1e-12);
}

TEST(FitLine, HasTheLeastSquares) {
    SeriesData data;
    for (const Point point : {Point{1, 1}, Point{2, 3}, Point{3, 2}}) {
        data.Add(point.x, point.y);
    }
    const auto fit = fitLine(data, 1, 3);
    ASSERT_TRUE(fit);
    EXPECT_NEAR(fit->slope, 0.5, 1e-12);
    EXPECT_NEAR(fit->intercept, 1, 1e-12);
}

TEST(FitLine, KnowsTheOuterPointsOfTheLine) {
    SeriesData data = line(2, 0, 5);
    data.Add(0.5, 1); // added late
    const auto all = fitLine(data, 1, 6);
    EXPECT_EQ(all->from, 0.5);
    EXPECT_EQ(all->to, 5);
    const auto part = fitLine(data, 2, 4);
    EXPECT_EQ(part->from, 2);
    EXPECT_EQ(part->to, 4);
}

TEST(FitLine, CutsTheRange) {
    SeriesData data = line(2, 0, 5);
    data.Add(6, 100);
    EXPECT_NEAR(fitLine(data, -3, 5)->slope, 2, 1e-12);
    EXPECT_GT(fitLine(data, 5, 99)->slope, 80);
}

TEST(FitLine, NeedsTwoPointsWithDifferentX) {
    SeriesData data;
    EXPECT_FALSE(fitLine(data, 1, 5));
    data.Add(1, 1);
    EXPECT_FALSE(fitLine(data, 1, 5));
    data.Add(1, 2);
    EXPECT_FALSE(fitLine(data, 1, 5));
    data.Add(2, 3);
    EXPECT_TRUE(fitLine(data, 1, 5));
    EXPECT_FALSE(fitLine(data, 3, 2));
    EXPECT_FALSE(fitLine(data, 3, 3));
    data.Add(std::numeric_limits<double>::infinity(), 3);
    EXPECT_FALSE(fitLine(data, 1, 5));
}

} // namespace
} // namespace quendal
