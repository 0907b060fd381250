// The tutor: leads through one titration point step by step on frm_Calc, checks, helps, fills in.
#pragma once

#include "host/buttons.h"
#include "host/calc_presets.h"
#include "host/control_array.h"
#include "host/labels.h"
#include "host/panels.h"
#include "workbench/guidance/steps.h"

#include <array>
#include <string>
#include <vector>

namespace quendal {

class Workbench;

// How many controls of each kind frm_Calc has; the Index values are design.
struct PanelSize {
    int headings;                 // lab_CalcStep(0..)
    int labels;                   // lab_Calc(0..)
    std::vector<int> inputs;      // txt_Calc
    int options;                  // opt_Calc(0..)
    std::vector<int> calcButtons; // but_CalcPH
    int optionHints = 0;          // lab_optCalc(0..)
    std::vector<int> store = {3}; // opt_CalcStore, one or none
    int lines = 4;                // lin_Calc(1..)
};

class GuidedCalculation {
  public:
    static constexpr int kSteps = 12; // at most

    GuidedCalculation(Workbench& bench, const GuidanceTables& tables, const PanelSize& size);
    virtual ~GuidedCalculation() = default;
    GuidedCalculation(const GuidedCalculation&) = delete;
    GuidedCalculation& operator=(const GuidedCalculation&) = delete;

    // The demo's button for a run without further clicks; it comes behind those of the steps.
    int oneClick() const { return tables_.lastStep + 1; }

    // Starts the guided calculation of the present point.
    void but_HelpCalc_Click();
    // Goes to a step and lays the frame out; -1 means the next one.
    void hCalcStepShow(int step);
    // The click on the button of a step: checks it and moves on.
    virtual void but_CalcStep_Click(int index);
    // Opens the popup calculator for a step, or for the direct input.
    void but_CalcPH_Click(int index);
    // The beaker has changed under an open calculation. Lays it out anew where it stood without a
    // button, because the particles hadn't reacted when the step was reached.
    void beakerChanged();
    // The conditions beside the options don't stay for the next point.
    void hideHints();
    // Return while frm_Calc is open: clicks the first visible button of a step but the choice's.
    // True when the key is used up.
    bool clickDueStep();

    void describe(FieldTable& table) const;

    ctl_Frame frm_Calc;
    ControlArray<ctl_Label> lab_CalcStep;    // headings of the groups
    ControlArray<Line> lin_Calc;             // lines between the groups, from 1
    ControlArray<ctl_TermLabel> lab_Calc;    // terms
    ControlArray<clt_TermInput> txt_Calc;    // inputs, by step
    ControlArray<OptionButton> opt_Calc;     // the choice
    ControlArray<ctl_TermLabel> lab_optCalc; // when an option is the right one
    ControlArray<CheckBox> opt_CalcStore;    // keeps the sample's amount for the next point
    ControlArray<ctl_Button> but_CalcPH;     // the calculator beside an input
    ControlArray<ctl_Button> but_CalcStep;   // by step, and the one for all
    ctl_Pannel but_AchtungRW;                // "here the way of calculating changes"

  protected:
    Workbench& bench() const { return bench_; }
    const PointValues& point() const { return point_; }
    const Details& details() const { return details_; }

    // Fresh reference values for the present beaker, also copied into the form's fields.
    virtual PointValues referenceValues() = 0;
    // Where step `step` really leads, by what is needed at this point.
    virtual int route(int step) { return step; }
    // A demo has shown this point and leaves the frame as it stands.
    virtual bool shownBefore() const;
    // At the start of a calculation, before its first step is laid out.
    virtual void startAnew() {}
    // In the demo, at each step: the button for one click, or the warning that stands in its place.
    virtual void showDemoAids();
    // The last step has been passed.
    virtual void pointPassed();
    // Texts that depend on where the point lies.
    virtual void writeLabels(const LayoutState& state) = 0;
    // Whether a demo warns of a new way of calculating here.
    virtual bool waysChangeHere() const = 0;
    // Lines of the calculator for a step, right and wrong ones mixed on purpose.
    virtual std::vector<std::string> presetLines(int index) const = 0;
    // Whether the calculator offers them.
    virtual bool offersLines(int index) const;
    // Takes over the calculator's result where it isn't just a number of 3 places.
    virtual std::string resultText(int index, double value) const;
    // The label for the result of a step; null where a step has none.
    virtual ctl_Label* resultLabel(int /*step*/) { return nullptr; }
    // An extra word in place of a rung; true when one was said.
    virtual bool saysInPlaceOfRung(int /*step*/) { return false; }
    virtual LayoutState layoutState() const = 0;

    // The first five characters of the mantissa and a power of ten ("1,995*10^-10") when the text
    // form of `value` has an exponent, else its 3 places.
    static std::string powerText(double value);

    // Nothing of the frame is to be seen before the first start.
    void hideAll();
    bool reached(int step) const { return vStepReached_[static_cast<std::size_t>(step)]; }
    int presentStep() const { return sStep_; }

    Details details_;

  private:
    void hookEvents();
    void clearInputs(int from);
    void layOut();
    void writeTexts(const LayoutState& state);
    void showButtons(const LayoutState& state);
    void showPart(const ShownRow& row, bool visible);
    void focusStep();
    void fillIn(const StepRow& row);
    std::string fillText(const StepRow& row) const;
    // The row of a step in a case; null when nothing is asked there.
    const StepRow* rowOf(int step, int caseNumber) const;
    bool amountKept();
    void takeResult(int index, double value);
    void fillDemo(int step);
    bool passes(const StepRow& row);
    bool equalsFill(const StepRow& row, const std::string& answer) const;
    std::string filledResult(const StepRow& row) const;
    void climbLadder(int step);
    bool offersDetail(const RungRow& rung);
    void offerNumbers(int step);

    Workbench& bench_;
    const GuidanceTables& tables_;
    PointValues point_;
    int sStep_ = 1;
    std::array<bool, kSteps + 2> vStepReached_{}; // by step, from 1
    bool vAutoRun_ = false;                       // the calculation steps through by itself
    int vTries_ = 0;                              // wrong answers in a row in this step
    int laidOutCase_ = 0;                         // case that the frame shows
};

} // namespace quendal
