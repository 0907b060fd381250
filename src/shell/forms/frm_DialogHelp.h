// Shows a rich-text help file. The caller makes a new one each time.
#pragma once

#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"

#include <string>

namespace quendal {

class frm_DialogHelp final : public Form {
  public:
    frm_DialogHelp();

    std::string FileName; // below the help folder, set before the show

    ctl_Title ctl_Title1{*this, "ctl_Title1"};
    RichTextBox txt_RTF{*this, "txt_RTF"};
    ctl_CmdBar ctl_CmdBar1{*this, "ctl_CmdBar1"};

    void describe(FieldTable& table) const override;
    void Form_Load() override;
    void Form_Resize() override;

  private:
    void design();
};

} // namespace quendal
