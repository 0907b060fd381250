// What the kinds of controls do beyond the common base.
#include "host/buttons.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"
#include "host/pictures.h"
#include "host/utf8.h"

#include <algorithm>

namespace quendal {

namespace {

template <class Items, class TextOf>
std::string joinedWithCommas(const Items& items, TextOf textOf) {
    std::string list;
    for (const auto& item : items) {
        list += (list.empty() ? "" : ",") + textOf(item);
    }
    return list;
}

} // namespace

void ctl_Button::describe(FieldTable& table) const {
    Control::describe(table);
    table.add("bordercolor", borderColor_);
    table.add("bordercolor2", borderColor2_);
    table.add("script", script_);
}

void OptionButton::describe(FieldTable& table) const {
    Control::describe(table);
    table.add("checked", checked_);
}

void OptionButton::setChecked(bool checked) {
    if (checked) {
        for (Control* other : form().controls()) {
            auto* option = dynamic_cast<OptionButton*>(other);
            if (option != nullptr && option != this && option->container() == container() &&
                option->name() == name()) {
                option->setChecked(false);
            }
        }
    }
    assign(checked_, checked, Aspect::Value);
}

void OptionButton::clicked() {
    setChecked(true);
    Control::clicked();
}

void CheckBox::describe(FieldTable& table) const {
    Control::describe(table);
    table.add("checked", checked_);
}

void CheckBox::userChecked(bool checked) {
    if (checked != checked_) {
        userClicked();
    }
}

void CheckBox::clicked() {
    setChecked(!checked_);
    Control::clicked();
}

void ctl_Label::describe(FieldTable& table) const {
    Control::describe(table);
    table.add("wordwrap", wordWrap_);
    table.add("angle", angle_);
}

void ctl_TermLabel::describe(FieldTable& table) const {
    Control::describe(table);
    table.addGetter("term", [this] { return FieldValue(term()); });
    table.add("tag", tag_);
}

void clt_TermInput::describe(FieldTable& table) const {
    Control::describe(table);
    table.addGetter("term", [this] { return FieldValue(text()); });
    table.add("locked", locked_);
}

namespace {

// The first `limit` bytes without cutting a character in two.
std::string cutText(const std::string& text, std::size_t limit) {
    return text.substr(0, characterBegin(text, limit));
}

} // namespace

void clt_TermInput::userTyped(const std::string& text) {
    if (locked_ || !shownThroughContainers() || !enabledThroughContainers()) {
        return;
    }
    setText(cutText(text, kMaxLength));
    if (onChange) {
        onChange();
    }
}

void RichTextBox::describe(FieldTable& table) const {
    Control::describe(table);
    table.add("file", fileName_);
}

void ctl_Pannel::describe(FieldTable& table) const {
    Control::describe(table);
    table.add("bordercolor", borderColor_);
    table.add("backcolor", backColor_);
}

void Line::describe(FieldTable& table) const {
    Control::describe(table);
    table.add("x1", from_.x);
    table.add("y1", from_.y);
    table.add("x2", to_.x);
    table.add("y2", to_.y);
}

void Line::setEnds(Point from, Point to, double thickness) {
    if (from == from_ && to == to_ && thickness == thickness_) {
        return;
    }
    from_ = from;
    to_ = to;
    thickness_ = thickness;
    const double air = thickness + 1;
    const Point least{std::min(from.x, to.x), std::min(from.y, to.y)};
    const Point most{std::max(from.x, to.x), std::max(from.y, to.y)};
    setPlace(least.x - air, least.y - air, most.x - least.x + 2 * air, most.y - least.y + 2 * air);
    notify(Aspect::Value);
}

void ctl_Title::describe(FieldTable& table) const {
    Control::describe(table);
    table.add("title", title_);
}

void ctl_CmdBar::describe(FieldTable& table) const {
    Control::describe(table);
    table.addGetter("buttons", [this] {
        return FieldValue(joinedWithCommas(buttons_, [](const Button& b) { return b.command; }));
    });
}

void ctl_CmdBar::userCommand(const std::string& command) {
    if (shownThroughContainers() && enabledThroughContainers() && onCommand) {
        onCommand(command);
    }
}

void ctl_CmdBar::clicked() {
    if (!buttons_.empty()) {
        userCommand(buttons_.front().command);
    }
}

void ctl_Executor::userCommand(const std::string& command) {
    if (enabled() && onCommand) {
        onCommand(command);
    }
}

void TabControl::describe(FieldTable& table) const {
    Control::describe(table);
    table.add("index", tab_);
    table.addGetter("text", [this] {
        const auto chosen = static_cast<std::size_t>(tab_);
        return FieldValue(chosen < captions_.size() ? captions_[chosen] : text());
    });
}

void TabControl::setTab(int tab) {
    const int last = std::max(0, static_cast<int>(captions_.size()) - 1);
    assign(tab_, std::clamp(tab, 0, last), Aspect::Value);
}

void TabControl::userChose(int tab) {
    if (!shownThroughContainers() || !enabledThroughContainers()) {
        return;
    }
    setTab(tab);
    Control::clicked();
}

void ListBox::describe(FieldTable& table) const {
    Control::describe(table);
    table.add("index", listIndex_);
    table.addGetter("items", [this] {
        return FieldValue(joinedWithCommas(items_, [](const std::string& item) { return item; }));
    });
}

void ListBox::setItems(std::vector<std::string> items) {
    assign(items_, std::move(items), Aspect::Items);
    assign(listIndex_, -1, Aspect::Value);
    setText({});
}

bool ListBox::setListIndex(int index) {
    if (index < 0 || index >= static_cast<int>(items_.size())) {
        return false;
    }
    assign(listIndex_, index, Aspect::Value);
    setText(items_[static_cast<std::size_t>(index)]);
    return true;
}

void ListBox::userChose(int index) {
    if (shownThroughContainers() && enabledThroughContainers() && setListIndex(index)) {
        Control::clicked();
    }
}

void PictureBox::describe(FieldTable& table) const {
    Control::describe(table);
    table.add("backcolor", backColor_);
    table.addGetter("picture", [this] { return FieldValue(picture_ != nullptr); });
}

void ctl_DrAtom::describe(FieldTable& table) const {
    Control::describe(table);
    table.add("Mood", mood_);
    table.add("eyedirection", eyeDirection_);
    table.add("eyemove", eyeMove_);
    table.add("mouthopen", mouthOpen_);
    table.add("orbspped", orbitSpeed_);
    table.add("buble", bubble_);
}

} // namespace quendal
