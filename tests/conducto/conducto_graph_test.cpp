// The learner's series and the graph of them on the form.
#include "conducto_fixture.h"

namespace quendal::test {
namespace {

class Graph : public ConductoTest {
  protected:
    ChartView& mine() { return session().SessionCurve->Axes(2); }
    int renders() const { return host.calculator.painter.renders; }
};

struct SeriesCase {
    Titration titration;
    int main;                         // the series that counts the points
    std::vector<int> onForm;          // the series that the form shows
    std::array<const char*, 5> names; // short ones
    std::array<Color, 5> colours;
};

class LearnersSeries : public Graph, public testing::WithParamInterface<SeriesCase> {};

TEST_P(LearnersSeries, AreMadeFromThoseOfTheCurve) {
    const SeriesCase& row = GetParam();
    openForm(row.titration);
    const ChartDocument& curve = *session().SessionCurve;
    ASSERT_EQ(curve.seriesCount(), 10);
    const char* templates[] = {"Summe", "Teil 1", "Teil 2", "Teil 3", "Teil 4"};
    for (std::size_t i = 0; i < 5; ++i) {
        const ChartSeries& mine = *bench().Series[i + 1];
        EXPECT_EQ(curve.indexOf(mine), static_cast<int>(i) + 6);
        EXPECT_EQ(mine.name, std::string("Meine ") + templates[i]);
        EXPECT_EQ(mine.shortName, row.names[i]);
        EXPECT_EQ(mine.Data.Count(), 0);
        EXPECT_TRUE(mine.Style.LineVisible);
        EXPECT_TRUE(mine.Style.MarkerVisible);
        EXPECT_EQ(mine.Style.Colour, row.colours[i]) << mine.name;
        // The curve's own series is drawn alike.
        const ChartSeries& reference = curve.Series(static_cast<int>(i) + 1);
        EXPECT_EQ(reference.name, templates[i]);
        EXPECT_EQ(reference.Style.Colour, row.colours[i]) << mine.name;
        EXPECT_EQ(reference.Data.Count(), 2);
        EXPECT_EQ(bench().learnerSeries(static_cast<int>(i) + 1), &mine);
    }
    EXPECT_EQ(bench().learnerSeriesCount(), 5);
    EXPECT_EQ(bench().learnerSeries(0), nullptr);
    EXPECT_EQ(bench().learnerSeries(6), nullptr);
    EXPECT_EQ(session().SessionMySeries, bench().Series[static_cast<std::size_t>(row.main)]);
    EXPECT_EQ(session().SessionCurveSeries, &curve.Series(1));
    EXPECT_EQ(session().SessionChartView->activeSeries(), 5 + row.main);
}

TEST_P(LearnersSeries, AreAllThatTheFormShows) {
    const SeriesCase& row = GetParam();
    openForm(row.titration);
    EXPECT_EQ(mine().name, "Mein Graph");
    std::vector<const ChartSeries*> expected;
    for (const int number : row.onForm) {
        expected.push_back(bench().Series[static_cast<std::size_t>(number)]);
    }
    EXPECT_EQ(mine().shown(), expected);
    // The comparison puts those of the curve beside them.
    std::vector<const ChartSeries*> compared;
    for (const int number : row.onForm) {
        compared.push_back(&session().SessionCurve->Series(number));
    }
    compared.insert(compared.end(), expected.begin(), expected.end());
    EXPECT_EQ(session().SessionChartView->shown(), compared);
    EXPECT_EQ(host.calculator.painter.lastView, &mine());
    EXPECT_EQ(host.calculator.painter.lastTarget, &bench().pic_Graph);
    EXPECT_EQ(renders(), 1);
}

constexpr Color kBlackOne = palette(0);

INSTANTIATE_TEST_SUITE_P(
    All, LearnersSeries,
    testing::Values(SeriesCase{Titration::Strong,
                               1,
                               {1, 2, 3, 4, 5},
                               {"gesamt", "H3O+", "Cl-", "Na+", "OH-"},
                               {kBlackOne, palette(12), palette(2), palette(9), palette(1)}},
                    SeriesCase{Titration::Weak,
                               1,
                               {1, 2, 3, 4, 5},
                               {"gesamt", "H3O+", "Ac-", "Na+", "OH-"},
                               {kBlackOne, palette(12), palette(5), palette(9), palette(1)}},
                    SeriesCase{Titration::Silver,
                               1,
                               {1, 2, 3, 4, 5},
                               {"gesamt", "Cl-", "Na+", "NO3-", "Ag+"},
                               {kBlackOne, palette(2), palette(9), palette(6), palette(8)}},
                    SeriesCase{Titration::Log,
                               2,
                               {2, 5},
                               {"pH bzw. pOH", "pH", "Cl-", "Na+", "pOH"},
                               {kBlackOne, palette(12), palette(2), palette(9), palette(1)}}));

struct CurveCase {
    Titration titration;
    double concentration;
    const char* file;
};

class CurveFile : public Graph, public testing::WithParamInterface<CurveCase> {};

TEST_P(CurveFile, IsThatOfTheFormAndItsConcentration) {
    for (const DecimalSign sign : {DecimalSign::Comma, DecimalSign::Point}) {
        host.numbers.setDecimalSign(sign);
        openForm(GetParam().titration, GetParam().concentration);
        EXPECT_TRUE(host.boxes.shown.empty());
        EXPECT_EQ(session().SessionCurve->name, std::string("data/") + GetParam().file);
    }
}

INSTANTIATE_TEST_SUITE_P(All, CurveFile,
                         testing::Values(CurveCase{Titration::Strong, 0.6, "lf-strong-06.crv"},
                                         CurveCase{Titration::Strong, 1.0, "lf-strong-10.crv"},
                                         CurveCase{Titration::Weak, 0.8, "lf-weak-08.crv"},
                                         CurveCase{Titration::Weak, 1.4, "lf-weak-14.crv"},
                                         CurveCase{Titration::Silver, 1.2, "lf-silver-12.crv"},
                                         CurveCase{Titration::Log, 1.0, "lf-ph.crv"}));

struct MissingCase {
    Titration titration;
    double concentration;
    const char* file;
    std::array<const char*, 5> names;
};

class MissingCurve : public Graph, public testing::WithParamInterface<MissingCase> {};

TEST_P(MissingCurve, IsReplacedAndItsSeriesAreNamedAfterTheIons) {
    const MissingCase& row = GetParam();
    host.files.write("data/ph.crv", kCurve);
    openForm(row.titration, row.concentration);
    expectBox("ok", std::string("Die Datei '") + row.file +
                        "' wurde nicht gefunden - zum Vergleich Deiner Werte kann ich daher "
                        "leider nur die Standard-pH-Kurver zu Rate ziehen!");
    EXPECT_EQ(host.boxes.shown.size(), 1U);
    EXPECT_EQ(session().SessionCurve->name, "data/ph.crv");
    EXPECT_EQ(session().SessionCurve->seriesCount(), 6);
    EXPECT_EQ(session().SessionCurveSeries->Data.Count(), 3);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(bench().Series[i + 1]->name, std::string("Meine ") + row.names[i]);
    }
    EXPECT_EQ(mine().shown().size(), 5U);
    calculate(3);
    EXPECT_EQ(bench().Series[5]->Data.Count(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    All, MissingCurve,
    testing::Values(
        MissingCase{
            Titration::Strong, 0.9, "lf-strong-09.crv", {"gesamt", "H3O+", "Cl-", "Na+", "OH-"}},
        MissingCase{
            Titration::Weak, 0.5, "lf-weak-05.crv", {"gesamt", "H3O+", "Ac-", "Na+", "OH-"}},
        MissingCase{
            Titration::Silver, 1.1, "lf-silver-11.crv", {"gesamt", "Cl-", "Na+", "NO3-", "Ag+"}}));

TEST_F(Graph, RunsOnWithoutAnyCurve) {
    openForm(Titration::Strong, 0.9);
    EXPECT_EQ(session().SessionCurve->seriesCount(), 5);
    calculate(2);
    EXPECT_EQ(bench().Series[1]->Data.LastX(), 2);
}

// One series short of the total and four ions.
TEST_F(Graph, ACurveWithFewerSeriesNamesNone) {
    host.files.write("data/lf-strong-09.crv", "V;a;b;c;d\n0;1;2;3;4\n20;1;2;3;4\n");
    openForm(Titration::Strong, 0.9);
    EXPECT_TRUE(host.boxes.shown.empty());
    EXPECT_EQ(bench().Series[1]->name, "Meine gesamt");
    EXPECT_EQ(bench().Series[5]->name, "Meine OH-");
}

struct RoomCase {
    Titration titration;
    std::vector<double> totals; // at 0 and 20 mL
};

class Room : public Graph, public testing::WithParamInterface<RoomCase> {};

TEST_P(Room, IsKeptForTheLearnersFirstAndLastPoint) {
    openForm(GetParam().titration);
    ASSERT_EQ(mine().reserved().size(), GetParam().totals.size());
    for (std::size_t i = 0; i < GetParam().totals.size(); ++i) {
        EXPECT_EQ(mine().reserved()[i].x, i == 0 ? 0 : 20);
        EXPECT_DOUBLE_EQ(mine().reserved()[i].y, GetParam().totals[i]);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Room,
                         testing::Values(RoomCase{Titration::Strong, {42.62, 31.27}},
                                         RoomCase{Titration::Weak, {0.46, 28.31}},
                                         RoomCase{Titration::Silver, {12.65, 21.26}},
                                         RoomCase{Titration::Log, {}}));

struct FilledCase {
    Titration titration;
    int ml;
    std::array<double, 5> y;
};

class FilledSeries : public Graph, public testing::WithParamInterface<FilledCase> {};

TEST_P(FilledSeries, HoldTheTotalAndEachIon) {
    const FilledCase& row = GetParam();
    openForm(row.titration);
    calculate(row.ml);
    for (std::size_t i = 0; i < 5; ++i) {
        const SeriesData& data = bench().Series[i + 1]->Data;
        ASSERT_EQ(data.Count(), 1) << "series " << i + 1;
        EXPECT_EQ(data.X(1), row.ml);
        EXPECT_DOUBLE_EQ(data.Y(1), row.y[i]) << "series " << i + 1;
    }
    EXPECT_EQ(session().SessionCurve->Series(1).Data.Count(), 2); // the reference is left alone
}

INSTANTIATE_TEST_SUITE_P(
    All, FilledSeries,
    testing::Values(FilledCase{Titration::Strong, 1, {39.23, 31.17, 7.56, 0.5, 0}},
                    FilledCase{Titration::Strong, 20, {31.27, 0, 6.37, 8.35, 16.55}},
                    FilledCase{Titration::Weak, 20, {28.31, 0, 3.41, 8.35, 16.55}},
                    FilledCase{Titration::Silver, 15, {16.38, 0, 4.36, 9.33, 2.69}}));

TEST_F(Graph, IsDrawnAnewWithEachPointAndAtTheStartOfAGuidedCalculation) {
    openForm(Titration::Weak);
    EXPECT_EQ(renders(), 1);
    calculate(4);
    EXPECT_EQ(renders(), 2);
    EXPECT_EQ(host.calculator.painter.lastView, &mine());
    EXPECT_EQ(host.calculator.painter.lastTarget, &bench().pic_Graph);
    addBase(5);
    startCalculation();
    EXPECT_EQ(renders(), 3);
    calculateGuided(pointOf(Titration::Weak, 1.0, 5));
    EXPECT_EQ(renders(), 4);
}

// The comparison stays on the screen's picture once it was open; both are drawn then.
TEST_F(Graph, KeepsItsPictureWhenTheComparisonWasOpen) {
    openForm(Titration::Weak);
    closeNextDialog();
    bench().but_phCompare.userClicked();
    const int before = renders();
    calculate(4);
    EXPECT_EQ(renders(), before + 2);
}

TEST_F(Graph, TheLastPointOfTheMainSeriesCountsForRequiredPoints) {
    session().SessionRequiredPoints.Split("2", ',');
    openForm(Titration::Silver);
    addBase(2);
    bench().but_Add_Click(1);
    EXPECT_EQ(lastBox().text, "Nach der Vorgabe soll dieser Punkt gerechnet werden!");
    EXPECT_EQ(bench().sClicks, 2);
    calculate(2);
    bench().ctl_Button3.userClicked();
    EXPECT_EQ(bench().sClicks, 3);
}

} // namespace
} // namespace quendal::test
