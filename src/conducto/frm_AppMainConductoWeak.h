// The workbench on which acetic acid is titrated with a strong base, followed by its conductivity.
#pragma once

#include "conducto/conducto_workbench.h"

namespace quendal {

class frm_AppMainConductoWeak final : public ConductoWorkbench {
  public:
    frm_AppMainConductoWeak();

    // There is no pH to be calculated; the routine of the other forms stays without effect.
    void hCalcPH() {}
};

} // namespace quendal
