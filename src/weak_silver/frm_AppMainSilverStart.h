// What the learner sees before the titration of chloride with silver: the apparatus.
#pragma once

#include "host/form.h"
#include "host/panels.h"
#include "host/pictures.h"

namespace quendal {

class frm_AppMainSilverStart final : public Form {
  public:
    frm_AppMainSilverStart();

    bool Accepted = false; // the learner wants the task; false when the window was closed

    void Form_Load() override;
    void describe(FieldTable& table) const override;

    PictureBox pic_Start{*this, "pic_Start"}; // the apparatus
    ctl_CmdBar bar_Buttons{*this, "bar_Buttons"};

  private:
    void design();
    void obey(std::string command);
};

} // namespace quendal
