// The demonstration: what a click fills in, and what a demonstration never does.
#include "conducto_fixture.h"

namespace quendal::test {
namespace {

class Demo : public ConductoTest {
  protected:
    static constexpr int kOneClick = 7;

    void expectNothingCounted() {
        EXPECT_EQ(bench().vPoints, 0);
        EXPECT_EQ(bench().vWrong, 0);
        EXPECT_EQ(boxes(), Texts{});
        EXPECT_EQ(host.sounds.played, Texts{});
        EXPECT_TRUE(host.control.progress.empty());
        EXPECT_TRUE(host.control.results.empty());
    }
    // Both clicks of the last step.
    void finish() {
        stepButton(6).userClicked();
        stepButton(6).userClicked();
    }
};

class DemoPoint : public Demo, public testing::WithParamInterface<PointTexts> {};

TEST_P(DemoPoint, IsFilledInClickByClick) {
    const PointTexts& point = GetParam();
    beginPoint(point.titration, point.concentration, point.ml, true);
    for (int step = 1; step <= 6; ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        ASSERT_EQ(dueStep(), step);
        EXPECT_EQ(inputs(), inputsUpTo(point, step - 1));
        EXPECT_EQ(results(), resultsUpTo(point, step - 1));
        EXPECT_EQ(stepButton(step).text(), step == 6 ? "Weiter!" : "D-Klick!");
        Names expected = seenAt(step, point.titration, false);
        if (point.ml == 0) {
            expected.insert("but_AchtungRW");
        } else if (step == 1) {
            expected.insert(member("but_CalcStep", kOneClick));
        }
        EXPECT_EQ(seen(), expected);
        stepButton(step).userClicked();
    }
    EXPECT_EQ(inputs(), inputsUpTo(point, 6));
    EXPECT_EQ(stepButton(6).text(), "&Fertig");
    EXPECT_EQ(bench().vLastVol, point.ml);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(bench().Series[i + 2]->Data.Y(1), host.numbers.Parse(point.results[i]));
    }
    EXPECT_EQ(bench().Series[1]->Data.Y(1), host.numbers.Parse(point.inputs[5]));
    expectNothingCounted();
    stepButton(6).userClicked();
    EXPECT_FALSE(visible("frm_Calc"));
    EXPECT_TRUE(bench().ctl_Button3.visible());
    EXPECT_EQ(bench().Series[1]->Data.Count(), 1);
    expectNothingCounted();
}

TEST_P(DemoPoint, RunsToItsSumInOneClick) {
    const PointTexts& point = GetParam();
    beginPoint(point.titration, point.concentration, point.ml, true);
    stepButton(kOneClick).userClicked();
    if (point.ml == 0) {
        EXPECT_EQ(dueStep(), 1); // it isn't there at the start
        return;
    }
    EXPECT_EQ(dueStep(), 6);
    EXPECT_TRUE(flag("vAutoRun"));
    EXPECT_EQ(inputs(), inputsUpTo(point, 5));
    EXPECT_EQ(results(), resultsUpTo(point, 5));
    EXPECT_EQ(seen(), seenAt(6, point.titration, false));
    EXPECT_EQ(bench().Series[1]->Data.Count(), 0); // the last step waits for its own clicks
    finish();
    EXPECT_EQ(bench().Series[1]->Data.Count(), 1);
    addBase(point.ml + 1);
    startCalculation();
    EXPECT_FALSE(flag("vAutoRun"));
    EXPECT_EQ(dueStep(), 1);
}

INSTANTIATE_TEST_SUITE_P(All, DemoPoint, testing::ValuesIn(kPoints));

TEST_F(Demo, TheFirstClickTakesOneKlickAway) {
    beginPoint(Titration::Strong, 1.0, 10, true);
    EXPECT_TRUE(stepButton(kOneClick).visible());
    EXPECT_EQ(stepButton(kOneClick).text(), "'one' - Klick");
    stepButton(1).userClicked();
    EXPECT_FALSE(stepButton(kOneClick).visible());
    EXPECT_FALSE(flag("vAutoRun"));
}

TEST_F(Demo, ReturnNeverPressesOneKlick) {
    beginPoint(Titration::Strong, 1.0, 10, true);
    EXPECT_TRUE(bench().userKey(Key::Enter));
    EXPECT_EQ(dueStep(), 2);
    EXPECT_FALSE(flag("vAutoRun"));
}

TEST_F(Demo, OnlyTheStartIsNotShownTwice) {
    for (const Titration one : {Titration::Strong, Titration::Weak, Titration::Silver}) {
        const PointTexts& start = pointOf(one, 1.0, 0);
        beginPoint(one, 1.0, 0, true);
        for (int step = 1; step <= 5; ++step) {
            stepButton(step).userClicked();
        }
        finish();
        startCalculation(); // stays as it was laid out, emptied
        EXPECT_EQ(dueStep(), 6);
        EXPECT_TRUE(visible("frm_Calc"));
        EXPECT_EQ(inputs(), Texts(6));
        EXPECT_EQ(results(), Texts(4, kOpen));
        EXPECT_FALSE(visible("but_AchtungRW"));
        EXPECT_FALSE(stepButton(kOneClick).visible());
        finish(); // what is not worked out is drawn as 0
        EXPECT_EQ(bench().Series[1]->Data.Count(), 2);
        EXPECT_EQ(bench().Series[1]->Data.Y(2), host.numbers.Parse(start.inputs[5]));
        for (std::size_t i = 2; i <= 5; ++i) {
            EXPECT_EQ(bench().Series[i]->Data.Y(2), 0) << "series " << i;
        }
        addBase(10);
        startCalculation();
        EXPECT_EQ(dueStep(), 1);
        EXPECT_FALSE(visible("but_AchtungRW"));
        stepButton(kOneClick).userClicked();
        finish();
        EXPECT_EQ(bench().vLastVol, 10);
        startCalculation(); // shown before, and shown again
        EXPECT_EQ(dueStep(), 1);
        EXPECT_EQ(inputs(), Texts(6));
        EXPECT_TRUE(stepButton(kOneClick).visible());
    }
}

TEST_F(Demo, TheStartIsAskedForAgainOutsideADemo) {
    beginPoint(Titration::Weak, 1.0, 0);
    calculateGuided(pointOf(Titration::Weak, 1.0, 0));
    startCalculation();
    EXPECT_EQ(dueStep(), 1);
    EXPECT_FALSE(visible("but_AchtungRW"));
    EXPECT_FALSE(stepButton(kOneClick).visible());
}

TEST_F(Demo, ASecondCalculationKeepsTheCaptionOfTheLastStep) {
    beginPoint(Titration::Silver, 1.0, 10, true);
    stepButton(kOneClick).userClicked();
    finish();
    addBase(15);
    startCalculation();
    EXPECT_EQ(stepButton(1).text(), "D-Klick!");
    EXPECT_EQ(stepButton(5).text(), "D-Klick!");
    EXPECT_EQ(stepButton(6).text(), "&Weiter!");
}

TEST_F(Demo, TheBreakOpensToo) {
    openForm(Titration::Silver, 1.0, true);
    for (const int ml : {9, 10, 11, 12, 20}) {
        addBase(ml);
        startCalculation();
        stepButton(kOneClick).userClicked();
        finish();
    }
    EXPECT_FALSE(bench().BreakOpen);
    EXPECT_EQ(bench().BreakIndex, 2);
    EXPECT_EQ(bench().Series[5]->fittedLines.size(), 2U);
    expectNothingCounted();
}

} // namespace
} // namespace quendal::test
