#include "monkey/mind.h"

#include "host/buttons.h"
#include "host/expression.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/number_service.h"
#include "host/panels.h"
#include "host/pictures.h"
#include "monkey/monkey_words.h"
#include "monkey/placement.h"

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr const char* kEnd = "ctl_Button5"; // ends the program

struct MoodRow {
    double advance; // share of events that lead deeper
    double leave;   // share of the others that close or end something
    double consent; // to a question
};

constexpr MoodRow rowOf(Mood mood) {
    switch (mood) {
    case Mood::Diligent:
        return {.advance = 0.9, .leave = 0.01, .consent = 0.85};
    case Mood::Playful:
        return {.advance = 0.6, .leave = 0.02, .consent = 0.6};
    case Mood::Wild:
        break;
    }
    return {.advance = 0.1, .leave = 0.04, .consent = 0.5};
}

// A point with at most two decimals, as a script writes it.
std::string coordinate(double value) {
    return NumberService::pointText(std::round(value * 100) / 100);
}

bool isWatched(const Control& control) {
    return control.onClick || control.onMouse;
}

// How much the monkey likes to use a control.
double appealOf(const Control& control) {
    if (control.name() == kEnd) {
        return 0.1;
    }
    switch (control.kind()) {
    case ControlKind::Button:
    case ControlKind::OptionButton:
    case ControlKind::CheckBox:
    case ControlKind::ListBox:
    case ControlKind::TabControl:
        return 4;
    case ControlKind::TermInput:
        return 6;
    case ControlKind::CmdBar:
        return 2;
    case ControlKind::PictureBox:
        return isWatched(control) ? 4 : 0.2;
    case ControlKind::Executor:
        return 0.5;
    default:
        return isWatched(control) ? 4 : 0.1;
    }
}

bool canUse(const Control& control) {
    return control.kind() == ControlKind::Executor ? control.enabledThroughContainers()
                                                   : control.reach() == Reach::Reachable;
}

// The control may be gone with its form.
bool isOn(const Form& form, const Control* control) {
    const auto& all = form.controls();
    return std::find(all.begin(), all.end(), control) != all.end();
}

} // namespace

Mind::Mind(Chance& chance, Mood mood, std::string target)
    : chance_(chance), mood_(mood), target_(std::move(target)) {
    // All the marks are to come up.
    constexpr double kZeals[] = {0.03, 0.08, 0.12, 0.15, 0.3};
    constexpr double kSkills[] = {0, 0, 0.5, 0.95};
    zeal_ = chance_.pick(kZeals);
    skill_ = chance_.pick(kSkills);
}

std::string Mind::nextEvent(const Form& top) {
    constexpr double kTwice = 0.06; // a double click, or more
    if (last_ != nullptr && chance_.hit(kTwice) && isOn(top, last_) && canUse(*last_)) {
        return clickOn(*last_);
    }
    if (chance_.hit(rowOf(mood_).advance)) {
        const std::string event = advance(top);
        if (!event.empty()) {
            return event;
        }
    }
    return anyEvent(top);
}

bool Mind::onTarget(const Form& top) const {
    return !target_.empty() && top.name() == target_;
}

std::string Mind::anyEvent(const Form& top) {
    if (chance_.hit(onTarget(top) ? rowOf(mood_).leave / 10 : rowOf(mood_).leave)) {
        return leave(top);
    }
    const double share = chance_.unit();
    if (share < 0.6) {
        const bool lost = !target_.empty() && !onTarget(top) && chance_.hit(0.8);
        const std::string way = lost ? advance(top) : std::string();
        return way.empty() ? controlEvent(top) : way;
    }
    if (share < 0.75) {
        return anyKey(top);
    }
    if (share < 0.85) {
        return anyPress(top);
    }
    const std::string menu = share < 0.88 ? anyMenu(top) : std::string();
    return menu.empty() ? anyWait(chance_.hit(0.1) ? 12 : 0.5) : menu;
}

std::string Mind::controlEvent(const Form& top) {
    double all = 0;
    for (const Control* control : top.controls()) {
        all += canUse(*control) ? appealOf(*control) : 0;
    }
    double place = chance_.unit() * all;
    for (Control* control : top.controls()) {
        place -= canUse(*control) ? appealOf(*control) : 0;
        if (place < 0) {
            return useControl(*control);
        }
    }
    return anyWait(0.5);
}

std::string Mind::clickOn(const Control& control) {
    last_ = &control;
    const Rect place = placeOnForm(control);
    const Point middle{place.left + place.width / 2, place.top + place.height / 2};
    // The mouse would meet what stands in front; the keyboard meets the control.
    if (control.takesFocus() && (isCoveredAt(control, middle) || chance_.hit(0.15))) {
        return std::string(chance_.hit(0.5) ? "key ENTER " : "key \" \" ") + controlWord(control);
    }
    return isCoveredAt(control, middle) ? anyWait(0.5) : "click " + controlWord(control);
}

std::string Mind::useControl(Control& control) {
    if (auto* input = dynamic_cast<clt_TermInput*>(&control)) {
        if (chance_.hit(0.2)) {
            return "key ENTER " + controlWord(control);
        }
        return chance_.hit(0.2)
                   ? "key " + scriptWord(anyCharacter(chance_)) + " " + controlWord(*input)
                   : "type " + controlWord(*input) + " " + scriptWord(anyText(chance_));
    }
    if (auto* list = dynamic_cast<ListBox*>(&control); list != nullptr && !list->items().empty()) {
        return "choose " + controlWord(control) + " " +
               scriptWord(list->items()[chance_.below(list->items().size())]);
    }
    if (auto* tabs = dynamic_cast<TabControl*>(&control);
        tabs != nullptr && !tabs->captions().empty()) {
        return "choose " + controlWord(control) + " " +
               std::to_string(chance_.below(tabs->captions().size()));
    }
    if (auto* bar = dynamic_cast<ctl_CmdBar*>(&control);
        bar != nullptr && !bar->buttons().empty()) {
        const auto& button = bar->buttons()[chance_.below(bar->buttons().size())];
        return "command " + controlWord(control) + " " + scriptWord(button.command);
    }
    if (control.kind() == ControlKind::Executor) {
        return "command " + controlWord(control) + " " +
               (chance_.hit(0.5) ? "PIPETTE" : scriptWord(anyText(chance_)));
    }
    if (control.kind() == ControlKind::CheckBox && chance_.hit(0.5)) {
        return "check " + controlWord(control) + (chance_.hit(0.5) ? " on" : " off");
    }
    return clickOn(control);
}

std::string Mind::leave(const Form& top) {
    const auto& menus = top.menus();
    const bool byMenu = !menus.empty() && chance_.hit(0.7);
    if (!byMenu) {
        return "close";
    }
    const auto named = std::find_if(menus.begin(), menus.end(), [&](const Menu* menu) {
        return menu->name() == (chance_.hit(0.7) ? "mnu_FileNew" : "mnu_FileQuit");
    });
    return named == menus.end() ? "close" : "menu " + (*named)->name();
}

std::string Mind::anyKey(const Form& top) {
    constexpr const char* kNamed[] = {"ENTER", "TAB", "TAB", "TAB", "ENTER", "ESC"};
    const char* named = chance_.pick(kNamed);
    const bool leaves = std::string_view(named) == "ESC" && onTarget(top) && chance_.hit(0.9);
    return chance_.hit(0.6) && !leaves ? std::string("key ") + named
                                       : "key " + scriptWord(anyCharacter(chance_));
}

std::string Mind::anyPress(const Form& top) {
    // The right button breaks an animation off.
    const char* button = chance_.hit(onTarget(top) ? 0.005 : 0.05) ? " right" : "";
    return "mouse " + top.name() + " " + coordinate(chance_.unit() * top.inner().width) + " " +
           coordinate(chance_.unit() * top.inner().height) + button;
}

std::string Mind::anyMenu(const Form& top) {
    const auto& menus = top.menus();
    const Menu* menu = menus.empty() ? nullptr : menus[chance_.below(menus.size())];
    const bool leads = menu != nullptr && menu->onClick && menu->name() != "mnu_FileNew" &&
                       menu->name() != "mnu_FileQuit";
    return leads ? "menu " + menu->name() : std::string();
}

std::string Mind::anyWait(double most) {
    const double seconds = chance_.unit() * chance_.unit() * most;
    return "wait " + NumberService::pointText(std::round(seconds * 1000) / 1000);
}

BoxReply Mind::reply(const BoxEvent& box) {
    using Kind = BoxReply::Kind;
    const bool consents = chance_.hit(rowOf(mood_).consent);
    switch (box.kind) {
    case BoxKind::YesNo: {
        // The demo's warning asks whether to stop.
        const bool stops = box.text.find("abbrechen") != std::string::npos;
        return {consents != stops ? Kind::Yes : Kind::No, {}, 0};
    }
    case BoxKind::Input:
        return chance_.hit(0.1) ? BoxReply{Kind::Cancel, {}, 0}
                                : BoxReply{Kind::Text, anyText(chance_), 0};
    case BoxKind::Calculator: {
        const std::size_t lines = box.presets.size();
        const std::size_t line = lines > 0 ? chance_.below(lines) : 0;
        if (lines > 0 && chance_.hit(0.6) && evaluateExpression(box.presets[line])) {
            return {Kind::Preset, {}, static_cast<int>(line) + 1};
        }
        const std::string number = anyNumber(chance_);
        return chance_.hit(0.8) && NumberService().ParseVariant(number)
                   ? BoxReply{Kind::Value, number, 0}
                   : BoxReply{Kind::Cancel, {}, 0};
    }
    default:
        return {};
    }
}

} // namespace quendal
