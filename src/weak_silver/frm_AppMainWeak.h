// The workbench on which a weak acid is titrated with a strong base.
#pragma once

#include "weak_silver/lens_workbench.h"
#include "weak_silver/weak_guidance.h"

namespace quendal {

class frm_AppMainWeak final : public LensWorkbench {
  public:
    frm_AppMainWeak();

    // What the model says of the present beaker, into the fields below.
    void hCalcPH();

    void describe(FieldTable& table) const override;

    int vCountOH = 0;    // particles of OH- in the beaker
    int vCountHAc = 0;   // and of HAc
    double vPKs;         // acid constant, set once
    double vPh = 0;      // keeps its last value where a run ends early
    double vPOH = 0;     // only written with base in excess
    double vExcess = 0;  // mol in excess, rounded to 3 decimals
    int vCase = 0;       // 1 acid, 2 buffer, 3 base, 4 base in excess; 0 before the first run
    std::string vPhText; // vPh with 3 decimals

    ctl_Label lab_Step0{*this, "lab_Step0"}; // the acid constant, on the task sheet

  protected:
    std::optional<Reading> presentReading() override;
    GuidedCalculation& guidance() override { return guidance_; }

  private:
    bool readCase();

    WeakGuidance guidance_;
};

} // namespace quendal
