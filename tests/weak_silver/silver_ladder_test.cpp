// What the tutor of chloride with silver ions does about wrong answers.
#include "case_fixture.h"

namespace quendal::test {
namespace {

class SilverLadder : public SilverTest {
  protected:
    // Nothing of a learner's way is counted here but the mistakes.
    void expectUncounted() {
        EXPECT_EQ(bench().vHelpUsed, 0);
        EXPECT_EQ(bench().vSolveUsed, 0);
        EXPECT_TRUE(host.control.progress.empty());
    }
};

class SilverRung : public Rung<SilverLadder> {};

TEST_P(SilverRung, OpensItsDetailOnYes) {
    opensDetail(help());
    EXPECT_EQ(host.sounds.played, (std::vector<std::string>{"signal 1", "signal 1"}));
    expectUncounted();
}

TEST_P(SilverRung, CountsTheTriesAnewWhereItIsTold) {
    const int step = help().step;
    std::int64_t triesAtQuestion = -1;
    host.boxes.whileOpen = [&] {
        if (lastBox().text == kHelp) {
            triesAtQuestion = number("vTries");
        }
    };
    declinesAll(help());
    EXPECT_EQ(triesAtQuestion, GetParam().anew ? 0 : 2);
    EXPECT_EQ(number("vTries"), GetParam().anew ? 0 : 2);
    answerWrong(step);
    EXPECT_EQ(lastBox().text, GetParam().anew ? kReminder : kSolve);
    expectUncounted();
}

TEST_P(SilverRung, IsNotOfferedTwice) {
    const int step = help().step;
    offersNoSecondTime(help());
    answerWrong(step);
    EXPECT_EQ(lastBox().text, GetParam().anew ? kReminder : kSolve);
    expectUncounted();
}

INSTANTIATE_TEST_SUITE_P(All, SilverRung,
                         testing::Values(RungCase{0.8, 3, {3, "vDetailAcid", 1, 1, 3}, false},
                                         RungCase{0.8, 3, {6, "vDetailBase", 4, 4, 6}, false},
                                         RungCase{0.8, 3, {10, "vDetailConc", 8, 8, 10}, true},
                                         RungCase{0.8, 9, {10, "vDetailConc", 8, 8, 10}, true},
                                         RungCase{0.8, 3, {11, "vDetailSilver", 11}, true},
                                         RungCase{0.8, 8, {11, "vDetailSilver", 11}, true},
                                         RungCase{0.8, 3, {12, "vDetailFinal", 12}, true},
                                         RungCase{0.8, 8, {12, "vDetailFinal", 12}, true},
                                         RungCase{0.8, 9, {12, "vDetailFinal", 12}, true}));

class SilverSolution : public SilverLadder, public testing::WithParamInterface<SolveCase> {};

TEST_P(SilverSolution, IsFilledInOnYes) {
    beginSolution(GetParam());
    takeSolution(GetParam());
    expectUncounted();
    leaveSolution(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    All, SilverSolution,
    testing::Values(SolveCase{1.4, 3, 1, "1,4", false}, SolveCase{1.4, 3, 2, "0.01", false},
                    SolveCase{1.4, 3, 3, "0,014", true}, SolveCase{1.4, 3, 4, "1", false},
                    SolveCase{1.4, 3, 5, "0,003", false}, SolveCase{1.4, 3, 6, "0,003", true},
                    SolveCase{1.4, 3, 7, "1", false}, SolveCase{1.2, 12, 7, "2", false},
                    SolveCase{1.4, 14, 7, "3", false}, SolveCase{1.4, 3, 8, "0,011", false},
                    SolveCase{1.4, 3, 9, "0,013", false}, SolveCase{1.4, 3, 10, "0,846", true},
                    SolveCase{1.4, 3, 11, "2,358*10^-10", true},
                    SolveCase{1.4, 3, 12, "0,232", true}, SolveCase{1.2, 12, 8, "0,000", false},
                    SolveCase{1.2, 12, 11, "1,412*10^-05", true},
                    SolveCase{1.2, 12, 12, "0,514", true}, SolveCase{1.4, 15, 8, "0,001", false},
                    SolveCase{1.4, 15, 9, "0,025", false}, SolveCase{1.4, 15, 10, "0,040", true},
                    SolveCase{1.4, 15, 12, "0,718", true}, SolveCase{1.4, 14, 8, "0,000", false},
                    SolveCase{1.4, 14, 10, "0,000", true}));

TEST_F(SilverLadder, TheConditionsComeWithTheDetailOfTheSilver) {
    beginPoint(1.0, 3);
    goTo(6);
    takeHelp(*helpAt(6));
    goTo(7);
    for (int option = 0; option < 4; ++option) {
        EXPECT_TRUE(visible("lab_optCalc", option));
    }
}

TEST_F(SilverLadder, AForbiddenTutorSoundsTheAlarm) {
    session().SessionNoHelp = true;
    beginPoint(1.0, 3);
    goTo(10);
    twoMistakes(10, {});
    expectAlarm();
    EXPECT_EQ(number("vTries"), 2); // no rung has been looked at
}

TEST_F(SilverLadder, TheLabelsOfHelpStayAtNothing) {
    beginPoint(1.0, 3);
    takeHelp(*helpAt(3));
    goTo(10);
    twoMistakes(10, {BoxAnswer::No, BoxAnswer::Yes});
    goTo(12);
    closeNextDialog();
    answerRight(12);
    EXPECT_EQ(bench().lab_helpused.text(), "0");
    EXPECT_EQ(bench().lab_solveuse.text(), "0");
    EXPECT_EQ(bench().Lab_Vallmista.text(), "4");
    EXPECT_EQ(host.control.progress.size(), 1U); // of the point
}

} // namespace
} // namespace quendal::test
