// The workbenches of the weak acid and of chloride with silver ions on a fake host, and a learner
// who goes through a guided calculation on them.
#pragma once

#include "task_points.h"
#include "weak_silver/frm_AppMainSilver.h"
#include "weak_silver/frm_AppMainWeak.h"
#include "workbench/bench_fixture.h"

#include <deque>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace quendal::test {

// What of frm_Calc can be seen, lines between groups apart: full names, with the text of what tells
// something.
using Seen = std::map<std::string, std::string>;

constexpr unsigned inCase(int number) {
    return 1U << number;
}
inline constexpr unsigned kAnyCase = ~0U;

// A control of one form shows from this step on in these cases, with this detail flag set where one
// is named.
// "{3}" in a text stands for what the learner typed at step 3.
struct ViewRow {
    int step;
    const char* control;
    const char* text = "";
    unsigned cases = kAnyCase;
    const char* detail = nullptr;
};

// A detail that the tutor offers after the second mistake at a step, and where it leads.
struct HelpRow {
    int step;
    const char* flag;
    int backTo;
    int reached = 0; // set; 0 for none
    int notReached = 0;
    unsigned cases = kAnyCase;
};

// What is right at a step, and how many decimals of it count; -1: every one.
struct Asked {
    double value = 0;
    int digits = -1;
};

// What is told about a form: the tests' own tables.
struct Lesson {
    std::vector<ViewRow> view;
    std::vector<HelpRow> help;
    std::vector<int> calculators; // steps with a calculator beside the input
    const char* solveChoice;      // the offer to choose what is right
    int (*caseOf)(double concentration, int ml);
    std::map<int, Asked> (*asked)(double concentration, int ml);
};

// What is asked up to the choice is the same on both forms.
std::map<int, Asked> askedAmounts(double concentration, int ml);

const Lesson& weakLesson();
const Lesson& silverLesson();

using Boxes = std::vector<std::string>;

// A point and the steps that it takes, with every detail that is offered or with none.
struct WalkCase {
    double concentration;
    int ml;
    bool helped;
    std::vector<int> steps;
};
// The way of a learner who takes the details of the amounts, to the choice and beyond.
std::vector<int> helpedTo(std::vector<int> tail);

// A detail that is offered at a point.
struct RungCase {
    double concentration;
    int ml;
    HelpRow help;
    bool anew = false; // the count of tries starts anew before the question
};

// What is filled in at a step of a point.
struct SolveCase {
    double concentration;
    int ml;
    int step;
    const char* text;
    bool helpFirst; // the detail is offered before
};

// An answer that is given without the tutor.
struct AnswerCase {
    const char* text;
    bool right;
};

class CaseTest : public AnyBenchTest {
  protected:
    static constexpr const char* kReminder =
        "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der "
        "Seite!";
    static constexpr const char* kHelp = "Das ist leider immer noch falsch! Soll ich Dir helfen?";
    static constexpr const char* kSolve =
        "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?";

    explicit CaseTest(const Lesson& lesson) : lesson_(lesson) {}

    // Opens the guided calculation of a point.
    void beginPoint(double concentration, int ml, bool demo = false);
    const Asked& asked(int step) const { return asked_.at(step); }

    Seen seen();
    // What should be seen at a step of the learner's way so far.
    Seen view(int due) const;

    // How carefully a right answer is given: a sloppy one has a decimal too many, and a wrong one.
    enum class Care { Rounded, Sloppy };
    // One more at the last decimal that counts (or one less), and the answer itself.
    std::string wrongText(int step, int direction = 1) const;
    std::string rightText(int step, Care care = Care::Rounded) const;
    void answerWrong(int step, int direction = 1);
    void answerRight(int step, Care care = Care::Rounded);
    // What it takes to be offered more than the reminder; the answers are to the questions then.
    void twoMistakes(int step, std::deque<BoxAnswer> answers);
    // Texts of all boxes so far.
    Boxes boxes() const;
    // Right answers up to the step.
    void goTo(int step);
    // Takes the detail that is offered after the second mistake.
    void takeHelp(const HelpRow& help);
    // The detail offered at a step and not taken yet; null for none.
    const HelpRow* helpAt(int step) const;
    // Through the whole point, looking at the frame at each step; with `helped` every detail that
    // is offered is taken.
    void walk(const std::vector<int>& steps, bool helped);

    void walkPoint(const WalkCase& row);
    // A point without mistakes by its shortest way.
    void endPoint(const TaskPoint& point);
    // The box at the choice keeps the sample for the next start.
    void keepsTheSample();

    std::string solveQuestion(int step) const { return step == 7 ? lesson_.solveChoice : kSolve; }
    void beginRung(const RungCase& row);
    void opensDetail(const HelpRow& help);
    void declinesAll(const HelpRow& help);
    void offersNoSecondTime(const HelpRow& help);
    // To the step, by the details that lead there.
    void beginSolution(const SolveCase& row);
    // The number is filled in, and the step waits for its button ...
    void takeSolution(const SolveCase& row);
    // ... which takes it as right.
    void leaveSolution(const SolveCase& row);

    // The answer to the point that is there; `value` is what goes into the learner's series.
    void judges(const AnswerCase& row, double value, const std::string& wrongBox);
    void expectCurveAndHelp(const std::string& curve, const std::string& helpFile);
    void keepsTheSignOfChloride();

    // The learner closes the comparison that ends a point, and the result behind the last one.
    void closeEnd();

    std::string checkedOptions();
    std::string heading(int index) { return control<ctl_Label>("lab_CalcStep", index).text(); }
    // The inputs by step from 1, without the choice.
    std::vector<std::string> inputTexts();
    // The demo's steps from the present one on, each left by its button.
    std::vector<int> clickThrough();

  private:
    std::string filled(std::string text) const;

    const Lesson& lesson_;
    int case_ = 0;
    std::map<int, Asked> asked_;
    std::set<int> reached_;
    std::set<std::string> open_; // detail flags
    std::map<int, std::string> typed_;
};

// At a detail that is offered on one of the two forms.
template <class Test>
class Rung : public Test, public testing::WithParamInterface<RungCase> {
  protected:
    void SetUp() override { this->beginRung(GetParam()); }
    const HelpRow& help() const { return GetParam().help; }
};

class WeakTest : public CaseTest {
  protected:
    WeakTest();
    std::unique_ptr<Workbench> make() override { return std::make_unique<frm_AppMainWeak>(); }
    void settle(int millilitres) override;
    frm_AppMainWeak& bench() { return static_cast<frm_AppMainWeak&>(AnyBenchTest::bench()); }

    void put(int kind, int count);
};

class SilverTest : public CaseTest {
  protected:
    SilverTest();
    std::unique_ptr<Workbench> make() override { return std::make_unique<frm_AppMainSilver>(); }
    // The learner accepts the task.
    void beforeShow() override { command("DIALOG.OK();"); }
    frm_AppMainSilver& bench() { return static_cast<frm_AppMainSilver&>(AnyBenchTest::bench()); }

    // The bar of the start form gives this command.
    void command(const std::string& text);
};

} // namespace quendal::test
