// The demo of both forms: what is filled in, where it warns, how it runs.
#include "case_fixture.h"

namespace quendal::test {
namespace {

struct FilledCase {
    int ml;
    std::vector<std::string> texts; // of steps 1 to 6 and 8 to 12
    const char* option;
};

struct WarningCase {
    double concentration;
    int ml;
    bool warns;
};

// On one of the two forms.
template <class Test>
class Demo : public Test {
  protected:
    void answersItself(double concentration, int ml) {
        this->beginPoint(concentration, ml, true);
        EXPECT_EQ(this->clickThrough().back(), 12);
        this->closeNextDialog();
        this->stepButton(12).userClicked();
        EXPECT_FALSE(this->visible("frm_Calc"));
        EXPECT_EQ(this->bench().vWrong, 0);
        EXPECT_EQ(this->bench().vPoints, 0);
        EXPECT_EQ(this->bench().vLastVol, ml);
        EXPECT_EQ(session().SessionMySeries->Data.Y(1), this->asked(12).value);
        EXPECT_TRUE(this->host.boxes.shown.empty());
        EXPECT_TRUE(this->host.sounds.played.empty());
    }
    void fillsIn(const FilledCase& row) {
        this->beginPoint(1.0, row.ml, true);
        this->stepButton(this->dueStep()).userClicked();
        EXPECT_EQ(this->inputTexts(), row.texts);
        EXPECT_EQ(this->checkedOptions(), row.option);
    }
    void warns(const WarningCase& row) {
        this->beginPoint(row.concentration, row.ml, true);
        EXPECT_EQ(this->visible("but_AchtungRW"), row.warns);
        EXPECT_EQ(this->stepButton(13).visible(), !row.warns);
    }
    // The point is finished; a second start there changes nothing.
    void startsOnce(double concentration, int ml) {
        answersItself(concentration, ml);
        const Seen before = this->seen();
        this->startCalculation();
        EXPECT_TRUE(this->visible("frm_Calc"));
        EXPECT_EQ(this->seen(), before);
        EXPECT_EQ(this->dueStep(), 12);
        this->template control<Control>("frm_Calc").setVisible(false);
        this->addBase(ml + 1);
        this->startCalculation();
        EXPECT_EQ(this->dueStep(), 1);
        EXPECT_TRUE(this->stepButton(1).visible());
    }
};

class WeakDemo : public Demo<WeakTest> {};
class SilverDemo : public Demo<SilverTest> {};

class WeakFilled : public WeakDemo, public testing::WithParamInterface<FilledCase> {};
class SilverFilled : public SilverDemo, public testing::WithParamInterface<FilledCase> {};

TEST_P(WeakFilled, EveryInputOfThePointHasItsFormat) {
    fillsIn(GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, WeakFilled,
                         testing::Values(FilledCase{0,
                                                    {"1", "0.01", "0,01", "1", "0", "0", "", "", "",
                                                     "", "2,38"},
                                                    "0"},
                                         FilledCase{4,
                                                    {"1", "0.01", "0,01", "1", "0,004", "0,004",
                                                     "0,006", "0,004", "1,500", "", "4,58"},
                                                    "1"},
                                         FilledCase{10,
                                                    {"1", "0.01", "0,01", "1", "0,01", "0,01",
                                                     "0,010", "0,020", "0,500", "", "9,23"},
                                                    "2"},
                                         FilledCase{12,
                                                    {"1", "0.01", "0,01", "1", "0,012", "0,012",
                                                     "0,002", "0,022", "0,091", "1,04", "12,96"},
                                                    "3"},
                                         FilledCase{20,
                                                    {"1", "0.01", "0,01", "1", "0,02", "0,02",
                                                     "0,01", "0,03", "0,333", "0,48", "13,52"},
                                                    "3"}));

TEST_P(SilverFilled, EveryInputOfThePointHasItsFormat) {
    fillsIn(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    All, SilverFilled,
    testing::Values(
        FilledCase{1,
                   {"1", "0.01", "0,01", "1", "0,001", "0,001", "0,009", "0,011", "0,818",
                    "2,438*10^-10", "0,233"},
                   "1"},
        FilledCase{4,
                   {"1", "0.01", "0,01", "1", "0,004", "0,004", "0,006", "0,014", "0,429",
                    "4,655*10^-10", "0,249"},
                   "1"},
        // No concentration of chloride is asked there, but the calculator's lines quote the field.
        FilledCase{10,
                   {"1", "0.01", "0,01", "1", "0,01", "0,01", "0,000", "", "1,412*10^-05",
                    "1,412*10^-05", "0,514"},
                   "2"},
        FilledCase{
            12,
            {"1", "0.01", "0,01", "1", "0,012", "0,012", "0,002", "0,022", "0,091", "", "0,739"},
            "3"}));

TEST_F(WeakDemo, TheNumbersStandInTheRules) {
    beginPoint(1.0, 4, true);
    stepButton(1).userClicked();
    stepButton(2).userClicked();
    EXPECT_EQ(term("lab_Calc", 5), "nµV(HAc) = 1 * 0.01");
    EXPECT_EQ(term("lab_Calc", 10), "nµZ(OH) = 1 * 0,004");
}

struct WayCase {
    int ml;
    std::vector<int> steps;
};

class WeakDemoWay : public WeakDemo, public testing::WithParamInterface<WayCase> {};
class SilverDemoWay : public SilverDemo, public testing::WithParamInterface<WayCase> {};

TEST_P(WeakDemoWay, IsTheLongOne) {
    beginPoint(1.0, GetParam().ml, true);
    EXPECT_EQ(clickThrough(), GetParam().steps);
    for (int option = 0; option < 4; ++option) {
        EXPECT_TRUE(visible("lab_optCalc", option));
    }
    EXPECT_EQ(visible("lab_Calc", 27), GetParam().ml > 0); // the last formula
    EXPECT_EQ(visible("lab_Calc", 19), true);
    EXPECT_EQ(stepButton(12).text(), "D-Klick!");
}

INSTANTIATE_TEST_SUITE_P(All, WeakDemoWay,
                         testing::Values(WayCase{0, {7, 12}},
                                         WayCase{4, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12}},
                                         WayCase{10, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12}},
                                         WayCase{12, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}}));

TEST_P(SilverDemoWay, IsTheLongOne) {
    beginPoint(1.0, GetParam().ml, true);
    EXPECT_EQ(clickThrough(), GetParam().steps);
    EXPECT_TRUE(visible("lab_Calc", 27));
    EXPECT_EQ(visible("lab_Calc", 23), GetParam().ml <= 10); // how c(Ag+) comes about
    EXPECT_EQ(visible("lab_Calc", 19), GetParam().ml != 10); // and the concentration
}

INSTANTIATE_TEST_SUITE_P(All, SilverDemoWay,
                         testing::Values(WayCase{4, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}},
                                         WayCase{10, {1, 2, 3, 4, 5, 6, 7, 8, 11, 12}},
                                         WayCase{12, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12}}));

class WeakWarning : public WeakDemo, public testing::WithParamInterface<WarningCase> {};
class SilverWarning : public SilverDemo, public testing::WithParamInterface<WarningCase> {};

TEST_P(WeakWarning, StandsWhereTheWayChanges) {
    warns(GetParam());
    EXPECT_EQ(control<ctl_Pannel>("but_AchtungRW").text(), "Achtung!<br>Neuer Rechenweg!");
    EXPECT_EQ(stepButton(13).text(), "'one' - Klick");
}

// "10 + the concentration" is a whole volume at 1 mol/L only.
INSTANTIATE_TEST_SUITE_P(Volumes, WeakWarning,
                         testing::Values(WarningCase{1.0, 0, true}, WarningCase{1.0, 1, true},
                                         WarningCase{1.0, 2, false}, WarningCase{1.0, 9, false},
                                         WarningCase{1.0, 10, true}, WarningCase{1.0, 11, true},
                                         WarningCase{1.0, 12, false}, WarningCase{0.6, 0, true},
                                         WarningCase{0.6, 1, false}, WarningCase{0.6, 6, true},
                                         WarningCase{0.6, 7, true}, WarningCase{0.6, 10, false}));

TEST_P(SilverWarning, StandsWhereTheWayChanges) {
    warns(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Volumes, SilverWarning,
                         testing::Values(WarningCase{1.0, 0, false}, WarningCase{1.0, 1, true},
                                         WarningCase{1.0, 2, false}, WarningCase{1.0, 9, false},
                                         WarningCase{1.0, 10, true}, WarningCase{1.0, 11, true},
                                         WarningCase{1.0, 12, false}, WarningCase{0.8, 1, false},
                                         WarningCase{0.8, 8, true}, WarningCase{0.8, 9, true}));

TEST_F(WeakDemo, ACalculationHasNoWarning) {
    beginPoint(1.0, 10);
    EXPECT_FALSE(visible("but_AchtungRW"));
    EXPECT_FALSE(stepButton(13).visible());
}

class EveryWeakDemo : public WeakDemo, public testing::WithParamInterface<TaskPoint> {};
class EverySilverDemo : public SilverDemo, public testing::WithParamInterface<TaskPoint> {};

TEST_P(EveryWeakDemo, AnswersItself) {
    answersItself(std::get<0>(GetParam()), std::get<1>(GetParam()));
}
TEST_P(EverySilverDemo, AnswersItself) {
    answersItself(std::get<0>(GetParam()), std::get<1>(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, EveryWeakDemo, everyPoint(0));
INSTANTIATE_TEST_SUITE_P(All, EverySilverDemo, everyPoint(1));

TEST_F(WeakDemo, OneClickRunsToTheLastStep) {
    beginPoint(1.0, 4, true);
    stepButton(13).userClicked();
    EXPECT_EQ(dueStep(), 12);
    EXPECT_TRUE(flag("vAutoRun"));
    EXPECT_TRUE(stepButton(12).visible());
    for (int step = 1; step <= 12; ++step) {
        EXPECT_EQ(reached(step), step != 11) << step;
    }
    EXPECT_EQ(session().SessionMySeries->Data.Count(), 0); // the last click is the learner's
    EXPECT_TRUE(host.boxes.shown.empty());
}

TEST_F(SilverDemo, OneClickRunsToTheLastStep) {
    beginPoint(1.0, 13, true);
    stepButton(13).userClicked();
    EXPECT_EQ(dueStep(), 12);
    EXPECT_TRUE(stepButton(12).visible());
    EXPECT_FALSE(reached(11));
    EXPECT_EQ(session().SessionMySeries->Data.Count(), 0);
}

TEST_F(WeakDemo, ASecondStartAtTheSameVolumeLeavesTheFrame) {
    startsOnce(1.0, 4);
}
TEST_F(SilverDemo, ASecondStartAtTheSameVolumeLeavesTheFrame) {
    startsOnce(1.0, 10);
}

TEST_F(WeakDemo, TheButtonLeadsStraightToTheCalculation) {
    open(1.0, true);
    addBase(4);
    bench().but_Calc_Click();
    EXPECT_TRUE(visible("frm_Calc"));
    EXPECT_FALSE(bench().frm_CalcDirect.visible());
}

} // namespace
} // namespace quendal::test
