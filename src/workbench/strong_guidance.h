// The guided calculation of the strong acid: its steps, texts and layout. Another titration of a
// strong pair derives from it, gives its model and says what its texts are.
#pragma once

#include "workbench/guidance/guided_calculation.h"

namespace quendal {

class StrongGuidance : public GuidedCalculation {
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

    // The model; volumes in L, that of the beaker above 0.
    virtual PointValues pointAt(double concentration, double reagentVol, double totalVol) const;
    // The way to the pH is by the pOH.
    virtual bool baseInExcess() const;
    static double sampleMl(); // mL of reagent that the sample takes up
    std::string inputText(int step) const { return txt_Calc(step).text(); }

  private:
    void design();
    // "pH =" beside the input, the formula before it; which label is which depends on the point.
    void placeFinalLabels(ctl_TermLabel& name, ctl_TermLabel& formula);
};

} // namespace quendal
