// The hands of a learner who has no mouse: whatever a script does with a control, this one goes
// there with Tab and works it with keys.
#pragma once

#include "script/script_actor.h"

#include <utility>

namespace quendal {

class KeyboardActor final : public ScriptActor {
  public:
    // `host` turns keys into what the host makes of them and outlives the actor.
    explicit KeyboardActor(ScriptActor& host) : host_(host) {}

    void click(Control& control) override;
    void type(clt_TermInput& input, const std::string& text) override;
    void key(Form& form, Control* control, Key key, const std::string& character) override;
    void stroke(Form& form, Stroke stroke) override { host_.stroke(form, stroke); }
    void chooseTab(TabControl& tabs, int page) override;
    void chooseItem(ListBox& list, int item) override;
    void check(CheckBox& box, bool on) override;
    // There is no such thing without a mouse: a left press is the blank, a right one Escape.
    void mouse(Form& form, Control* control, Point place, MouseButton button) override;
    void menu(Menu& item) override { host_.menuByKeys(item); }
    // The window manager has a key for it.
    void close(Form& form) override { host_.close(form); }
    void command(ctl_CmdBar& bar, const std::string& command) override;
    void command(ctl_Executor& executor, const std::string& command) override;
    bool screenshot(Form& form, const std::string& file) override;
    void hold(double seconds) override { host_.hold(seconds); }
    std::string takeFailure() override { return std::exchange(failure_, {}); }

  private:
    void press(Form& form, Key key, const std::string& character = {});
    // False, and a failure to take, when Tab comes round without meeting the control.
    bool tabTo(Control& control);

    ScriptActor& host_;
    std::string failure_;
};

} // namespace quendal
