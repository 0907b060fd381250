#include "headless/headless_actor.h"

#include "host/buttons.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/roots.h"
#include "host/window_system.h"

namespace quendal {

void HeadlessActor::click(Control& control) {
    if (control.onMouse) {
        const Rect& place = control.place();
        control.userMouse(place.width / 2, place.height / 2, MouseButton::Left);
    } else {
        control.userClicked();
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
    if (control != nullptr) {
        control->userMouse(place.x, place.y, button);
    } else {
        form.Form_MouseDown(place.x, place.y, button);
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
