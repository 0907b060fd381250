// A form: a window's content as plain objects, with the routines of its life.
#pragma once

#include "host/control.h"
#include "host/menu.h"
#include "host/timer.h"

#include <string>
#include <vector>

namespace quendal {

enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };
enum class UnloadReason { Code, User };

class Form {
  public:
    // `name` is the name that scripts know it by; `design` the size that all places on it are told
    // for.
    Form(std::string name, Size design);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return name_; }
    const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);
    Size designSize() const { return design_; }
    // What the window really offers, in design units; never below the design size in a host that
    // scales. Larger where the screen leaves a margin.
    Size inner() const { return inner_; }
    WindowState windowState() const { return windowState_; }
    void setWindowState(WindowState state) { windowState_ = state; }
    // A rectangle of the screen asked for in place of the centre, in design units; see moveTo.
    const Rect& wantedPlace() const { return wantedPlace_; }
    void moveTo(const Rect& place);
    // A form that scales itself is shown 1:1, design unit = pixel.
    bool scalesItself() const { return scalesItself_; }
    void setScalesItself(bool itself) { scalesItself_ = itself; }
    // A form without frame and buttons of a window.
    bool frameless() const { return frameless_; }
    void setFrameless(bool frameless) { frameless_ = frameless; }

    bool loaded() const { return loaded_; }
    bool shown() const { return shown_; }

    // Controls in the order of their making, which is also their order from back to front unless
    // changed. Tab goes by their places: tab_order.h.
    const std::vector<Control*>& controls() const { return controls_; }
    Control* findControl(const std::string& name, int index = Control::kNoIndex) const;
    const std::vector<Menu*>& menus() const { return menus_; }
    const std::vector<Timer*>& timers() const { return timers_; }
    Control* focus() const { return focus_; }
    void setFocusTo(Control* control);
    // Moves the focus to the next control of the tab chain, or back.
    void focusNext(bool backward = false);

    // Tells a learner who doesn't see the screen what has just changed. An empty text says nothing.
    void announce(std::string text);
    const std::string& announced() const { return announced_; }

    // Key press by the learner: the form sees it first, then the control with the focus, then the
    // tab chain (Tab) or the form's bar of buttons (Enter and Escape). True when it was used up.
    bool userKey(Key key, const std::string& character = {});

    // The fields that scripts and tests may look at, under their names in the code.
    virtual void describe(FieldTable& table) const;

    // The life of a form. Load once before it is shown, Activate once after it has been shown,
    // QueryUnload (true: go on) and Unload before it leaves the screen. A form with a main loop
    // runs it in Activate.
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Resize() {}
    virtual bool Form_QueryUnload(UnloadReason /*reason*/) { return true; }
    virtual void Form_Unload() {}
    // True swallows the key.
    virtual bool Form_KeyDown(Key /*key*/) { return false; }
    // The same for a key that writes; one UTF-8 character.
    virtual bool Form_KeyPress(const std::string& /*character*/) { return false; }
    virtual void Form_MouseDown(double /*x*/, double /*y*/, MouseButton /*button*/) {}

  private:
    friend class Control;
    friend class Menu;
    friend class Timer;
    friend class WindowSystem;

    void resized(Size inner);

    std::string name_;
    std::string caption_;
    std::string announced_; // last
    Size design_;
    Size inner_;
    Rect wantedPlace_;
    std::vector<Control*> controls_;
    std::vector<Menu*> menus_;
    std::vector<Timer*> timers_;
    Control* focus_ = nullptr;
    WindowState windowState_ = WindowState::Normal;
    bool loaded_ = false;
    bool shown_ = false;
    bool measured_ = false; // told its inner size since it was shown
    bool scalesItself_ = false;
    bool frameless_ = false;
};

} // namespace quendal
