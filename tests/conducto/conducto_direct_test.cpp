// A point calculated without the tutor, and what follows a point.
#include "conducto_fixture.h"

#include "shell/forms/frm_DialogDone.h"

namespace quendal::test {
namespace {

constexpr const char* kWrongConductivity =
    "Der von Dir errechnete Leitwert ist leider falsch! Soll ich Dir beim Errechnen Schritt für "
    "Schritt helfen?";
constexpr const char* kWrongPotential =
    "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für "
    "Schritt helfen?";

class Direct : public ConductoTest {
  protected:
    void openAt(Titration titration, int ml) {
        openForm(titration);
        addBase(ml);
        for (Control* button : mainControls()) {
            button->setVisible(true);
        }
    }
    std::vector<Control*> mainControls() {
        return {&bench().ctl_Button2, &bench().ctl_Button3, &bench().but_Calc, &bench().but_Help,
                &bench().but_phCompare};
    }
    // What of the main controls can be seen, in their order.
    std::string mainSeen() {
        std::string all;
        for (const Control* button : mainControls()) {
            all += button->visible() ? '1' : '0';
        }
        return all;
    }
};

struct AnswerCase {
    Titration titration;
    int ml;
    const char* text;
    bool right;
    int mismatches = 0;
};

class DirectAnswer : public Direct, public testing::WithParamInterface<AnswerCase> {};

TEST_P(DirectAnswer, CountsTwoDecimalsOfTheTotal) {
    const AnswerCase& row = GetParam();
    openAt(row.titration, row.ml);
    answerDirectly(row.text);
    EXPECT_EQ(bench().frm_CalcDirect.visible(), !row.right);
    EXPECT_EQ(bench().vPoints, row.right ? 1 : 0);
    EXPECT_EQ(bench().vWrong, row.right ? 0 : 1);
    EXPECT_EQ(bench().vMismatch, row.mismatches);
    EXPECT_EQ(bench().Series[1]->Data.Count(), row.right ? 1 : 0);
    EXPECT_EQ(host.sounds.played, Texts{row.right ? "signal 2" : "signal 1"});
}

INSTANTIATE_TEST_SUITE_P(All, DirectAnswer,
                         testing::Values(AnswerCase{Titration::Strong, 0, "42,62", true},
                                         AnswerCase{Titration::Strong, 0, "42.62", true},
                                         AnswerCase{Titration::Strong, 0, "42,6249", true},
                                         AnswerCase{Titration::Strong, 0, "42,6151", true},
                                         AnswerCase{Titration::Strong, 0, "4,262*10^1", true},
                                         AnswerCase{Titration::Strong, 0, "42,63", false, 1},
                                         AnswerCase{Titration::Strong, 0, "42,61", false, 1},
                                         AnswerCase{Titration::Strong, 0, "", false},
                                         AnswerCase{Titration::Strong, 0, "42,62 mS", false},
                                         AnswerCase{Titration::Strong, 10, "11,5", true},
                                         // The sum of the rounded values, not the rounded sum.
                                         AnswerCase{Titration::Strong, 11, "13,63", true},
                                         AnswerCase{Titration::Strong, 11, "13,64", false, 1},
                                         AnswerCase{Titration::Weak, 0, "0,46", true},
                                         AnswerCase{Titration::Weak, 0, "0", false, 1},
                                         AnswerCase{Titration::Weak, 5, "4,34", true},
                                         AnswerCase{Titration::Silver, 15, "16,38", true},
                                         AnswerCase{Titration::Silver, 15, "16,37", false, 1}));

TEST_F(Direct, ItsInputTakesThePlaceOfTheMainControls) {
    openAt(Titration::Strong, 5);
    bench().but_Calc.userClicked();
    EXPECT_EQ(mainSeen(), "00000");
    EXPECT_TRUE(bench().frm_CalcDirect.visible());
    EXPECT_TRUE(bench().txt_Ph.hasFocus());
    bench().txt_Ph.userTyped("3");
    bench().but_Calc_Click(); // open already
    EXPECT_EQ(bench().txt_Ph.text(), "3");
}

TEST_F(Direct, ARightAnswerBringsThemBackAndEmptiesTheReading) {
    for (const Titration one : {Titration::Strong, Titration::Weak, Titration::Silver}) {
        openAt(one, 5);
        bench().lab_pH.setText("?");
        answerDirectly(commaText(bench().hCalcPoint().ionTotal, 2));
        EXPECT_EQ(mainSeen(), "01011") << nameOf(one);
        EXPECT_EQ(bench().lab_pH.text(), "0,00") << nameOf(one);
        EXPECT_FALSE(visible("frm_Calc")) << nameOf(one);
    }
}

TEST_F(Direct, APointIsCountedToldAndReported) {
    openAt(Titration::Silver, 0);
    host.control.progress.clear();
    answerDirectly("12,65");
    EXPECT_EQ(lastBox().kind, "info");
    EXPECT_EQ(lastBox().title, "Punktberechnung");
    EXPECT_EQ(lastBox().text, "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt");
    EXPECT_EQ(bench().lab_punktegerechnet.text(), "1");
    ASSERT_EQ(host.control.progress.size(), 1U);
    EXPECT_EQ(host.control.progress[0].points, 1);
    EXPECT_EQ(host.control.progress[0].wrong, 0);
    calculate(1);
    EXPECT_EQ(lastBox().text, "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt");
    EXPECT_EQ(bench().lab_punktegerechnet.text(), "2");
}

struct QuestionCase {
    Titration titration;
    const char* question;
};

class WrongAnswer : public Direct, public testing::WithParamInterface<QuestionCase> {
  protected:
    void SetUp() override { openAt(GetParam().titration, 5); }
};

TEST_P(WrongAnswer, IsToldInTheWordsOfTheForm) {
    answerDirectly("1");
    expectBox("yesno", GetParam().question);
    EXPECT_EQ(host.boxes.shown.size(), 1U);
    EXPECT_EQ(bench().Lab_Vallmista.text(), "1");
    EXPECT_TRUE(host.control.progress.empty());
}

TEST_P(WrongAnswer, WithoutHelpTheInputStays) {
    answerDirectly("1");
    EXPECT_EQ(bench().vHelpUsed, 0);
    EXPECT_TRUE(bench().frm_CalcDirect.visible());
    EXPECT_FALSE(visible("frm_Calc"));
    EXPECT_TRUE(bench().txt_Ph.hasFocus());
    EXPECT_EQ(mainSeen(), "00000");
}

TEST_P(WrongAnswer, TheHelpTakenCounts) {
    host.boxes.answers = {BoxAnswer::Yes};
    answerDirectly("1");
    EXPECT_EQ(bench().vHelpUsed, 1);
    EXPECT_EQ(bench().vMismatch, 0); // the tutor counts anew
    EXPECT_FALSE(bench().frm_CalcDirect.visible());
    EXPECT_TRUE(visible("frm_Calc"));
    EXPECT_EQ(dueStep(), 1);
    EXPECT_EQ(mainSeen(), "00000");
}

INSTANTIATE_TEST_SUITE_P(All, WrongAnswer,
                         testing::Values(QuestionCase{Titration::Strong, kWrongConductivity},
                                         QuestionCase{Titration::Weak, kWrongConductivity},
                                         QuestionCase{Titration::Silver, kWrongPotential}));

TEST_F(Direct, AskingForTheWayIsFree) {
    openAt(Titration::Weak, 5);
    bench().but_Calc.userClicked();
    bench().vMismatch = 3;
    bench().but_HelpCalc.userClicked();
    EXPECT_EQ(bench().vHelpUsed, 0);
    EXPECT_EQ(bench().vMismatch, 0);
    EXPECT_FALSE(bench().frm_CalcDirect.visible());
    EXPECT_TRUE(visible("frm_Calc"));
}

TEST_F(Direct, HelpUsedIsShownWithThePoint) {
    openAt(Titration::Silver, 15);
    host.boxes.answers = {BoxAnswer::Yes};
    answerDirectly("1");
    EXPECT_EQ(bench().lab_helpused.text(), "0");
    calculateGuided(pointOf(Titration::Silver, 1.0, 15));
    EXPECT_EQ(bench().lab_helpused.text(), "1");
    EXPECT_EQ(bench().lab_solveuse.text(), "0");
}

TEST_F(Direct, ADemoShowsTheWayAtOnce) {
    for (const Titration one : kTitrations) {
        openForm(one, 1.0, true);
        addBase(5);
        bench().but_Calc.setVisible(true);
        bench().but_Calc.userClicked();
        EXPECT_TRUE(visible("frm_Calc")) << nameOf(one);
        EXPECT_FALSE(bench().frm_CalcDirect.visible()) << nameOf(one);
        EXPECT_EQ(mainSeen(), "00000") << nameOf(one);
    }
}

class LastPoint : public Direct {
  protected:
    struct Result {
        int task = 0;
        int points = 0;
        int wrong = 0;
        int help = 0;
        int solve = -1;
        double duration = 0;
    };
    // Notes the figures of the result that comes next, and closes it.
    void noteResult() {
        later([this] {
            const auto& done = dynamic_cast<frm_DialogDone&>(*host.windows.top());
            results.push_back({.task = done.Task,
                               .points = done.Points,
                               .wrong = done.Wrong,
                               .help = done.HelpUsed,
                               .solve = done.SolveUsed,
                               .duration = done.Duration});
            host.windows.userClosed(*host.windows.top());
        });
    }
    std::vector<Result> results;
};

TEST_F(LastPoint, OpensTheResultWithItsFigures) {
    host.clock.now = 5;
    openAt(Titration::Weak, 3);
    calculate(4);
    addBase(20);
    host.boxes.answers = {BoxAnswer::No, BoxAnswer::Yes, BoxAnswer::No};
    answerDirectly("1");
    answerDirectly("2"); // the help is taken
    answer(1, "20");
    answer(1, "20"); // an offer of numbers is declined
    host.clock.now = 47.5;
    noteResult();
    answerSteps(pointOf(Titration::Weak, 1.0, 20), 1, 6);
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0].task, 1000);
    EXPECT_EQ(results[0].points, 2);
    EXPECT_EQ(results[0].wrong, 4);
    EXPECT_EQ(results[0].help, 1);
    EXPECT_EQ(results[0].solve, 0);
    EXPECT_DOUBLE_EQ(results[0].duration, 42.5);
    EXPECT_EQ(stepButton(6).text(), "&Fertig");
    stepButton(6).userClicked(); // and it doesn't come back
    EXPECT_EQ(host.control.results.size(), 1U);
}

TEST_F(LastPoint, OpensItAfterADirectAnswerToo) {
    for (const Titration one : {Titration::Strong, Titration::Silver}) {
        openAt(one, 20);
        noteResult();
        answerDirectly(one == Titration::Strong ? "31,27" : "21,26");
    }
    ASSERT_EQ(results.size(), 2U);
    EXPECT_EQ(results[1].points, 1);
    EXPECT_EQ(results[1].solve, 0);
}

TEST_F(LastPoint, IsTheOneAtTwentyMillilitresAlone) {
    openAt(Titration::Strong, 19);
    calculate(19);
    EXPECT_TRUE(host.control.results.empty());
    calculate(18);
    EXPECT_TRUE(host.control.results.empty());
    EXPECT_EQ(bench().vPoints, 2);
}

} // namespace
} // namespace quendal::test
