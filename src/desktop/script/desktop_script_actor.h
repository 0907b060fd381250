// The learner's hands on the real windows: mouse and key events as the window system delivers them.
#pragma once

#include "script/script_actor.h"

#include <functional>

class QAction;
class QMenuBar;
class QWidget;

namespace quendal {

class DesktopWindowSystem;

class DesktopScriptActor : public ScriptActor {
  public:
    explicit DesktopScriptActor(DesktopWindowSystem& windows) : windows_(windows) {}

    void click(Control& control) override;
    void type(clt_TermInput& input, const std::string& text) override;
    void key(Form& form, Control* control, Key key, const std::string& character) override;
    void chooseTab(TabControl& tabs, int page) override;
    void chooseItem(ListBox& list, int item) override;
    void check(CheckBox& box, bool on) override;
    void mouse(Form& form, Control* control, Point place, MouseButton button) override;
    void menu(Menu& item) override;
    void menuByKeys(Menu& item) override;
    void stroke(Form& form, Stroke stroke) override;
    void hold(double seconds) override;
    void close(Form& form) override;
    void command(ctl_CmdBar& bar, const std::string& command) override;
    void command(ctl_Executor& executor, const std::string& command) override;
    bool screenshot(Form& form, const std::string& file) override;

  private:
    // What shows the control, or takes its focus; null when it isn't on the screen.
    QWidget* widgetOf(const Control& control) const;
    QWidget* targetOf(const Control& control) const;
    void walkMenu(Menu& item, const std::function<void(QMenuBar& bar, QAction& opener)>& open);

    DesktopWindowSystem& windows_;
};

} // namespace quendal
