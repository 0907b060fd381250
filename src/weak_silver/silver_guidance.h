// The guided calculation of chloride with silver ions.
#pragma once

#include "weak_silver/case_guidance.h"

namespace quendal {

class frm_AppMainSilver;

class SilverGuidance final : public CaseGuidance {
  public:
    explicit SilverGuidance(frm_AppMainSilver& form);

  protected:
    PointValues referenceValues() override;
    int presentCase() const override;
    int route(int step) override;
    bool waysChangeHere() const override;
    std::vector<std::string> presetLines(int index) const override;
    std::string resultText(int index, double value) const override;

  private:
    frm_AppMainSilver& form_;
};

} // namespace quendal
