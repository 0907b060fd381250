// The four conductometric workbenches on a fake host, and a learner who calculates points on them.
#pragma once

#include "conducto/frm_AppMainConducto.h"
#include "conducto/frm_AppMainConductoSilver.h"
#include "conducto/frm_AppMainConductoWeak.h"
#include "conducto/frm_AppMainConductolog.h"
#include "host/chart.h"
#include "workbench/bench_fixture.h"

#include <array>
#include <deque>
#include <set>
#include <string>
#include <vector>

namespace quendal::test {

enum class Titration { Strong, Weak, Silver, Log };

inline constexpr Titration kTitrations[] = {Titration::Strong, Titration::Weak, Titration::Silver,
                                            Titration::Log};

const char* nameOf(Titration titration);
void PrintTo(Titration titration, std::ostream* out);
std::unique_ptr<ConductoWorkbench> makeBench(Titration titration);

// A point of one of the three forms with conductivities, as texts in the inputs 1 to 6 and in the
// results of rows 2 to 5.
struct PointTexts {
    Titration titration;
    double concentration;
    int ml;
    std::array<const char*, 6> inputs;
    std::array<const char*, 4> results;
};
void PrintTo(const PointTexts& point, std::ostream* out);

// Before, at and behind the equivalence point of each form: what is right there.
extern const std::vector<PointTexts> kPoints;
// The one of them; fails when there is none.
const PointTexts& pointOf(Titration titration, double concentration, int ml);

using Texts = std::vector<std::string>;
using Names = std::set<std::string>;

// What of frm_Calc can be seen when a learner has come to this step, with its button and, where
// `calculators` are to be had, the one beside it.
Names seenAt(int step, Titration titration, bool calculators);

class ConductoTest : public AnyBenchTest {
  protected:
    static constexpr const char* kReminder =
        "Das ist nicht richtig!\r\nÜberprüfe Deine Eingaben!\r\nBeachte die Informationen rechts "
        "an der Seite!";
    static constexpr const char* kSolve =
        "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?";
    static constexpr const char* kUnreadable = "Deine Eingabe enthält unzulässige Zeichen!";
    static constexpr const char* kOpen = "Rechnen ->"; // not worked out yet

    std::unique_ptr<Workbench> make() override { return makeBench(titration_); }
    // The learner accepts the task.
    void beforeShow() override { command("DIALOG.OK();"); }
    ConductoWorkbench& bench() { return static_cast<ConductoWorkbench&>(AnyBenchTest::bench()); }

    void openForm(Titration titration, double concentration = 1.0, bool demo = false);
    // Opens the guided calculation of a point.
    void beginPoint(Titration titration, double concentration, int ml, bool demo = false);
    // The bar of the start form gives this command.
    void command(const std::string& text);

    ctl_Label& result(int row) { return control<ctl_Label>("lab_LFErg", row); }
    ctl_Button& calculator(int index) { return control<ctl_Button>("but_CalcPH", index); }
    // The inputs 1 to 6 and the results of the rows; an input that isn't there reads empty.
    Texts inputs();
    Texts results();
    // What is written as soon as step `step` was filled in by the tutor, and nothing further.
    static Texts inputsUpTo(const PointTexts& point, int step);
    static Texts resultsUpTo(const PointTexts& point, int step);

    // The learner works a row out on the calculator.
    void workOut(int row, double value);
    // Right answers to steps `first` to `last`, worked out as a learner would.
    void answerSteps(const PointTexts& point, int first, int last);
    // The whole point, both clicks of the last step included.
    void calculateGuided(const PointTexts& point);
    // The direct way: types `text` and presses the button.
    void answerDirectly(const std::string& text);
    // A right direct answer at a volume.
    void calculate(int ml);

    // Full names of what can be seen in the frame of the calculation.
    Names seen();
    Texts boxes() const;

  private:
    Titration titration_ = Titration::Strong;
};

// A name in code with its Index.
std::string member(const char* name, int index);
std::string commaText(double value, int places);

} // namespace quendal::test
