// The guided calculation of the strong acid: its steps, texts and layout.
#pragma once

#include "workbench/guidance/guided_calculation.h"

namespace quendal {

class StrongGuidance final : public GuidedCalculation {
  public:
    explicit StrongGuidance(Workbench& bench);

  protected:
    PointValues referenceValues() override;
    int route(int step) override;
    void writeLabels(const LayoutState& state) override;
    bool waysChangeHere() const override;
    std::vector<std::string> presetLines(int index) const override;
    std::string resultText(int index, double value) const override;
    bool saysInPlaceOfRung(int step) override;
    LayoutState layoutState() const override;

  private:
    void design();
    // "pH =" beside the input, the formula before it; which label is which depends on the point.
    void placeFinalLabels(ctl_TermLabel& name, ctl_TermLabel& formula);
    std::string inputText(int step) const { return txt_Calc(step).text(); }
};

} // namespace quendal
