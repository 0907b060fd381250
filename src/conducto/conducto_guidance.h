// The guided calculation of the conductometric forms: total volume, four rows, the sum.
#pragma once

#include "workbench/guidance/guided_calculation.h"

namespace quendal {

class ConductoWorkbench;
struct ConductoVariant;

class ConductoGuidance final : public GuidedCalculation {
  public:
    static constexpr int kFirstRow = 2; // step and Index of the first ion
    static constexpr int kLastRow = 5;

    explicit ConductoGuidance(ConductoWorkbench& form);

    // The last step takes two clicks: the first finishes the point, the second closes the frame.
    void but_CalcStep_Click(int index) override;

    // Units above the rows: of the amount, the volume, the conductivity, the result.
    ctl_TermLabel lab_LF2;
    ctl_TermLabel lab_LF3;
    ctl_TermLabel lab_LF4;
    ctl_TermLabel lab_LF5;
    ControlArray<ctl_TermLabel> lab_LF1;  // name of the row
    ControlArray<ctl_Label> lab_LFVol;    // total volume
    ControlArray<ctl_Label> lab_LFAeq;    // limiting conductivity, as printed
    ControlArray<ctl_Label> lab_LFErg;    // result of the row, once it is worked out
    ControlArray<ctl_Label> lab_LFOver;   // "/" between amount and volume
    ControlArray<ctl_Label> lab_LFTimes;  // "*" before the conductivity
    ControlArray<ctl_Label> lab_LFEquals; // "=" before the result

  protected:
    PointValues referenceValues() override;
    bool shownBefore() const override;
    void startAnew() override;
    void showDemoAids() override;
    void pointPassed() override;
    void writeLabels(const LayoutState& state) override;
    bool waysChangeHere() const override;
    std::vector<std::string> presetLines(int index) const override;
    bool offersLines(int index) const override;
    std::string resultText(int index, double value) const override;
    ctl_Label* resultLabel(int step) override;
    LayoutState layoutState() const override;

  private:
    void design();
    void designRows();
    void designRow(int step, double top);
    void designCalculators();
    void showRow(int step, bool visible);
    std::string T(int step) const;
    std::string rowLine(int step) const;
    std::string sumLine() const;

    ConductoWorkbench& form_;
    const ConductoVariant& variant_;
};

} // namespace quendal
