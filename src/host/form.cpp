#include "host/form.h"

#include "host/panels.h"
#include "host/roots.h"
#include "host/tab_order.h"
#include "host/window_system.h"

#include <algorithm>

namespace quendal {

Form::Form(std::string name, Size design)
    : name_(std::move(name)), design_(design), inner_(design) {}

Form::~Form() {
    if (rootsInstalled()) {
        CoreLib().Windows.forget(*this);
    }
}

void Form::setCaption(std::string caption) {
    if (caption != caption_) {
        caption_ = std::move(caption);
        if (shown_) {
            CoreLib().Windows.captionChanged(*this);
        }
    }
}

void Form::announce(std::string text) {
    if (!text.empty()) {
        announced_ = std::move(text);
        if (shown_) {
            CoreLib().Windows.announced(*this);
        }
    }
}

void Form::moveTo(const Rect& place) {
    wantedPlace_ = place;
    if (shown_) {
        CoreLib().Windows.placeChanged(*this);
    }
}

Control* Form::findControl(const std::string& name, int index) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* c) {
        return c->name() == name && c->index() == index;
    });
    return found == controls_.end() ? nullptr : *found;
}

void Form::setFocusTo(Control* control) {
    if (focus_ != control) {
        focus_ = control;
    }
    if (control != nullptr && control->peer() != nullptr) {
        control->peer()->changed(Aspect::Focus);
    }
}

// From a control that is hidden by now it goes on where that stood.
void Form::focusNext(bool backward) {
    std::vector<Control*> order = tabOrder(*this);
    if (backward) {
        std::reverse(order.begin(), order.end());
    }
    const auto at = std::find(order.begin(), order.end(), focus_);
    if (at != order.end()) {
        std::rotate(order.begin(), at + 1, order.end());
    }
    const auto next = std::find_if(order.begin(), order.end(), [](const Control* control) {
        return control->takesFocus() && control->shownThroughContainers() &&
               control->enabledThroughContainers();
    });
    if (next != order.end()) {
        setFocusTo(*next);
    }
}

namespace {

// The button of a bar that a key presses: Enter the first one, Escape the one that aborts, or the
// only one there is.
const ctl_CmdBar::Button* barButton(const ctl_CmdBar& bar, Key key) {
    const auto& buttons = bar.buttons();
    if (buttons.empty()) {
        return nullptr;
    }
    if (key == Key::Enter || buttons.size() == 1) {
        return &buttons.front();
    }
    const auto abort = std::find_if(buttons.begin(), buttons.end(), [](const auto& button) {
        return button.command.find("ABORT") != std::string::npos;
    });
    return abort == buttons.end() ? nullptr : &*abort;
}

// True when a bar of the form took the key.
bool pressBar(const Form& form, Key key) {
    for (Control* control : form.controls()) {
        auto* bar = dynamic_cast<ctl_CmdBar*>(control);
        if (bar == nullptr || !bar->shownThroughContainers() || !bar->enabledThroughContainers()) {
            continue;
        }
        if (const auto* button = barButton(*bar, key)) {
            bar->userCommand(std::string(button->command));
            return true;
        }
    }
    return false;
}

} // namespace

bool Form::userKey(Key key, const std::string& character) {
    if (Form_KeyDown(key) || (!character.empty() && Form_KeyPress(character))) {
        return true;
    }
    if (focus_ != nullptr && focus_->userKey(key, character)) {
        return true;
    }
    if (key == Key::Tab) {
        focusNext();
        return true;
    }
    return (key == Key::Enter || key == Key::Escape) && pressBar(*this, key);
}

void Form::describe(FieldTable& table) const {
    table.add("caption", caption_);
    table.add("width", inner_.width);
    table.add("height", inner_.height);
    table.add("announced", announced_);
}

void Form::resized(Size inner) {
    if (!measured_ || !(inner == inner_)) {
        measured_ = true;
        inner_ = inner;
        Form_Resize();
    }
}

} // namespace quendal
