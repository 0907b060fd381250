// The learner's hands: how a host performs the actions of a script. The player has looked up the
// control and made sure that a learner could reach it before it asks; it calls from inside the
// event pump, and the action's handlers may pump again before the call comes back.
#pragma once

#include "host/control.h"
#include "host/panels.h"

#include <string>

namespace quendal {

class CheckBox;
class Menu;
class clt_TermInput;

// Keys that write nothing and that the logic never hears of.
enum class Stroke { Left, Right, Up, Down, Backspace };

class ScriptActor {
  public:
    virtual ~ScriptActor() = default;

    // A left click in the middle of the control.
    virtual void click(Control& control) = 0;
    // Focus, then the text in place of what stood there.
    virtual void type(clt_TermInput& input, const std::string& text) = 0;
    // To the control, which gets the focus where it can take it; null: to whatever has the focus on
    // the form. `character` is one UTF-8 character for Key::Other and empty for the named keys.
    virtual void key(Form& form, Control* control, Key key, const std::string& character) = 0;
    // `page` is one of the control's pages, from 0.
    virtual void chooseTab(TabControl& tabs, int page) = 0;
    // `item` is one of the list's items, from 0.
    virtual void chooseItem(ListBox& list, int item) = 0;
    virtual void check(CheckBox& box, bool on) = 0;
    // A press at a place in the control's scale units; a null control stands for the form itself.
    virtual void mouse(Form& form, Control* control, Point place, MouseButton button) = 0;
    virtual void menu(Menu& item) = 0;
    // The same without a mouse: its mnemonic, then down to the item.
    virtual void menuByKeys(Menu& item) { menu(item); }
    // To what has the focus on the form.
    virtual void stroke(Form& form, Stroke stroke) = 0;
    // The windows stand still for a time of the real clock, and answer whoever asks them.
    virtual void hold(double /*seconds*/) {}
    // The close box of the window.
    virtual void close(Form& form) = 0;
    // The command is one of the bar's buttons.
    virtual void command(ctl_CmdBar& bar, const std::string& command) = 0;
    virtual void command(ctl_Executor& executor, const std::string& command) = 0;
    // A PNG of the form as the learner sees it. False on a host without a screen, which then writes
    // nothing. A file that can't be written is logged and also gives false.
    virtual bool screenshot(Form& form, const std::string& file) = 0;
    // Why an action since the last call couldn't be done; empty when all could.
    virtual std::string takeFailure() { return {}; }
};

} // namespace quendal
