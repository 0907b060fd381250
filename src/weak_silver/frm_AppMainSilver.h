// The workbench on which chloride is titrated with silver ions, followed by a silver electrode.
#pragma once

#include "weak_silver/lens_workbench.h"
#include "weak_silver/silver_guidance.h"

namespace quendal {

class frm_AppMainSilver final : public LensWorkbench {
  public:
    frm_AppMainSilver();

    // What the model says of the present beaker, into the fields below. The fields of the acid hold
    // the chloride here, those of the base the silver.
    void hCalcPH();

    void Form_Load() override;
    void describe(FieldTable& table) const override;

    double vSilverExcess = 0;   // mol, only with silver in excess
    double vSilverIon = 0;      // mol/L of Ag+ in the solution
    double vPKL;                // solubility of AgCl, set once
    double vPotential = 0;      // V; keeps its last value while there is no silver
    int vCase = 0;              // section: 2 chloride left, 3 equivalence, 4 silver left
    std::string vPotentialText; // vPotential with 2 decimals
    double vPotentialNow = 0;   // and read back: what a direct answer is compared with

    ctl_TermLabel lab_KLInfo{*this, "lab_KLInfo"}; // the solubility product, on the task sheet

  protected:
    std::optional<Reading> presentReading() override;
    void reagentComing() override;
    bool answerable() const override;
    GuidedCalculation& guidance() override { return guidance_; }

  private:
    SilverGuidance guidance_;
};

} // namespace quendal
