// The demonstration of a strong acid's titration as a chain of logarithms: pH up to the equivalence
// point, pOH behind it, also at volumes that the learner types.
#pragma once

#include "conducto/conducto_workbench.h"

namespace quendal {

class frm_AppMainConductolog final : public ConductoWorkbench {
  public:
    frm_AppMainConductolog();

    void but_AddPoint_Click();

    double titrantVolume() const override;
    void calculationClosed() override;
    void describe(FieldTable& table) const override;

    quendal::ctl_Executor ctl_Executor{*this, "ctl_Executor"}; // "PIPETTE" clicks the pipette
    ctl_Button but_AddPoint{*this, "but_AddPoint"};

    bool AddPointActive = false; // the calculation is about the typed volume
    double AddPointVolume = 0;   // L

  protected:
    void fillSeries(double volume, double total, const std::array<double, 4>& ions) override;
    void frameDone() override;

  private:
    bool pointRefused() const;
    std::optional<double> askVolume() const;
};

} // namespace quendal
