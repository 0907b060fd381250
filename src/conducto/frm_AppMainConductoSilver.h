// The workbench on which chloride is titrated with silver ions, followed by its conductivity.
#pragma once

#include "conducto/conducto_workbench.h"

namespace quendal {

class frm_AppMainConductoSilver final : public ConductoWorkbench {
  public:
    frm_AppMainConductoSilver();

    // There is no pH to be calculated; the routine of the other forms stays without effect.
    void hCalcPH() {}
};

} // namespace quendal
