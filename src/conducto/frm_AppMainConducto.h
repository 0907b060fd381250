// The workbench on which hydrochloric acid is titrated with a strong base, followed by its
// conductivity.
#pragma once

#include "conducto/conducto_workbench.h"

namespace quendal {

class frm_AppMainConducto final : public ConductoWorkbench {
  public:
    frm_AppMainConducto();

    quendal::ctl_Executor ctl_Executor{*this, "ctl_Executor"}; // "PIPETTE" clicks the pipette
};

} // namespace quendal
