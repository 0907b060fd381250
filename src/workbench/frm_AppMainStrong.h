// The workbench on which a strong acid is titrated with a strong base.
#pragma once

#include "workbench/strong_guidance.h"
#include "workbench/workbench.h"

namespace quendal {

class frm_AppMainStrong final : public Workbench {
  public:
    frm_AppMainStrong();

  protected:
    std::optional<Reading> presentReading() override;
    GuidedCalculation& guidance() override { return guidance_; }

  private:
    StrongGuidance guidance_;
};

} // namespace quendal
