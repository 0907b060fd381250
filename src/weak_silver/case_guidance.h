// What the guided calculations of the weak acid and of chloride with silver share: the amounts of
// sample and reagent, a choice of the case, a tail of steps for each case.
#pragma once

#include "workbench/guidance/guided_calculation.h"
#include "workbench/guidance/panel_columns.h"

namespace quendal {

// Where a term stands, from the upper edge of the frame.
struct TermPlace {
    int index;
    panel::Column column;
    double top;
    std::string_view term = {};
    Cases cases = kEveryCase;
    double height = panel::kRowHeight;
};

struct HeadingPlace {
    int index;
    double top;
    const char* text;
    Cases cases = kEveryCase;
};

// A step whose row stands elsewhere in some cases.
struct MovedRow {
    int step;
    Cases cases;
    double top;
};

// The labels that show how an amount is multiplied out: x * x before the learner's numbers are in.
struct Product {
    std::string_view name; // "nµV(HAc) = "
    std::string_view before;
};

// Texts and places of the frame.
struct CasePanel {
    const char* title;
    int headingCount; // lab_CalcStep(0..)
    int labelCount;   // lab_Calc(0..)
    std::vector<HeadingPlace> headings;
    std::vector<TermPlace> terms;
    std::array<double, 13> rows; // tops of the inputs by step; at 7 of the choice's button
    std::vector<MovedRow> movedRows;
    std::array<double, 4> lines; // tops
    std::array<const char*, 4> options;
    std::array<const char*, 4> hints;   // when each option is the right one
    std::array<const char*, 13> spoken; // names of the inputs for a screen reader, by step
    Product sample;
    Product reagent;
};

namespace case_panel {

inline constexpr panel::Column kWide{12, 360}; // a rule with a row of its own
inline constexpr panel::Column kWideName{92, 124, TextAlign::Right};
inline constexpr panel::Column kLongName{130, 86, TextAlign::Right};
inline constexpr double kFractionHeight = 44;
inline constexpr double kChoiceTop = 264; // the choice and what follows stand below

// What is shown at steps 1 to 7: the amounts, then the options with `hints` as the detail that
// shows beside each when it is the right one.
std::vector<ShownRow> caseRows(int firstHeading, bool Details::*hints);

} // namespace case_panel

class CaseGuidance : public GuidedCalculation {
  protected:
    CaseGuidance(Workbench& bench, const GuidanceTables& tables, const CasePanel& panel);

    // Which case the form's model is in at present, from 1.
    virtual int presentCase() const = 0;

    LayoutState layoutState() const override;
    void writeLabels(const LayoutState& state) override;

    // Texts of numbers in a calculator line: the default text form, the classic one with a leading
    // blank and a point, and what the learner typed at a step.
    static std::string N(double value);
    static std::string S(double value);
    std::string T(int step) const { return txt_Calc(step).text(); }

    // Common rules of the way: a detail that isn't open is left out.
    int skipClosedAmounts(int step) const;

  private:
    void design();
    void placeControls(const LayoutState& state);
    double shifted(double top, const LayoutState& state) const;
    double rowOf(int step, const LayoutState& state) const;

    const CasePanel& panel_;
};

} // namespace quendal
