// The formula sheet.
#pragma once

#include "host/control_array.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"

namespace quendal {

class frm_DialogTerms final : public Form {
  public:
    frm_DialogTerms();

    ctl_Title ctl_Title1{*this, "ctl_Title1"};
    ctl_Pannel ctl_Pannel1{*this, "ctl_Pannel1"}; // the sheet that the formulas stand on
    ControlArray<ctl_TermLabel> lab_Term{*this, "lab_Term", 0, 11};
    ctl_CmdBar ctl_CmdBar1{*this, "ctl_CmdBar1"};

  private:
    void design();
};

} // namespace quendal
