// What the learner sees before some titrations: a picture of the apparatus. Whoever closes it by
// the window's own button has no task.
#pragma once

#include "host/form.h"
#include "host/panels.h"
#include "host/pictures.h"

#include <string>
#include <string_view>

namespace quendal {

struct StartTexts {
    std::string_view formName;
    std::string_view caption;
    std::string_view picture; // file in the data folder
    std::string_view spoken;  // what it shows, for a screen reader
};

class StartForm : public Form {
  public:
    explicit StartForm(const StartTexts& texts);

    bool Accepted = false; // the learner wants the task; false when the window was closed

    void Form_Load() override;
    void describe(FieldTable& table) const override;

    PictureBox pic_Start{*this, "pic_Start"}; // the apparatus
    ctl_CmdBar bar_Buttons{*this, "bar_Buttons"};

  private:
    void design();
    void obey(const std::string& command);

    const StartTexts texts_;
};

} // namespace quendal
