// The break of the learner's curve at the equivalence, and the lines fitted on both sides of it.
#include "conducto_fixture.h"

#include "shell/forms/frm_DialogphCompare.h"

namespace quendal::test {
namespace {

using Volumes = std::vector<int>;

struct BreakCase {
    Titration titration;
    double concentration;
    Volumes points;
    int opensWith; // the point, from 1, that opens the break; 0: none does
};

class Break : public ConductoTest, public testing::WithParamInterface<BreakCase> {
  protected:
    void expectBreak(bool broken, int index) {
        EXPECT_EQ(bench().BreakOpen, !broken);
        EXPECT_EQ(bench().BreakIndex, broken ? index : 0);
        for (std::size_t i = 1; i <= 5; ++i) {
            EXPECT_EQ(bench().Series[i]->Style.LineVisible, !broken) << "series " << i;
            EXPECT_TRUE(bench().Series[i]->Style.MarkerVisible) << "series " << i;
        }
    }
};

TEST_P(Break, OpensWithTheFirstPointBehindTheEquivalence) {
    const BreakCase& row = GetParam();
    openForm(row.titration, row.concentration);
    expectBreak(false, 0);
    EXPECT_EQ(field("LastVolume"), FieldValue{});
    for (int n = 1; n <= static_cast<int>(row.points.size()); ++n) {
        const int ml = row.points[static_cast<std::size_t>(n - 1)];
        SCOPED_TRACE(std::to_string(ml) + " mL");
        calculate(ml);
        EXPECT_EQ(field("LastVolume"), FieldValue{double(ml)});
        expectBreak(row.opensWith != 0 && n >= row.opensWith, row.opensWith - 1);
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, Break,
    testing::Values(BreakCase{Titration::Strong, 1.0, {0, 1, 5, 9, 10, 11, 20}, 6},
                    BreakCase{Titration::Strong, 1.0, {5, 15, 16, 3, 17}, 2},
                    BreakCase{Titration::Strong, 1.0, {9, 10}, 0},
                    BreakCase{Titration::Strong, 1.0, {10, 11}, 2},
                    // No point before it, and then none that is followed by one behind it.
                    BreakCase{Titration::Strong, 1.0, {11, 12, 20}, 0},
                    BreakCase{Titration::Strong, 1.0, {11, 12, 4, 13}, 4},
                    BreakCase{Titration::Strong, 0.6, {5, 6, 7}, 3},
                    BreakCase{Titration::Strong, 1.4, {11, 13, 14, 15}, 4},
                    BreakCase{Titration::Weak, 0.8, {0, 8, 9}, 3},
                    BreakCase{Titration::Weak, 1.2, {11, 12, 13}, 3},
                    BreakCase{Titration::Silver, 1.0, {10, 20}, 2},
                    BreakCase{Titration::Silver, 1.4, {14, 15}, 2}));

struct Straight {
    double slope;
    double intercept;
};
// A line of each series: the total, then the ions.
using Straights = std::array<Straight, 5>;

struct LinesCase {
    Titration titration;
    double concentration;
    Volumes points;
    std::vector<Straights> lines;
    std::vector<std::array<double, 2>> ranges; // of the volumes that each was fitted through
};

class Lines : public ConductoTest, public testing::WithParamInterface<LinesCase> {};

TEST_P(Lines, RunThroughThePointsOfTheirSide) {
    const LinesCase& row = GetParam();
    openForm(row.titration, row.concentration);
    for (const int ml : row.points) {
        calculate(ml);
    }
    for (std::size_t i = 0; i < 5; ++i) {
        SCOPED_TRACE("series " + std::to_string(i + 1));
        const auto& fitted = bench().Series[i + 1]->fittedLines;
        ASSERT_EQ(fitted.size(), row.lines.size());
        for (std::size_t n = 0; n < fitted.size(); ++n) {
            EXPECT_NEAR(fitted[n].slope, row.lines[n][i].slope, 1e-10) << "line " << n;
            EXPECT_NEAR(fitted[n].intercept, row.lines[n][i].intercept, 1e-9) << "line " << n;
            EXPECT_EQ(fitted[n].from, row.ranges[n][0]);
            EXPECT_EQ(fitted[n].to, row.ranges[n][1]);
        }
    }
}

// Through 0, 1, 5, 9 and 10 mL of 1 mol/L.
constexpr Straights kAcidSide{{{-3.11073170732, 42.3616585366},
                               {-3.49682926829, 34.6881463415},
                               {-0.0689024390244, 7.63251219512},
                               {0.455, 0.041},
                               {0, 0}}};

INSTANTIATE_TEST_SUITE_P(
    All, Lines,
    testing::Values(
        // 11 mL belongs to neither line, and 20 mL alone makes none.
        LinesCase{Titration::Strong, 1.0, {0, 1, 5, 9, 10, 11}, {kAcidSide}, {{0, 10}}},
        LinesCase{Titration::Strong, 1.0, {0, 1, 5, 9, 10, 11, 20}, {kAcidSide}, {{0, 10}}},
        LinesCase{Titration::Strong,
                  1.0,
                  {0, 1, 5, 9, 10, 11, 12, 15, 20},
                  {kAcidSide,
                   {{{1.93642857143, -7.40071428571},
                     {0, 0},
                     {-0.0560204081633, 7.48765306122},
                     {0.371632653061, 0.927755102041},
                     {1.62081632653, -15.816122449}}}},
                  {{0, 10}, {12, 20}}},
        // One point before the equivalence makes no line either.
        LinesCase{Titration::Strong, 1.0, {5, 15}, {}, {}},
        LinesCase{Titration::Strong,
                  1.0,
                  {5, 15, 16, 17},
                  {{{{1.92, -6.95}, {0, 0}, {-0.06, 7.55}, {0.37, 0.99}, {1.61, -15.49}}}},
                  {{16, 17}}},
        LinesCase{Titration::Strong, 1.0, {0, 5, 10}, {}, {}},
        LinesCase{Titration::Strong, 1.0, {5, 11, 12, 12}, {}, {}},
        LinesCase{Titration::Strong,
                  0.6,
                  {0, 3, 6, 7, 8, 20},
                  {{{{-3.06833333333, 25.4816666667},
                     {-3.49833333333, 20.8883333333},
                     {-0.0433333333333, 4.58},
                     {0.473333333333, 0.0133333333333},
                     {0, 0}}},
                   {{{1.97583333333, -4.17666666667},
                     {0, 0},
                     {-0.035, 4.52},
                     {0.386666666667, 0.616666666667},
                     {1.62416666667, -9.31333333333}}}},
                  {{0, 6}, {8, 20}}},
        LinesCase{Titration::Weak,
                  1.0,
                  {1, 2, 10, 11, 12, 20},
                  {{{{0.81595890411, 0.114178082192},
                     {0, 0},
                     {0.367397260274, 0.0479452054795},
                     {0.448561643836, 0.0662328767123},
                     {0, 0}}},
                   {{{1.9675, -11.04}, {0, 0}, {-0.03, 4.01}, {0.3725, 0.9}, {1.625, -15.95}}}},
                  {{1, 10}, {12, 20}}},
        LinesCase{Titration::Silver,
                  1.4,
                  {0, 14, 15, 16, 18, 20},
                  {{{{-0.198571428571, 17.71},
                     {-0.764285714286, 10.7},
                     {-0.0614285714286, 7.01},
                     {0.627142857143, 0},
                     {0, 0}}},
                   {{{0.97, 1.47},
                     {0, 0},
                     {-0.0525, 6.88833333333},
                     {0.515, 1.62666666667},
                     {0.5075, -7.045}}}},
                  {{0, 14}, {16, 20}}}));

class Compared : public ConductoTest {
  protected:
    // What the comparison has been told when it opens.
    void compare() {
        later([this] {
            caption = host.windows.top()->caption();
            host.windows.userClosed(*host.windows.top());
        });
        bench().but_phCompare.userClicked();
    }
    std::string caption;
};

TEST_F(Compared, IsToldOfTheBreak) {
    openForm(Titration::Strong);
    calculate(5);
    compare();
    EXPECT_FALSE(dialogphCompare().ShowBreak);
    EXPECT_EQ(dialogphCompare().BreakIndex, 0);
    calculate(10);
    calculate(12);
    EXPECT_FALSE(dialogphCompare().ShowBreak); // not before it is opened
    compare();
    EXPECT_TRUE(dialogphCompare().ShowBreak);
    EXPECT_EQ(dialogphCompare().BreakIndex, 2);
}

struct CaptionCase {
    Titration titration;
    const char* caption;
};

class CompareCaption : public Compared, public testing::WithParamInterface<CaptionCase> {};

TEST_P(CompareCaption, IsThatOfTheForm) {
    openForm(GetParam().titration);
    compare();
    EXPECT_EQ(caption, GetParam().caption);
    EXPECT_EQ(host.calculator.painter.lastView, session().SessionChartView);
}

constexpr const char* kPlainCaption = "Vergleich: Deine Rechnungen und der 'richtige' Verlauf";

INSTANTIATE_TEST_SUITE_P(
    All, CompareCaption,
    testing::Values(CaptionCase{Titration::Strong, kPlainCaption},
                    CaptionCase{Titration::Weak, kPlainCaption},
                    CaptionCase{Titration::Log, kPlainCaption},
                    CaptionCase{Titration::Silver,
                                "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"}));

} // namespace
} // namespace quendal::test
