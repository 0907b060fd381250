// Wrong answers at each step, and the help that follows.
#include "conducto_fixture.h"

namespace quendal::test {
namespace {

class Ladder : public ConductoTest {
  protected:
    // Up to the step, with nothing counted yet.
    void beginStep(const PointTexts& point, int step) {
        beginPoint(point.titration, point.concentration, point.ml);
        answerSteps(point, 1, step - 1);
        host.boxes.shown.clear();
        host.sounds.played.clear();
    }
    // A number that is wrong: in the row's result, else in the step's input.
    void answerWrong(int step) {
        if (step >= 2 && step <= 5) {
            workOut(step, 77);
            stepButton(step).userClicked();
        } else {
            answer(step, "77");
        }
    }
    void twoMistakes(int step, BoxAnswer last) {
        answerWrong(step);
        host.boxes.answers = {last};
        answerWrong(step);
    }
};

struct StepCase {
    Titration titration;
    double concentration;
    int ml;
    int step;
};

void PrintTo(const StepCase& row, std::ostream* out) {
    PrintTo(pointOf(row.titration, row.concentration, row.ml), out);
    *out << " step " << row.step;
}

std::vector<StepCase> everyStep() {
    std::vector<StepCase> rows;
    for (const PointTexts& point : kPoints) {
        for (int step = 1; step <= 6; ++step) {
            rows.push_back({point.titration, point.concentration, point.ml, step});
        }
    }
    return rows;
}

class AtStep : public Ladder, public testing::WithParamInterface<StepCase> {
  protected:
    void SetUp() override { beginStep(point, step); }
    const PointTexts& point =
        pointOf(GetParam().titration, GetParam().concentration, GetParam().ml);
    const int step = GetParam().step;
};

TEST_P(AtStep, MistakesAreCountedToldAndReported) {
    for (int wrong = 1; wrong <= 3; ++wrong) {
        SCOPED_TRACE(wrong);
        answerWrong(step);
        EXPECT_EQ(dueStep(), step);
        EXPECT_EQ(number("vTries"), wrong);
        EXPECT_EQ(bench().vWrong, wrong);
        EXPECT_EQ(bench().vMismatch, wrong);
        EXPECT_EQ(bench().Lab_Vallmista.text(), std::to_string(wrong));
        ASSERT_EQ(host.control.progress.size(), static_cast<std::size_t>(wrong));
        EXPECT_EQ(host.control.progress.back().wrong, wrong);
        EXPECT_EQ(host.control.progress.back().points, 0);
    }
    EXPECT_EQ(boxes(), (Texts{kReminder, kSolve, kSolve}));
    EXPECT_EQ(host.boxes.shown[0].kind, "ok");
    EXPECT_EQ(host.boxes.shown[1].kind, "yesno");
    EXPECT_EQ(host.sounds.played, (Texts{"signal 1", "signal 1", "signal 1"}));
    EXPECT_EQ(bench().vSolveUsed, 0);
    EXPECT_EQ(bench().vHelpUsed, 0);
    EXPECT_EQ(bench().vPoints, 0);
}

TEST_P(AtStep, TheNumbersTakenAreThoseOfTheStep) {
    twoMistakes(step, BoxAnswer::Yes);
    EXPECT_EQ(boxes(), (Texts{kReminder, kSolve}));
    EXPECT_EQ(dueStep(), step); // the learner presses the button again
    EXPECT_EQ(inputs(), inputsUpTo(point, step));
    EXPECT_EQ(results(), resultsUpTo(point, step));
    EXPECT_EQ(bench().vSolveUsed, 0);
    if (step == 6 && point.ml == 20) {
        closeNextDialog();
    }
    stepButton(step).userClicked();
    EXPECT_EQ(bench().vWrong, 2);
    if (step < 6) {
        EXPECT_EQ(dueStep(), step + 1);
        EXPECT_EQ(number("vTries"), 0);
    } else {
        EXPECT_EQ(bench().vPoints, 1);
    }
}

INSTANTIATE_TEST_SUITE_P(All, AtStep, testing::ValuesIn(everyStep()));

TEST_F(Ladder, TheNumbersDeclinedStayUnknown) {
    const PointTexts& point = pointOf(Titration::Weak, 1.0, 5);
    for (int step = 1; step <= 6; ++step) {
        beginStep(point, step);
        const Texts before = inputs();
        twoMistakes(step, BoxAnswer::No);
        Texts expected = before;
        if (step == 1 || step == 6) {
            expected[static_cast<std::size_t>(step - 1)] = "77";
        }
        EXPECT_EQ(inputs(), expected) << "step " << step;
    }
}

TEST_F(Ladder, ALearnerWithoutHelpHearsTheAlarm) {
    for (int step = 1; step <= 6; ++step) {
        beginStep(pointOf(Titration::Silver, 1.0, 15), step);
        session().SessionNoHelp = true;
        answerWrong(step);
        expectBox("ok", kReminder);
        answerWrong(step);
        expectAlarm();
        answerWrong(step);
        expectAlarm();
        EXPECT_EQ(host.boxes.shown.size(), 3U);
        EXPECT_EQ(number("vTries"), 3);
        session().SessionNoHelp = false;
    }
}

TEST_F(Ladder, ARowThatIsNotWorkedOutIsNoNumber) {
    for (int step = 2; step <= 5; ++step) {
        beginStep(pointOf(Titration::Strong, 1.0, 1), step);
        input(step).userTyped("9");
        stepButton(step).userClicked();
        EXPECT_EQ(boxes(), (Texts{kUnreadable, kReminder})) << "step " << step;
        EXPECT_EQ(bench().vMismatch, 0);
        EXPECT_EQ(bench().vWrong, 1);
        EXPECT_EQ(dueStep(), step);
        stepButton(step).userClicked();
        EXPECT_EQ(boxes(), (Texts{kUnreadable, kReminder, kUnreadable, kSolve}));
    }
}

TEST_F(Ladder, LettersAndNothingAreNoMistakenNumbers) {
    for (const int step : {1, 6}) {
        beginStep(pointOf(Titration::Strong, 1.0, 1), step);
        answer(step, "");
        EXPECT_EQ(boxes(), Texts{kReminder});
        EXPECT_EQ(bench().vMismatch, 0);
        answer(step, "zwei");
        EXPECT_EQ(boxes(), (Texts{kReminder, kUnreadable, kSolve}));
        EXPECT_EQ(bench().vMismatch, 0);
        EXPECT_EQ(bench().vWrong, 2);
    }
}

TEST_F(Ladder, ARightAnswerStartsTheTriesAnew) {
    beginStep(pointOf(Titration::Strong, 0.8, 5), 3);
    answerWrong(3);
    answerSteps(pointOf(Titration::Strong, 0.8, 5), 3, 3);
    EXPECT_EQ(number("vTries"), 0);
    answerWrong(4);
    EXPECT_EQ(boxes(), (Texts{kReminder, kReminder}));
}

// A direct answer before it counts there and not here.
TEST_F(Ladder, MistakesOfAllWaysAddUp) {
    openForm(Titration::Strong, 1.0);
    addBase(1);
    answerDirectly("1");
    bench().but_HelpCalc.userClicked();
    answerWrong(1);
    EXPECT_EQ(bench().vWrong, 2);
    EXPECT_EQ(bench().vMismatch, 1);
    EXPECT_EQ(bench().Lab_Vallmista.text(), "2");
}

} // namespace
} // namespace quendal::test
