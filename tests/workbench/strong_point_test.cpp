#include "strong_fixture.h"

namespace quendal::test {
namespace {

class StrongPoint : public BenchTest {};

TEST_F(StrongPoint, ADemoFillsInAndShowsTheLongWay) {
    begin(1.0, 12, true);
    EXPECT_EQ(dueStep(), 1);
    EXPECT_TRUE(flag("vDetailAcid") && flag("vDetailBase") && flag("vDetailConc"));
    stepButton(1).userClicked();
    const char* texts[] = {"",      "1",     "0.01",  "0,01",  "1",    "0,012", "0,012",
                           nullptr, "0,002", "0,022", "0,091", "1,04", "12,96"};
    for (int step = 1; step <= 12; ++step) {
        if (step != 7) {
            EXPECT_EQ(input(step).text(), texts[step]) << step;
        }
    }
    EXPECT_TRUE(control<OptionButton>("opt_Calc", 1).checked());
    EXPECT_EQ(stepButton(1).text(), "D-Klick!");
    for (int step = 2; step <= 7; ++step) {
        EXPECT_EQ(dueStep(), step);
        stepButton(step).userClicked();
    }
    EXPECT_EQ(term("lab_Calc", 5), "1 * 0.01");
    EXPECT_EQ(term("lab_Calc", 10), "1 * 0,012");
    for (const int option : {0, 1, 2}) {
        const int colors[] = {12, 9, 2};
        EXPECT_EQ(control<OptionButton>("opt_Calc", option).textColor(), palette(colors[option]));
    }
}

struct WarningCase {
    int base;
    bool changes;
};

class DemoWarning : public StrongPoint, public testing::WithParamInterface<WarningCase> {};

TEST_P(DemoWarning, StandsWhereTheWayChanges) {
    begin(1.0, GetParam().base, true);
    EXPECT_EQ(visible("but_AchtungRW"), GetParam().changes);
    EXPECT_EQ(visible("but_CalcStep", 13), !GetParam().changes);
    EXPECT_EQ(control<ctl_Pannel>("but_AchtungRW").text(), "Achtung!<br>Neuer Rechenweg!");
    EXPECT_EQ(stepButton(13).text(), "'one' - Klick");
}

INSTANTIATE_TEST_SUITE_P(Volumes, DemoWarning,
                         testing::Values(WarningCase{0, true}, WarningCase{1, false},
                                         WarningCase{9, false}, WarningCase{10, true},
                                         WarningCase{11, true}, WarningCase{12, false}));

TEST_F(StrongPoint, OneKlickRunsToTheLastStepInOneClick) {
    begin(1.0, 12, true);
    stepButton(13).userClicked();
    EXPECT_EQ(dueStep(), 12);
    EXPECT_TRUE(flag("vAutoRun"));
    for (int step = 1; step <= 12; ++step) {
        EXPECT_TRUE(reached(step)) << step;
    }
    EXPECT_TRUE(stepButton(12).visible());
    EXPECT_TRUE(visible("frm_Calc"));
    EXPECT_TRUE(host.boxes.shown.empty());
}

TEST_F(StrongPoint, ADemoPointEndsWithoutPraise) {
    begin(1.0, 20, true);
    stepButton(13).userClicked();
    closeNextDialog();
    stepButton(12).userClicked();
    EXPECT_FALSE(visible("frm_Calc"));
    EXPECT_EQ(bench().vLastVol, 20.0);
    EXPECT_EQ(session().SessionMySeries->Data.LastX(), 20.0);
    EXPECT_EQ(bench().vPoints, 0);
    EXPECT_TRUE(host.boxes.shown.empty());
    EXPECT_TRUE(host.sounds.played.empty());
    EXPECT_TRUE(host.control.progress.empty());
    EXPECT_TRUE(host.control.results.empty());
}

TEST_F(StrongPoint, ASecondDemoOfTheSameVolumeLeavesTheFrameAsItWas) {
    begin(1.0, 5, true);
    stepButton(13).userClicked();
    closeNextDialog();
    stepButton(12).userClicked();
    startCalculation();
    EXPECT_EQ(dueStep(), 12);
    EXPECT_TRUE(visible("frm_Calc"));
    EXPECT_TRUE(stepButton(12).visible());
    EXPECT_FALSE(stepButton(1).visible());
    EXPECT_TRUE(input(1).visible());
    addBase(6);
    startCalculation();
    EXPECT_EQ(dueStep(), 1);
    EXPECT_TRUE(stepButton(1).visible());
}

TEST_F(StrongPoint, APerfectCalculationIsPraised) {
    begin(0.6, 6);
    answer(3, "0,006");
    answer(6, "0,006");
    choose(2);
    answer(10, "0,000");
    EXPECT_EQ(dueStep(), 12);
    closeNextDialog();
    answer(12, "7");
    EXPECT_EQ(host.sounds.played, std::vector<std::string>{"signal 2"});
    EXPECT_EQ(bench().vLastVol, 6.0);
    EXPECT_EQ(session().SessionMySeries->Data.Y(1), 7.0);
    EXPECT_TRUE(bench().ctl_Button3.visible());
    EXPECT_TRUE(bench().but_phCompare.visible());
    EXPECT_FALSE(bench().but_Calc.visible());
    EXPECT_FALSE(bench().ctl_Button2.visible());
    EXPECT_FALSE(dialogphCompare().shown());
    EXPECT_EQ(dueStep(), 12);
    EXPECT_EQ(number("vTries"), 0);
}

TEST_F(StrongPoint, AMistakenNumberCostsThePraise) {
    begin(0.6, 6);
    answer(3, "0,006");
    answer(6, "1");
    answer(6, "0,006");
    choose(2);
    answer(10, "0");
    host.sounds.played.clear();
    closeNextDialog();
    answer(12, "7");
    EXPECT_TRUE(host.sounds.played.empty());
    EXPECT_EQ(bench().vPoints, 1);
}

TEST_F(StrongPoint, TheLastPointOpensTheResultBeforeTheCurve) {
    begin(1.0, 20);
    answer(3, "0,01");
    answer(6, "0,02");
    choose(1);
    answer(10, "0,333");
    answer(11, "0,48");
    std::vector<std::string> order;
    for (int dialog = 0; dialog < 2; ++dialog) {
        later([this, &order] {
            order.push_back(host.windows.top()->name());
            host.windows.userClosed(*host.windows.top());
        });
    }
    answer(12, "13,52");
    EXPECT_EQ(order, (std::vector<std::string>{"frm_DialogDone", "frm_DialogphCompare"}));
    EXPECT_EQ(host.control.results.size(), 1U);
}

TEST_F(StrongPoint, NothingHappensWithAnEmptyBeaker) {
    open();
    startCalculation();
    const int step = dueStep();
    answer(step, "1");
    EXPECT_EQ(dueStep(), step);
    EXPECT_EQ(bench().vWrong, 0);
    EXPECT_EQ(bench().vConc, 1.0);
}

} // namespace
} // namespace quendal::test
