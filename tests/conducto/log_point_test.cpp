// Points of the demonstration with logarithms: what is filled in and what is drawn.
#include "conducto_fixture.h"

namespace quendal::test {
namespace {

constexpr const char* kNothing = "Rechnen -->"; // nothing to be worked out here

struct LogPoint {
    const char* ml;                    // as it is typed
    std::array<const char*, 3> inputs; // 1, 2 and 4
    std::array<const char*, 4> results;
    int series; // that gets the point; 0: none
    double x;
    double y;
};

void PrintTo(const LogPoint& point, std::ostream* out) {
    *out << point.ml << " mL";
}

const LogPoint kLogPoints[] = {
    {"0", {"100", "10", "~ 0"}, {"0,10", "1,00", kNothing, kNothing}, 2, 0, 1},
    {"0,5", {"100,5", "9,5", "~ 0"}, {"0,09", "1,02", kNothing, kNothing}, 2, 0.5, 1.02},
    {"5", {"105", "5", "~ 0"}, {"0,05", "1,32", kNothing, kNothing}, 2, 5, 1.32},
    {"9", {"109", "1", "~ 0"}, {"0,01", "2,04", kNothing, kNothing}, 2, 9, 2.04},
    {"9,99", {"109,99", "0,01", "~ 0"}, {"0,00", "4,04", kNothing, kNothing}, 2, 9.99, 4.04},
    {"10", {"110", "0", "~ 0"}, {"0,00", "0,00", kNothing, kNothing}, 0, 0, 0},
    {"11", {"111", "~ 0", "1"}, {kNothing, kNothing, "0,01", "2,05"}, 5, 11, 2.05},
    {"12.5", {"112,5", "~ 0", "2,5"}, {kNothing, kNothing, "0,02", "1,65"}, 5, 12.5, 1.65},
    {"20", {"120", "~ 0", "10"}, {kNothing, kNothing, "0,08", "1,08"}, 5, 20, 1.08},
    {"1000", {"1100", "~ 0", "990"}, {kNothing, kNothing, "0,90", "0,05"}, 5, 1000, 0.05},
};

class LogTest : public ConductoTest {
  protected:
    void openDemo(int ml) {
        openForm(Titration::Log, 1.0, true);
        addBase(ml);
    }
    void addPoint(const std::string& ml) {
        host.boxes.inputs = {ml};
        control<ctl_Button>("but_AddPoint").userClicked();
        host.boxes.shown.clear();
    }
    void clickThrough() {
        for (int step = 1; step <= 6; ++step) {
            stepButton(step).userClicked();
        }
        stepButton(6).userClicked();
        bench().hThinkDo();
    }
    std::vector<double> volumes(std::size_t series) {
        std::vector<double> all;
        for (int i = 1; i <= bench().Series[series]->Data.Count(); ++i) {
            all.push_back(bench().Series[series]->Data.X(i));
        }
        return all;
    }
    int points(std::size_t series) { return bench().Series[series]->Data.Count(); }
};

class LogDemo : public LogTest, public testing::WithParamInterface<LogPoint> {
  protected:
    Texts expectedInputs(int step) {
        const auto& texts = GetParam().inputs;
        return {step >= 1 ? texts[0] : "",
                step >= 2 ? texts[1] : "",
                "",
                step >= 4 ? texts[2] : "",
                "",
                ""};
    }
    Texts expectedResults(int step) {
        Texts texts;
        for (int row = 2; row <= 5; ++row) {
            texts.emplace_back(row <= step ? GetParam().results[static_cast<std::size_t>(row - 2)]
                                           : kOpen);
        }
        return texts;
    }
};

TEST_P(LogDemo, IsFilledInClickByClick) {
    openDemo(3);
    addPoint(GetParam().ml);
    for (int step = 1; step <= 6; ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        ASSERT_EQ(dueStep(), step);
        EXPECT_EQ(inputs(), expectedInputs(step - 1));
        EXPECT_EQ(results(), expectedResults(step - 1));
        Names expected = seenAt(step, Titration::Log, false);
        if (GetParam().x == 0 && GetParam().series != 0) {
            expected.insert("but_AchtungRW");
        } else if (step == 1) {
            expected.insert(member("but_CalcStep", 7));
        }
        EXPECT_EQ(seen(), expected);
        stepButton(step).userClicked();
    }
    EXPECT_EQ(results(), expectedResults(6));
    EXPECT_EQ(stepButton(6).text(), "&Fertig");
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_EQ(bench().vPoints, 0);
    EXPECT_EQ(bench().vWrong, 0);
}

TEST_P(LogDemo, IsDrawnAsPhOrPoh) {
    openDemo(3);
    addPoint(GetParam().ml);
    clickThrough();
    for (const std::size_t series : {1U, 2U, 3U, 4U, 5U}) {
        EXPECT_EQ(points(series), static_cast<int>(series) == GetParam().series ? 1 : 0) << series;
    }
    if (GetParam().series != 0) {
        const SeriesData& data = bench().Series[static_cast<std::size_t>(GetParam().series)]->Data;
        EXPECT_DOUBLE_EQ(data.X(1), GetParam().x);
        EXPECT_EQ(data.Y(1), GetParam().y);
    }
    EXPECT_TRUE(host.control.results.empty());
}

INSTANTIATE_TEST_SUITE_P(All, LogDemo, testing::ValuesIn(kLogPoints));

TEST_F(LogTest, APointOfTheBuretteIsDrawnToo) {
    openForm(Titration::Log, 1.0, true);
    for (const int ml : {0, 9, 10, 11, 20}) {
        addBase(ml);
        bench().but_Calc_Click();
        clickThrough();
    }
    EXPECT_EQ(volumes(2), (std::vector<double>{0, 9}));
    EXPECT_EQ(volumes(5), (std::vector<double>{11, 20}));
    EXPECT_TRUE(host.control.results.empty());
    EXPECT_EQ(session().SessionMySeries->Data.LastX(), 9);
}

TEST_F(LogTest, PointsAreSortedByVolume) {
    openDemo(3);
    for (const char* ml : {"12", "7", "20", "11,5", "2,25", "10", "9,5"}) {
        addPoint(ml);
        clickThrough();
    }
    EXPECT_EQ(volumes(2), (std::vector<double>{2.25, 7, 9.5}));
    EXPECT_EQ(volumes(5), (std::vector<double>{11.5, 12, 20}));
}

TEST_F(LogTest, HasNeitherBreakNorFittedLines) {
    openDemo(3);
    for (const char* ml : {"8", "9", "11", "12", "13"}) {
        addPoint(ml);
        clickThrough();
    }
    EXPECT_TRUE(bench().BreakOpen);
    for (std::size_t series = 1; series <= 5; ++series) {
        EXPECT_TRUE(bench().Series[series]->Style.LineVisible);
        EXPECT_TRUE(bench().Series[series]->fittedLines.empty());
    }
    EXPECT_EQ(field("LastVolume"), FieldValue{13.0});
}

TEST_F(LogTest, OneKlickRunsToTheLastStep) {
    openDemo(12);
    startCalculation();
    stepButton(7).userClicked();
    EXPECT_EQ(dueStep(), 6);
    EXPECT_EQ(inputs(), (Texts{"112", "~ 0", "", "2", "", ""}));
    EXPECT_EQ(results(), (Texts{kNothing, kNothing, "0,02", "1,75"}));
    EXPECT_EQ(points(5), 0);
}

// No start dialog leads here; steps that are only shown let every learner pass.
TEST_F(LogTest, OnlyTheVolumeIsEverWrong) {
    beginPoint(Titration::Log, 1.0, 12);
    answer(1, "100");
    EXPECT_EQ(bench().vWrong, 1);
    EXPECT_EQ(dueStep(), 1);
    EXPECT_EQ(lastBox().text, kReminder);
    host.boxes.answers = {BoxAnswer::Yes};
    answer(1, "");
    EXPECT_EQ(lastBox().text, kSolve);
    EXPECT_EQ(input(1).text(), "112");
    stepButton(1).userClicked();
    host.boxes.shown.clear();
    for (int step = 2; step <= 5; ++step) {
        ASSERT_EQ(dueStep(), step);
        if (step % 2 == 0) {
            input(step).userTyped("irgendwas");
        }
        stepButton(step).userClicked();
    }
    EXPECT_EQ(dueStep(), 6);
    EXPECT_EQ(bench().vWrong, 2);
    EXPECT_EQ(boxes(), Texts{});
    stepButton(6).userClicked();
    EXPECT_EQ(bench().vPoints, 1);
    EXPECT_EQ(lastBox().title, "Punktberechnung");
}

} // namespace
} // namespace quendal::test
