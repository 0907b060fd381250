#include "headless/headless_actor.h"

#include "host/buttons.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/pictures.h"
#include "host/roots.h"
#include "host/utf8.h"
#include "host/window_system.h"

#include <algorithm>

namespace quendal {

namespace {

// Size in the control's own scale units.
Size unitsOf(const Control& control) {
    const auto* box = dynamic_cast<const PictureBox*>(&control);
    return box != nullptr ? surfaceScale(*box)
                          : Size{control.place().width, control.place().height};
}

Point placeOnForm(const Control& control) {
    Point place{control.place().left, control.place().top};
    for (const Control* outer = control.container(); outer != nullptr; outer = outer->container()) {
        place = {place.x + outer->place().left, place.y + outer->place().top};
    }
    return place;
}

// A picture or a line that nobody watches lets a press through to what lies beneath.
bool letsThrough(const Control& control) {
    const bool shape =
        control.kind() == ControlKind::PictureBox || control.kind() == ControlKind::Line;
    return shape && !control.onClick && !control.onMouse;
}

// The control in front, of those that wait for presses, beneath a place on the form.
Control* controlAt(const Form& form, Point at) {
    const auto& controls = form.controls();
    const auto found =
        std::find_if(controls.rbegin(), controls.rend(), [&](const Control* control) {
            const Point start = placeOnForm(*control);
            const bool waits = control->onClick || control->onMouse;
            return waits && control->reach() == Reach::Reachable && at.x >= start.x &&
                   at.y >= start.y && at.x < start.x + control->place().width &&
                   at.y < start.y + control->place().height;
        });
    return found == controls.rend() ? nullptr : *found;
}

// A place on the form in the control's own scale units.
Point onControl(const Control& control, Point at) {
    const Point start = placeOnForm(control);
    const Size units = unitsOf(control);
    return {(at.x - start.x) * units.width / control.place().width,
            (at.y - start.y) * units.height / control.place().height};
}

void pressMiddle(Control& control) {
    if (control.onMouse) {
        const Size units = unitsOf(control);
        control.userMouse(units.width / 2, units.height / 2, MouseButton::Left);
    } else {
        control.userClicked();
    }
}

} // namespace

void HeadlessActor::click(Control& control) {
    if (!letsThrough(control)) {
        pressMiddle(control);
        return;
    }
    const Point start = placeOnForm(control);
    const Point middle{start.x + control.place().width / 2, start.y + control.place().height / 2};
    if (Control* beneath = controlAt(control.form(), middle)) {
        pressMiddle(*beneath);
    } else {
        control.form().Form_MouseDown(middle.x, middle.y, MouseButton::Left);
    }
}

void HeadlessActor::type(clt_TermInput& input, const std::string& text) {
    input.setFocus();
    input.userTyped(text);
}

void HeadlessActor::key(Form& form, Control* control, Key key, const std::string& character) {
    if (control != nullptr && !control->takesFocus()) {
        if (!form.Form_KeyDown(key)) {
            control->userKey(key, character);
        }
        return;
    }
    if (control != nullptr) {
        control->setFocus();
    }
    // An input writes what nobody else wanted.
    auto* input = dynamic_cast<clt_TermInput*>(form.focus());
    if (!form.userKey(key, character) && input != nullptr && !character.empty()) {
        input->userTyped(input->text() + character);
    }
}

void HeadlessActor::chooseTab(TabControl& tabs, int page) {
    tabs.setFocus();
    tabs.userChose(page);
}

void HeadlessActor::chooseItem(ListBox& list, int item) {
    list.setFocus();
    list.userChose(item);
}

void HeadlessActor::check(CheckBox& box, bool on) {
    box.userChecked(on);
}

void HeadlessActor::mouse(Form& form, Control* control, Point place, MouseButton button) {
    if (control != nullptr && letsThrough(*control)) {
        const Size units = unitsOf(*control);
        const Point start = placeOnForm(*control);
        place = {start.x + place.x * control->place().width / std::max(1.0, units.width),
                 start.y + place.y * control->place().height / std::max(1.0, units.height)};
        control = controlAt(form, place);
        place = control != nullptr ? onControl(*control, place) : place;
    }
    if (control != nullptr) {
        control->userMouse(place.x, place.y, button);
    } else {
        form.Form_MouseDown(place.x, place.y, button);
    }
}

// As the widgets of a screen take them.
void HeadlessActor::stroke(Form& form, Stroke stroke) {
    const int ahead = stroke == Stroke::Right || stroke == Stroke::Down ? 1 : -1;
    const bool across = stroke == Stroke::Left || stroke == Stroke::Right;
    Control* focused = form.focus();
    if (auto* input = dynamic_cast<clt_TermInput*>(focused);
        input != nullptr && stroke == Stroke::Backspace && !input->text().empty()) {
        const std::string& text = input->text();
        input->userTyped(text.substr(0, characterBegin(text, text.size() - 1)));
    } else if (auto* tabs = dynamic_cast<TabControl*>(focused); tabs != nullptr && across) {
        tabs->userChose(tabs->tab() + ahead);
    } else if (auto* list = dynamic_cast<ListBox*>(focused);
               list != nullptr && stroke != Stroke::Backspace) {
        list->userChose(list->listIndex() + ahead);
    }
}

void HeadlessActor::menu(Menu& item) {
    item.userClicked();
}

void HeadlessActor::close(Form& form) {
    CoreLib().Windows.userClosed(form);
}

void HeadlessActor::command(ctl_CmdBar& bar, const std::string& command) {
    bar.userCommand(command);
}

void HeadlessActor::command(ctl_Executor& executor, const std::string& command) {
    executor.userCommand(command);
}

bool HeadlessActor::screenshot(Form& /*form*/, const std::string& /*file*/) {
    return false;
}

} // namespace quendal
