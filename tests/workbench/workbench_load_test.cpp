#include "strong_fixture.h"

#include "particles/grid_tables.h"
#include "particles/species.h"
#include "shell/forms/frm_AppResource.h"
#include "shell/forms/frm_AppSplash.h"
#include "workbench/liquid_color.h"

namespace quendal::test {
namespace {

struct CurveCase {
    double concentration;
    DecimalSign sign;
    const char* file;
};

class CurveName : public BenchTest, public testing::WithParamInterface<CurveCase> {};

TEST_P(CurveName, FollowsTheConcentrationInEveryLocale) {
    host.numbers.setDecimalSign(GetParam().sign);
    open(GetParam().concentration);
    EXPECT_TRUE(host.boxes.shown.empty());
    EXPECT_NE(session().SessionCurve->name.find(GetParam().file), std::string::npos)
        << session().SessionCurve->name;
}

INSTANTIATE_TEST_SUITE_P(All, CurveName,
                         testing::Values(CurveCase{0.6, DecimalSign::Comma, "phstark06"},
                                         CurveCase{0.8, DecimalSign::Point, "phstark08"},
                                         CurveCase{1.0, DecimalSign::Comma, "phstark10"},
                                         CurveCase{1.0, DecimalSign::Point, "phstark10"},
                                         CurveCase{1.2, DecimalSign::Comma, "phstark12"},
                                         CurveCase{1.4, DecimalSign::Point, "phstark14"}));

class WorkbenchLoad : public BenchTest {};

TEST_F(WorkbenchLoad, FallsBackToTheStandardCurveAndSaysSo) {
    host.files.write("data/ph.crv", kCurve);
    open(0.9);
    ASSERT_EQ(host.boxes.shown.size(), 1U);
    EXPECT_EQ(lastBox().kind, "ok");
    EXPECT_EQ(lastBox().text,
              "Die Datei 'phstark09.crv' wurde nicht gefunden - zum Vergleich Deiner Werte kann "
              "ich daher leider nur die Standard-pH-Kurver zu Rate ziehen!");
    EXPECT_EQ(session().SessionCurveSeries->Data.Count(), 3);
    EXPECT_EQ(host.windows.pointer, MousePointer::Normal);
}

TEST_F(WorkbenchLoad, RunsOnWithoutAnyCurve) {
    open(0.9);
    EXPECT_EQ(session().SessionCurveSeries->Data.Count(), 0);
    EXPECT_EQ(session().SessionMySeries->Data.Count(), 0);
    addBase(5);
    bench().vDemo = true; // no box
    bench().hPointDone(1.5);
    EXPECT_EQ(session().SessionMySeries->Data.LastX(), 5.0);
}

TEST_F(WorkbenchLoad, ClosesTheCurveOfTheTaskBefore) {
    open(0.6);
    session().SessionMySeries->Data.Add(1, 1);
    close();
    open(1.2);
    EXPECT_EQ(session().SessionChartFactory->Documents().Count(), 1);
    EXPECT_NE(session().SessionCurve->name.find("phstark12"), std::string::npos);
    EXPECT_EQ(session().SessionMySeries->Data.Count(), 0);
}

TEST_F(WorkbenchLoad, AddsTheLearnersSeriesAsRedMarkers) {
    open();
    const ChartSeries& mine = *session().SessionMySeries;
    EXPECT_EQ(mine.name, "Meine pH-Rechnungen");
    EXPECT_FALSE(mine.Style.LineVisible);
    EXPECT_TRUE(mine.Style.MarkerVisible);
    EXPECT_EQ(mine.Style.MarkerStyle, Marker::FilledCircle);
    EXPECT_EQ(mine.Style.MarkerSize, 6);
    EXPECT_EQ(mine.Style.MarkerSetting, 8);
    EXPECT_EQ(mine.Style.Colour, palette(12));
    EXPECT_EQ(mine.Axes.x, session().SessionCurveSeries->Axes.x);
    EXPECT_EQ(mine.Axes.y, session().SessionCurveSeries->Axes.y);
    EXPECT_EQ(session().SessionChartView->activeSeries(), session().SessionCurve->indexOf(mine));
    EXPECT_EQ(session().SessionCurve->indexOf(*session().SessionCurveSeries), 1);
}

TEST_F(WorkbenchLoad, SetsTheSessionForItsParticlesAndResetsItAtTheEnd) {
    session().ParticleBackColor = kBlack;
    open();
    EXPECT_TRUE(session().PlainChloride);
    EXPECT_EQ(session().ParticleBackColor, (Color{153, 204, 204}));
    EXPECT_EQ(bench().pic_Water.backcolor(), (Color{153, 204, 204}));
    EXPECT_EQ(bench().vMolecules.Parent, &bench());
    close();
    EXPECT_FALSE(session().PlainChloride);
}

TEST_F(WorkbenchLoad, FillsTheRandomTablesBeforeItSeedsAnew) {
    SeededRandom same;
    same.seed(1);
    fillGridTables(same);
    const GridTable<int> shuffle = session().GridShuffle;
    const GridTable<double> jitter = session().GridJitterY;
    session().GridShuffle = {};
    session().GridJitterY = {};
    open();
    EXPECT_EQ(session().GridShuffle, shuffle);
    EXPECT_EQ(session().GridJitterY, jitter);
    EXPECT_EQ(host.random.randomized, 1);
    for (int x = 1; x <= kGridLimit; ++x) {
        const int cell = session().GridShuffle[static_cast<std::size_t>(x)][1];
        EXPECT_GE(cell, 1);
        EXPECT_LE(cell, x);
    }
}

TEST_F(WorkbenchLoad, HangsThePipetteAndHidesTheBuretteAboveTheWindow) {
    host.graphics.addPicture("tap", 60, 480);
    appResource().pic_BüretteBuffer.load(1).setPicture(host.graphics.LoadPicture("tap"));
    open();
    EXPECT_TRUE(bench().vPipShown);
    EXPECT_TRUE(bench().vPipReady);
    EXPECT_EQ(bench().vPipX, 132);
    EXPECT_EQ(bench().vPipY, -69); // 1040 twips
    EXPECT_FALSE(bench().vBurShown);
    EXPECT_EQ(bench().vBurX, -103); // 1240 twips and 20 px
    EXPECT_EQ(bench().vBurY, -480);
    EXPECT_EQ(bench().vBurGap, 100);
    EXPECT_EQ(bench().vLastVol, -1.0);
}

TEST_F(WorkbenchLoad, WritesTheTaskSheet) {
    open(0.8);
    EXPECT_EQ(bench().caption(), "Morvik // Quendal - Starke Säure mit starker Base");
    EXPECT_EQ(bench().windowState(), WindowState::Maximised);
    expectTaskSheet("Salzsäure  (c = 0.8 mol/L)", "Natronlauge", "den pH-Wert");
    EXPECT_EQ(bench().but_Calc.text(), "Berechnen!");
    EXPECT_EQ(bench().ctl_Button2.text(), "Berechnen!");
    EXPECT_EQ(bench().controls().front(), &bench().pic_BowlOuter); // behind all others
    EXPECT_FALSE(appSplash().loaded());
}

TEST_F(WorkbenchLoad, ShowsTheWorkingButtonsOfAnEmptyBeaker) {
    open();
    for (const Control* there : {&bench().ctl_Button1, &bench().but_Help, &bench().but_phCompare}) {
        EXPECT_TRUE(there->visible()) << there->name();
    }
    for (const Control* notYet : std::initializer_list<const Control*>{
             &bench().but_Calc, &bench().ctl_Button2, &bench().ctl_Button3, &bench().but_Add(0),
             &bench().but_Add(1), &bench().frm_CalcDirect}) {
        EXPECT_FALSE(notYet->visible()) << notYet->name();
    }
    EXPECT_FALSE(visible("frm_Calc"));
}

TEST_F(WorkbenchLoad, ADemoHidesTheScore) {
    open(1.0, true);
    EXPECT_TRUE(bench().vDemo);
    EXPECT_EQ(bench().but_Calc.text(), "Demo");
    EXPECT_EQ(bench().ctl_Button2.text(), "Demo");
    EXPECT_EQ(bench().but_Calc.pictureIcon(), "Ico\\20\\Computer\\Signs\\Next.ico");
    EXPECT_EQ(bench().lab_Step(1).text(),
              "Klick auf                                ,um dir den Rechenweg demonstrieren zu "
              "lassen");
    for (const char* name :
         {"ctl_Image1", "ctl_Image2", "Label1", "Label2", "Label3", "Label4", "Lab_Vallmista",
          "lab_punktegerechnet", "lab_solveuse", "lab_helpused"}) {
        EXPECT_FALSE(visible(name)) << name;
    }
}

TEST_F(WorkbenchLoad, LabelsTheBalance) {
    open();
    expectSpecies({{"H3O+", kHydronium},
                   {"Na+", kSodium},
                   {"HCl", kHydrogenChloride},
                   {"Cl-", kChloride},
                   {"OH-", kHydroxide}});
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(bench().lab_BilanzCount(i).term(), "0 mol");
        EXPECT_EQ(bench().lab_Bilanz(i).font().size, points(16));
        EXPECT_EQ(bench().lab_BilanzCount(i).font().size, points(16));
    }
    const char* volumes[] = {"VµV(S)     = ", "VµZ(OH-) =", "cµV(S) =", "cµZ(OH-) = 1 mol/L"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(bench().lab_VolLabel(i).term(), volumes[i]);
    }
    EXPECT_EQ(bench().frm_Bilanz.text(), "Aktuelle Stoffmengenbilanz");
}

} // namespace
} // namespace quendal::test
