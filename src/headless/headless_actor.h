// The learner's hands on a host without a screen: the controls are told what was done.
#pragma once

#include "script/script_actor.h"

namespace quendal {

class HeadlessActor final : public ScriptActor {
  public:
    void click(Control& control) override;
    void type(clt_TermInput& input, const std::string& text) override;
    void key(Form& form, Control* control, Key key, const std::string& character) override;
    void chooseTab(TabControl& tabs, int page) override;
    void chooseItem(ListBox& list, int item) override;
    void check(CheckBox& box, bool on) override;
    void mouse(Form& form, Control* control, Point place, MouseButton button) override;
    void menu(Menu& item) override;
    void stroke(Form& form, Stroke stroke) override;
    void close(Form& form) override;
    void command(ctl_CmdBar& bar, const std::string& command) override;
    void command(ctl_Executor& executor, const std::string& command) override;
    bool screenshot(Form& form, const std::string& file) override;
};

} // namespace quendal
