// The learner's calculated points on the measured curve.
#pragma once

#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"
#include "host/pictures.h"

namespace quendal {

class frm_DialogphCompare final : public Form {
  public:
    frm_DialogphCompare();

    // Written by the forms whose curve has a break; read by nobody.
    bool ShowBreak = false;
    int BreakIndex = 0;

    ctl_Label Label1{*this, "Label1"};
    PictureBox pic_pH{*this, "pic_pH"};
    ctl_CmdBar ctl_CmdBar1{*this, "ctl_CmdBar1"};
    ctl_StatusBar ctl_StatusBar1{*this, "ctl_StatusBar1"};

    void describe(FieldTable& table) const override;
    void Form_Load() override;

  private:
    void design();
};

} // namespace quendal
