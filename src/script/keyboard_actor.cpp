#include "script/keyboard_actor.h"

#include "host/buttons.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/utf8.h"

#include <cstdlib>

namespace quendal {

namespace {

constexpr const char* kBlank = " ";

} // namespace

void KeyboardActor::press(Form& form, Key key, const std::string& character) {
    host_.key(form, nullptr, key, character);
}

bool KeyboardActor::tabTo(Control& control) {
    Form& form = control.form();
    // A bar takes a turn for each of its buttons.
    const std::size_t most = 2 * form.controls().size() + 2;
    for (std::size_t turn = 0; turn < most && form.focus() != &control; ++turn) {
        press(form, Key::Tab);
    }
    if (form.focus() != &control) {
        failure_ = "no Tab leads to " + form.name() + "." + control.fullName();
        return false;
    }
    return true;
}

void KeyboardActor::click(Control& control) {
    Form& form = control.form();
    if (!control.takesFocus() || tabTo(control)) {
        press(form, Key::Other, kBlank);
    }
}

void KeyboardActor::type(clt_TermInput& input, const std::string& text) {
    if (!tabTo(input)) {
        return;
    }
    Form& form = input.form();
    for (std::size_t left = input.text().size(); left > 0 && !input.text().empty(); --left) {
        host_.stroke(form, Stroke::Backspace);
    }
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = characterEnd(text, at);
        press(form, Key::Other, text.substr(at, end - at));
        at = end;
    }
}

void KeyboardActor::key(Form& form, Control* control, Key key, const std::string& character) {
    if (control == nullptr || !control->takesFocus() || tabTo(*control)) {
        press(form, key, character);
    }
}

void KeyboardActor::chooseTab(TabControl& tabs, int page) {
    if (!tabTo(tabs)) {
        return;
    }
    for (int steps = std::abs(page - tabs.tab()); steps > 0; --steps) {
        host_.stroke(tabs.form(), page > tabs.tab() ? Stroke::Right : Stroke::Left);
    }
}

void KeyboardActor::chooseItem(ListBox& list, int item) {
    if (!tabTo(list)) {
        return;
    }
    for (int steps = std::abs(item - list.listIndex()); steps > 0; --steps) {
        host_.stroke(list.form(), item > list.listIndex() ? Stroke::Down : Stroke::Up);
    }
}

void KeyboardActor::check(CheckBox& box, bool on) {
    if (box.checked() != on) {
        click(box);
    }
}

void KeyboardActor::mouse(Form& form, Control* /*control*/, Point /*place*/, MouseButton button) {
    if (button == MouseButton::Right) {
        press(form, Key::Escape);
    } else {
        press(form, Key::Other, kBlank);
    }
}

// Enter stands for the first button of a bar and Escape for the one that aborts.
void KeyboardActor::command(ctl_CmdBar& bar, const std::string& command) {
    if (!bar.buttons().empty() && bar.buttons().front().command == command) {
        click(bar);
    } else {
        press(bar.form(), Key::Escape);
    }
}

void KeyboardActor::command(ctl_Executor& executor, const std::string& command) {
    host_.command(executor, command);
}

bool KeyboardActor::screenshot(Form& form, const std::string& file) {
    return host_.screenshot(form, file);
}

} // namespace quendal
