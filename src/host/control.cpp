#include "host/control.h"

#include "host/form.h"
#include "host/panels.h"
#include "host/roots.h"
#include "host/window_system.h"

#include <algorithm>

namespace quendal {

Control::Control(Form& form, std::string name, int index)
    : form_(form), name_(std::move(name)), index_(index) {
    form_.controls_.push_back(this);
}

Control::~Control() {
    std::erase(form_.controls_, this);
    if (form_.focus_ == this) {
        form_.focus_ = nullptr;
    }
}

std::string Control::fullName() const {
    return index_ == kNoIndex ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::setContainer(Control& container, int page) {
    container_ = &container;
    page_ = page;
    notify(Aspect::Place);
}

void Control::bringToFront() {
    auto& controls = form_.controls_;
    controls.erase(std::find(controls.begin(), controls.end(), this));
    controls.push_back(this);
    notify(Aspect::Order);
}

void Control::sendToBack() {
    auto& controls = form_.controls_;
    controls.erase(std::find(controls.begin(), controls.end(), this));
    controls.insert(controls.begin(), this);
    notify(Aspect::Order);
}

void Control::setFocus() {
    if (takesFocus() && shownThroughContainers() && enabledThroughContainers()) {
        form_.setFocusTo(this);
    }
}

bool Control::hasFocus() const {
    return form_.focus() == this;
}

bool Control::shownThroughContainers() const {
    if (!visible_) {
        return false;
    }
    if (container_ == nullptr) {
        return true;
    }
    const auto* tabs = dynamic_cast<const TabControl*>(container_);
    const bool onChosenPage = tabs == nullptr || page_ < 0 || tabs->tab() == page_;
    return onChosenPage && container_->shownThroughContainers();
}

bool Control::enabledThroughContainers() const {
    return enabled_ && (container_ == nullptr || container_->enabledThroughContainers());
}

Reach Control::reach() const {
    if (CoreLib().Windows.top() != &form_) {
        return Reach::Beneath;
    }
    if (!shownThroughContainers()) {
        return Reach::Hidden;
    }
    return enabledThroughContainers() ? Reach::Reachable : Reach::Disabled;
}

void Control::userClicked() {
    if (!shownThroughContainers() || !enabledThroughContainers()) {
        return;
    }
    if (takesFocus()) {
        form_.setFocusTo(this);
    }
    clicked();
}

void Control::clicked() {
    if (onClick) {
        onClick();
    }
}

bool Control::userKey(Key key, const std::string& character) {
    if (!shownThroughContainers() || !enabledThroughContainers()) {
        return false;
    }
    if (onKey && onKey(key)) {
        return true;
    }
    const bool presses = key == Key::Enter || character == " ";
    const ControlKind what = kind();
    if (presses && (what == ControlKind::Button || what == ControlKind::CmdBar ||
                    what == ControlKind::CheckBox || what == ControlKind::OptionButton)) {
        clicked();
        return true;
    }
    return false;
}

void Control::userMouse(double x, double y, MouseButton button) {
    if (!shownThroughContainers() || !enabledThroughContainers()) {
        return;
    }
    if (onMouse) {
        onMouse(x, y, button);
    } else if (button == MouseButton::Left) {
        clicked();
    }
}

void Control::describe(FieldTable& table) const {
    table.add("text", text_);
    table.add("visible", visible_);
    table.add("enabled", enabled_);
    table.add("left", place_.left);
    table.add("top", place_.top);
    table.add("width", place_.width);
    table.add("height", place_.height);
    table.add("textcolor", textColor_);
    table.add("icon", pictureIcon_);
    table.add("description", description_);
    table.addGetter("focus", [this] { return FieldValue(hasFocus()); });
}

} // namespace quendal
