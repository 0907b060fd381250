// The six steps of the guided calculation with right answers.
#include "conducto_fixture.h"

namespace quendal::test {
namespace {

class Guidance : public ConductoTest {
  protected:
    std::vector<int> doneSteps() {
        std::vector<int> steps;
        for (int step = 1; step <= 12; ++step) {
            if (reached(step)) {
                steps.push_back(step);
            }
        }
        return steps;
    }
};

struct FormCase {
    Titration titration;
    double concentration;
    int ml;
};

class EachStep : public Guidance, public testing::WithParamInterface<FormCase> {};

TEST_P(EachStep, ShowsItsRowsAndThoseBeforeIt) {
    const auto& [titration, concentration, ml] = GetParam();
    beginPoint(titration, concentration, ml);
    const PointTexts& point = pointOf(titration, concentration, ml);
    std::vector<int> done;
    for (int step = 1; step <= 6; ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        done.push_back(step);
        EXPECT_EQ(dueStep(), step);
        EXPECT_EQ(doneSteps(), done);
        EXPECT_EQ(seen(), seenAt(step, titration, true));
        EXPECT_TRUE(input(step).hasFocus());
        EXPECT_EQ(stepButton(step).text(), "Weiter!");
        answerSteps(point, step, step);
        EXPECT_EQ(number("vTries"), 0);
    }
    EXPECT_EQ(bench().vWrong, 0);
    EXPECT_EQ(bench().vPoints, 1);
}

INSTANTIATE_TEST_SUITE_P(All, EachStep,
                         testing::Values(FormCase{Titration::Strong, 1.0, 1},
                                         FormCase{Titration::Weak, 0.6, 7},
                                         FormCase{Titration::Silver, 1.4, 14}));

TEST_F(Guidance, TheLogarithmsShowLess) {
    beginPoint(Titration::Log, 1.0, 12);
    EXPECT_EQ(seen(), seenAt(1, Titration::Log, true));
    answer(1, "112");
    for (int step = 2; step <= 6; ++step) {
        EXPECT_EQ(dueStep(), step);
        EXPECT_EQ(seen(), seenAt(step, Titration::Log, step != 6)) << "step " << step;
        stepButton(step).userClicked();
    }
}

class EachPoint : public Guidance, public testing::WithParamInterface<PointTexts> {};

TEST_P(EachPoint, IsRightWithWhatTheModelSays) {
    const PointTexts& point = GetParam();
    beginPoint(point.titration, point.concentration, point.ml);
    if (point.ml == 20) {
        closeNextDialog();
    }
    calculateGuided(point);
    EXPECT_EQ(bench().vWrong, 0);
    EXPECT_EQ(bench().vMismatch, 0);
    EXPECT_EQ(bench().vPoints, 1);
    EXPECT_EQ(bench().vLastVol, point.ml);
    EXPECT_FALSE(visible("frm_Calc"));
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(bench().Series[i + 2]->Data.Y(1), host.numbers.Parse(point.results[i]));
    }
    EXPECT_EQ(bench().Series[1]->Data.Y(1), host.numbers.Parse(point.inputs[5]));
    EXPECT_EQ(bench().Series[1]->Data.X(1), point.ml);
}

INSTANTIATE_TEST_SUITE_P(All, EachPoint, testing::ValuesIn(kPoints));

TEST_F(Guidance, StartsAnewEachTime) {
    beginPoint(Titration::Strong, 0.8, 5);
    const PointTexts& point = pointOf(Titration::Strong, 0.8, 5);
    answerSteps(point, 1, 4);
    workOut(5, 3);
    stepButton(5).userClicked();
    EXPECT_EQ(number("vTries"), 1);
    input(6).setText("x");
    bench().vMismatch = 2;
    startCalculation();
    EXPECT_EQ(dueStep(), 1);
    EXPECT_EQ(doneSteps(), std::vector<int>{1});
    EXPECT_EQ(number("vTries"), 0);
    EXPECT_EQ(bench().vMismatch, 0);
    EXPECT_EQ(inputs(), Texts(6));
    EXPECT_EQ(results(), Texts(4, kOpen));
    EXPECT_EQ(seen(), seenAt(1, Titration::Strong, true));
}

struct VolumeCase {
    const char* typed;
    bool right;
};

class TotalVolume : public Guidance, public testing::WithParamInterface<VolumeCase> {};

TEST_P(TotalVolume, CountsNoDecimalsAndGoesIntoTheRowsAsItIs) {
    beginPoint(Titration::Silver, 1.2, 5);
    answer(1, GetParam().typed);
    EXPECT_EQ(dueStep(), GetParam().right ? 2 : 1);
    EXPECT_EQ(bench().vWrong, GetParam().right ? 0 : 1);
    for (int row = 2; row <= 5; ++row) {
        EXPECT_EQ(control<ctl_Label>("lab_LFVol", row).text(),
                  GetParam().right ? GetParam().typed : "");
    }
}

INSTANTIATE_TEST_SUITE_P(All, TotalVolume,
                         testing::Values(VolumeCase{"105", true}, VolumeCase{"105,4", true},
                                         VolumeCase{"104.6", true}, VolumeCase{"1,05*10^2", true},
                                         VolumeCase{"104,4", false}, VolumeCase{"106", false},
                                         VolumeCase{"15", false}, VolumeCase{"", false}));

struct ResultCase {
    const char* amount;
    double worked;
    bool right;
};

class RowResult : public Guidance, public testing::WithParamInterface<ResultCase> {};

// 7 mmol in 103 mL times 349.8: 23.77.
TEST_P(RowResult, CountsAndNotTheAmount) {
    beginPoint(Titration::Strong, 1.0, 3);
    answer(1, "103");
    input(2).userTyped(GetParam().amount);
    workOut(2, GetParam().worked);
    stepButton(2).userClicked();
    EXPECT_EQ(dueStep(), GetParam().right ? 3 : 2);
    EXPECT_EQ(input(2).text(), GetParam().amount);
}

INSTANTIATE_TEST_SUITE_P(All, RowResult,
                         testing::Values(ResultCase{"7", 23.7728, true},
                                         ResultCase{"999", 23.7728, true},
                                         ResultCase{"", 23.77, true}, ResultCase{"x", 23.774, true},
                                         ResultCase{"7", 23.78, false},
                                         ResultCase{"7", 23.7649, false},
                                         ResultCase{"7", 0, false}));

TEST_F(Guidance, WhatStandsThereIsWhatIsDrawn) {
    beginPoint(Titration::Strong, 1.0, 10);
    const PointTexts& point = pointOf(Titration::Strong, 1.0, 10);
    answerSteps(point, 1, 5);
    answer(6, " 11.5049 "); // right to two decimals, and kept as it is
    EXPECT_EQ(bench().Series[1]->Data.Y(1), 11.5049);
    EXPECT_EQ(bench().Series[3]->Data.Y(1), 6.95);
    EXPECT_EQ(bench().Series[4]->Data.Y(1), 4.55);
}

class LastStep : public Guidance {
  protected:
    void SetUp() override {
        beginPoint(Titration::Weak, 1.0, 5);
        answerSteps(pointOf(Titration::Weak, 1.0, 5), 1, 5);
        host.boxes.shown.clear();
    }
};

TEST_F(LastStep, TakesTwoClicks) {
    EXPECT_EQ(stepButton(6).text(), "Weiter!");
    answer(6, "4,34");
    EXPECT_EQ(stepButton(6).text(), "&Fertig");
    EXPECT_EQ(stepButton(6).pictureIcon(), "Ico\\20\\Computer\\Signs\\Abort.ico");
    EXPECT_TRUE(stepButton(6).visible());
    EXPECT_TRUE(visible("frm_Calc"));
    EXPECT_FALSE(bench().but_Help.visible());
    EXPECT_EQ(bench().vPoints, 1);
    EXPECT_EQ(bench().vLastVol, 5.0);
    EXPECT_EQ(lastBox().title, "Punktberechnung");
    EXPECT_EQ(host.sounds.played, Texts{"signal 2"});

    stepButton(6).userClicked();
    EXPECT_EQ(stepButton(6).text(), "&Weiter!");
    EXPECT_EQ(stepButton(6).pictureIcon(), "Ico\\20\\Computer\\Signs\\Next.ico");
    EXPECT_FALSE(visible("frm_Calc"));
    EXPECT_TRUE(bench().ctl_Button3.visible());
    EXPECT_TRUE(bench().but_Help.visible());
    EXPECT_TRUE(bench().but_phCompare.visible());
    EXPECT_EQ(bench().vPoints, 1);
    EXPECT_EQ(bench().Series[1]->Data.Count(), 1);
    EXPECT_EQ(host.sounds.played, Texts{"signal 2"});
    EXPECT_EQ(host.boxes.shown.size(), 1U);

    startCalculation(); // the other captions are set anew
    EXPECT_EQ(stepButton(6).text(), "&Weiter!");
    EXPECT_EQ(stepButton(5).text(), "Weiter!");
}

TEST_F(LastStep, IsSilentAfterAMistakenNumber) {
    answer(6, "4,35");
    answer(6, "4,34");
    EXPECT_EQ(bench().vMismatch, 1);
    EXPECT_EQ(host.sounds.played, Texts{"signal 1"});
    EXPECT_EQ(bench().vPoints, 1);
}

TEST_F(LastStep, ALetterIsNoMistakenNumber) {
    answer(6, "viel");
    answer(6, "4,34");
    EXPECT_EQ(host.sounds.played, (Texts{"signal 1", "signal 2"}));
}

TEST_F(LastStep, ReturnClosesTheFrameToo) {
    input(6).userTyped("4,34");
    EXPECT_TRUE(bench().userKey(Key::Enter));
    EXPECT_EQ(stepButton(6).text(), "&Fertig");
    EXPECT_TRUE(bench().userKey(Key::Enter));
    EXPECT_FALSE(visible("frm_Calc"));
    EXPECT_FALSE(bench().Form_KeyDown(Key::Enter));
}

TEST_F(Guidance, ReturnClicksTheStepThatIsDue) {
    beginPoint(Titration::Silver, 0.8, 3);
    const PointTexts& point = pointOf(Titration::Silver, 0.8, 3);
    input(1).userTyped("103");
    EXPECT_TRUE(bench().userKey(Key::Enter));
    for (int row = 2; row <= 5; ++row) {
        ASSERT_EQ(dueStep(), row);
        workOut(row, host.numbers.Parse(point.results[static_cast<std::size_t>(row - 2)]));
        EXPECT_TRUE(bench().userKey(Key::Enter));
    }
    EXPECT_EQ(dueStep(), 6);
    EXPECT_FALSE(bench().Form_KeyDown(Key::Escape));
}

TEST_F(Guidance, ReturnIsLeftAloneWithoutACalculation) {
    openForm(Titration::Strong);
    EXPECT_FALSE(bench().Form_KeyDown(Key::Enter));
}

} // namespace
} // namespace quendal::test
