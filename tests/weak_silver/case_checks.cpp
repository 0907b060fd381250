// What the tests of both forms look at alike.
#include "case_fixture.h"

#include "shell/forms/frm_DialogHelp.h"

namespace quendal::test {

void CaseTest::walkPoint(const WalkCase& row) {
    beginPoint(row.concentration, row.ml);
    walk(row.steps, row.helped);
    EXPECT_EQ(session().SessionMySeries->Data.LastX(), row.ml);
    EXPECT_EQ(bench().vPoints, 1);
}

void CaseTest::endPoint(const TaskPoint& point) {
    const auto [concentration, ml] = point;
    beginPoint(concentration, ml);
    goTo(12);
    closeEnd();
    answerRight(12);
    const SeriesData& points = session().SessionMySeries->Data;
    ASSERT_EQ(points.Count(), 1);
    EXPECT_EQ(points.LastX(), ml);
    EXPECT_EQ(points.Y(1), asked(12).value);
    EXPECT_EQ(bench().vLastVol, ml);
    EXPECT_EQ(bench().vMismatch, 0);
    EXPECT_EQ(bench().vWrong, 0);
    EXPECT_EQ(host.sounds.played.front(), "signal 2");
}

void CaseTest::keepsTheSample() {
    beginPoint(1.0, 3);
    goTo(7);
    control<CheckBox>("opt_CalcStore").userChecked(true);
    input(12).setText("x");
    startCalculation();
    EXPECT_EQ(dueStep(), 6);
    EXPECT_EQ(input(3).text(), "0,010");
    EXPECT_EQ(input(6).text(), "");
    EXPECT_EQ(input(12).text(), "");
    EXPECT_TRUE(input(6).hasFocus());
    EXPECT_TRUE(control<CheckBox>("opt_CalcStore").checked());
    EXPECT_EQ(checkedOptions(), "");
}

void CaseTest::beginRung(const RungCase& row) {
    beginPoint(row.concentration, row.ml);
    goTo(row.help.step);
    host.boxes.shown.clear();
    host.sounds.played.clear();
}

void CaseTest::opensDetail(const HelpRow& help) {
    twoMistakes(help.step, {BoxAnswer::Yes});
    EXPECT_EQ(boxes(), (Boxes{kReminder, kHelp}));
    EXPECT_TRUE(flag(help.flag));
    EXPECT_EQ(number("vTries"), 0);
    EXPECT_EQ(dueStep(), help.backTo);
    EXPECT_TRUE(reached(help.backTo));
    if (help.notReached != 0) {
        EXPECT_FALSE(reached(help.notReached));
    }
    EXPECT_EQ(bench().vWrong, 2);
    EXPECT_EQ(bench().Lab_Vallmista.text(), "2");
    EXPECT_EQ(host.sounds.played, (std::vector<std::string>{"signal 1", "signal 1"}));
}

void CaseTest::declinesAll(const HelpRow& help) {
    twoMistakes(help.step, {BoxAnswer::No, BoxAnswer::No});
    EXPECT_EQ(boxes(), (Boxes{kReminder, kHelp, solveQuestion(help.step)}));
    EXPECT_FALSE(flag(help.flag));
}

void CaseTest::offersNoSecondTime(const HelpRow& help) {
    takeHelp(help);
    goTo(help.step);
    host.boxes.shown.clear();
    twoMistakes(help.step, {BoxAnswer::No});
    EXPECT_EQ(boxes(), (Boxes{kReminder, solveQuestion(help.step)}));
}

void CaseTest::beginSolution(const SolveCase& row) {
    beginPoint(row.concentration, row.ml);
    for (const HelpRow& help : lesson_.help) {
        if (row.step < help.step && row.step >= help.backTo && helpAt(help.step) != nullptr) {
            goTo(help.step);
            takeHelp(help);
            break;
        }
    }
    goTo(row.step);
    host.boxes.shown.clear();
}

void CaseTest::takeSolution(const SolveCase& row) {
    twoMistakes(row.step, row.helpFirst ? std::deque{BoxAnswer::No, BoxAnswer::Yes}
                                        : std::deque{BoxAnswer::Yes});
    EXPECT_EQ(boxes().size(), row.helpFirst ? 3U : 2U);
    EXPECT_EQ(lastBox().text, solveQuestion(row.step));
    EXPECT_EQ(dueStep(), row.step);
    EXPECT_EQ(row.step == 7 ? checkedOptions() : input(row.step).text(), row.text);
}

void CaseTest::leaveSolution(const SolveCase& row) {
    const int wrong = bench().vWrong;
    closeNextDialog();
    stepButton(row.step).userClicked();
    EXPECT_EQ(bench().vWrong, wrong);
    EXPECT_EQ(visible("frm_Calc"), row.step != 12);
}

void CaseTest::judges(const AnswerCase& row, double value, const std::string& wrongBox) {
    bench().but_Calc_Click();
    bench().txt_Ph.userTyped(row.text);
    bench().but_CalcDone.userClicked();
    EXPECT_EQ(bench().frm_CalcDirect.visible(), !row.right);
    EXPECT_EQ(bench().vWrong, row.right ? 0 : 1);
    EXPECT_EQ(bench().vPoints, row.right ? 1 : 0);
    if (row.right) {
        EXPECT_EQ(session().SessionMySeries->Data.Y(1), value);
        EXPECT_EQ(host.sounds.played, std::vector<std::string>{"signal 2"});
    } else {
        expectBox("yesno", wrongBox);
        EXPECT_EQ(host.sounds.played, std::vector<std::string>{"signal 1"});
        EXPECT_EQ(bench().Lab_Vallmista.text(), "1");
    }
}

void CaseTest::expectCurveAndHelp(const std::string& curve, const std::string& helpFile) {
    EXPECT_TRUE(host.boxes.shown.empty());
    EXPECT_NE(session().SessionCurve->name.find(curve), std::string::npos);
    std::string file;
    later([&] {
        file = dynamic_cast<frm_DialogHelp&>(*host.windows.top()).FileName;
        host.windows.userClosed(*host.windows.top());
    });
    bench().but_Help.userClicked();
    EXPECT_EQ(file, helpFile);
}

void CaseTest::keepsTheSignOfChloride() {
    for (const bool plain : {true, false}) {
        session().PlainChloride = plain;
        open();
        EXPECT_EQ(session().PlainChloride, plain);
        close();
        EXPECT_EQ(session().PlainChloride, plain);
    }
}

} // namespace quendal::test
