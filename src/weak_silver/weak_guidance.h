// The guided calculation of the weak acid.
#pragma once

#include "weak_silver/case_guidance.h"

namespace quendal {

class frm_AppMainWeak;

class WeakGuidance final : public CaseGuidance {
  public:
    explicit WeakGuidance(frm_AppMainWeak& form);

  protected:
    PointValues referenceValues() override;
    int presentCase() const override;
    int route(int step) override;
    void writeLabels(const LayoutState& state) override;
    bool waysChangeHere() const override;
    std::vector<std::string> presetLines(int index) const override;

  private:
    std::vector<std::string> resultLines() const;
    void showStartConcentration();

    frm_AppMainWeak& form_;
};

} // namespace quendal
