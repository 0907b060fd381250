// What the tutor of the weak acid does about wrong answers.
#include "case_fixture.h"

namespace quendal::test {
namespace {

class WeakLadder : public WeakTest {};

TEST_F(WeakLadder, TheFirstMistakeIsOnlyCounted) {
    beginPoint(0.8, 3);
    answerWrong(3);
    expectBox("ok", kReminder);
    EXPECT_EQ(host.boxes.shown.size(), 1U);
    EXPECT_EQ(number("vTries"), 1);
    EXPECT_EQ(bench().vWrong, 1);
    EXPECT_EQ(bench().Lab_Vallmista.text(), "1");
    EXPECT_EQ(host.sounds.played, std::vector<std::string>{"signal 1"});
    ASSERT_EQ(host.control.progress.size(), 1U);
    EXPECT_EQ(host.control.progress[0].wrong, 1);
    EXPECT_EQ(bench().vSolveUsed, 0);
    EXPECT_EQ(bench().vHelpUsed, 0);
}

class WeakRung : public Rung<WeakLadder> {};

TEST_P(WeakRung, OpensItsDetailOnYes) {
    opensDetail(help());
    EXPECT_EQ(bench().vHelpUsed, 1);
    EXPECT_EQ(bench().vSolveUsed, 0);
    EXPECT_EQ(host.control.progress.size(), 2U);
    EXPECT_EQ(bench().lab_helpused.text(), "0"); // shown with the point
}

TEST_P(WeakRung, IsNotOfferedTwice) {
    const int step = help().step;
    offersNoSecondTime(help());
    EXPECT_EQ(bench().vHelpUsed, 1);
    EXPECT_EQ(bench().vSolveUsed, 1);
    answerWrong(step);
    EXPECT_EQ(lastBox().text, solveQuestion(step));
    EXPECT_EQ(bench().vSolveUsed, 2);
}

TEST_P(WeakRung, LeadsToTheNumbersOnNo) {
    const int step = help().step;
    declinesAll(help());
    EXPECT_EQ(bench().vHelpUsed, 0);
    EXPECT_EQ(bench().vSolveUsed, 1);
    EXPECT_EQ(number("vTries"), 2);
    answerWrong(step); // each further mistake offers both anew
    EXPECT_EQ(boxes(), (Boxes{kReminder, kHelp, solveQuestion(step), kHelp, solveQuestion(step)}));
    EXPECT_EQ(number("vTries"), 3);
    EXPECT_EQ(bench().vSolveUsed, 2);
    if (step != 12) {
        answerRight(step);
        EXPECT_EQ(number("vTries"), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(All, WeakRung,
                         testing::Values(RungCase{0.8, 3, {3, "vDetailAcid", 1, 1, 3}},
                                         RungCase{0.8, 3, {6, "vDetailBase", 4, 4, 6}},
                                         RungCase{0.8, 3, {7, "vDetailCase", 7}},
                                         RungCase{0.8, 3, {10, "vDetailConc", 8, 8, 10}},
                                         RungCase{0.8, 8, {10, "vDetailConc", 8, 8, 10}},
                                         RungCase{0.8, 9, {10, "vDetailConc", 8, 8, 10}},
                                         RungCase{0.8, 0, {7, "vDetailCase", 7}},
                                         RungCase{0.8, 0, {12, "vDetailStart", 12}},
                                         RungCase{0.8, 3, {12, "vDetailFinal", 12}},
                                         RungCase{0.8, 8, {12, "vDetailFinal", 12}}));

class WeakSolution : public WeakLadder, public testing::WithParamInterface<SolveCase> {};

TEST_P(WeakSolution, IsCountedBeforeItIsAnsweredAndFilledIn) {
    const SolveCase& row = GetParam();
    beginSolution(row);
    int countedAtQuestion = -1;
    host.boxes.whileOpen = [&] {
        if (lastBox().text == solveQuestion(row.step)) {
            countedAtQuestion = bench().vSolveUsed;
        }
    };
    takeSolution(row);
    host.boxes.whileOpen = nullptr;
    EXPECT_EQ(countedAtQuestion, 1);
    EXPECT_EQ(bench().vSolveUsed, 1);
    leaveSolution(row);
    EXPECT_EQ(number("vTries"), row.step == 12 ? 2 : 0); // the last step leaves the count
}

INSTANTIATE_TEST_SUITE_P(
    All, WeakSolution,
    testing::Values(SolveCase{1.4, 3, 1, "1,4", false}, SolveCase{1.4, 3, 2, "0.01", false},
                    SolveCase{1.4, 3, 3, "0,014", true}, SolveCase{1.4, 3, 4, "1", false},
                    SolveCase{1.4, 3, 5, "0,003", false}, SolveCase{1.4, 3, 6, "0,003", true},
                    SolveCase{1.4, 0, 7, "0", true}, SolveCase{1.4, 3, 7, "1", true},
                    SolveCase{1.4, 14, 7, "2", true}, SolveCase{1.4, 15, 7, "3", true},
                    SolveCase{1.4, 3, 8, "0,011", false}, SolveCase{1.4, 3, 9, "0,003", false},
                    SolveCase{1.4, 3, 10, "3,667", true}, SolveCase{1.4, 3, 12, "4,20", true},
                    SolveCase{1.4, 0, 12, "2,31", true}, SolveCase{1.4, 14, 8, "0,014", false},
                    SolveCase{1.4, 14, 9, "0,024", false}, SolveCase{1.4, 14, 10, "0,583", true},
                    SolveCase{1.4, 14, 12, "9,26", true}, SolveCase{1.4, 15, 8, "0,001", false},
                    SolveCase{1.4, 20, 8, "0,006", false}, SolveCase{1.4, 20, 9, "0,03", false},
                    SolveCase{1.4, 20, 10, "0,200", true}, SolveCase{1.4, 20, 11, "0,70", false}));

TEST_F(WeakLadder, TheLastStepBehindTheEquivalencePointHasNoDetail) {
    beginPoint(1.0, 12);
    goTo(12);
    host.boxes.shown.clear();
    twoMistakes(12, {BoxAnswer::Yes});
    EXPECT_EQ(boxes(), (Boxes{kReminder, kSolve}));
    EXPECT_EQ(input(12).text(), "12,96");
    EXPECT_FALSE(visible("lab_Calc", 27));
}

TEST_F(WeakLadder, TheConditionsStandBesideTheOptionsOnceTaken) {
    beginPoint(1.0, 3);
    goTo(7);
    EXPECT_FALSE(visible("lab_optCalc", 2));
    takeHelp(*helpAt(7));
    EXPECT_TRUE(visible("lab_optCalc", 2));
    twoMistakes(7, {BoxAnswer::Yes});
    expectBox("yesno", solveQuestion(7));
    EXPECT_EQ(checkedOptions(), "1");
}

TEST_F(WeakLadder, AForbiddenTutorSoundsTheAlarm) {
    session().SessionNoHelp = true;
    beginPoint(1.0, 3);
    twoMistakes(3, {BoxAnswer::Yes});
    expectAlarm();
    EXPECT_EQ(bench().vSolveUsed, 0);
    EXPECT_FALSE(flag("vDetailAcid"));
}

TEST_F(WeakLadder, CountersAreShownWithThePoint) {
    beginPoint(1.0, 0);
    goTo(7);
    takeHelp(*helpAt(7));
    goTo(12);
    twoMistakes(12, {BoxAnswer::No, BoxAnswer::No});
    closeNextDialog();
    answerRight(12);
    EXPECT_EQ(bench().lab_helpused.text(), "1");
    EXPECT_EQ(bench().lab_solveuse.text(), "1");
    EXPECT_EQ(bench().lab_punktegerechnet.text(), "1");
    EXPECT_EQ(bench().Lab_Vallmista.text(), "4");
}

TEST_F(WeakLadder, ANewCalculationClosesTheDetails) {
    beginPoint(1.0, 3);
    takeHelp(*helpAt(3));
    startCalculation();
    EXPECT_FALSE(flag("vDetailAcid"));
    EXPECT_EQ(dueStep(), 3);
    EXPECT_EQ(bench().vHelpUsed, 1); // of the task
    EXPECT_EQ(number("vTries"), 0);
    EXPECT_EQ(bench().vMismatch, 0);
}

} // namespace
} // namespace quendal::test
