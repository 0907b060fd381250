#include "script/actions.h"

#include "host/buttons.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "script/script_actor.h"
#include "script/stage.h"
#include "script/values.h"

#include <algorithm>

namespace quendal {

namespace {

std::string written(const ControlName& name) {
    std::string text = name.form.empty() ? name.control.name : name.form + "." + name.control.name;
    if (name.control.index) {
        text += "(" + std::to_string(*name.control.index) + ")";
    }
    return text;
}

const char* reachText(Reach reach) {
    switch (reach) {
    case Reach::Hidden:
        return " is hidden";
    case Reach::Disabled:
        return " is disabled";
    case Reach::Beneath:
        return " is not on the topmost form";
    case Reach::Reachable:
        break;
    }
    return "";
}

// An executor is never seen; all it needs is its form and being switched on.
Reach reachOf(const Control& control) {
    const Reach reach = control.reach();
    const bool unseen = control.kind() == ControlKind::Executor && reach == Reach::Hidden;
    return unseen && control.enabledThroughContainers() ? Reach::Reachable : reach;
}

struct Found {
    Control* control = nullptr;
    Verdict verdict;
};

Found missing(const ControlName& name, const Stage& stage) {
    const std::string text = written(name);
    const bool gone =
        !name.form.empty() && stage.find(name.form) == nullptr && stage.wasShown(name.form);
    const bool beneath =
        name.form.empty() &&
        std::any_of(stage.forms().begin(), stage.forms().end(), [&](const Form* form) {
            return stage.find({form->name(), name.control});
        });
    if (gone || beneath) {
        return {nullptr, Verdict::impossible(text + reachText(Reach::Beneath))};
    }
    return {nullptr, Verdict::unknown("there is no " + text)};
}

Found findReachable(const ControlName& name, const Stage& stage) {
    Control* control = stage.find(name);
    if (control == nullptr) {
        return missing(name, stage);
    }
    const Reach reach = reachOf(*control);
    if (reach != Reach::Reachable) {
        return {nullptr, Verdict::impossible(written(name) + reachText(reach))};
    }
    return {control, {}};
}

// The form behind a name that stands for the form itself; null when it is no such name.
const Form* namedForm(const ControlName& name, const Stage& stage) {
    return name.form.empty() && !name.control.index ? stage.find(name.control.name) : nullptr;
}

Verdict noSuchAction(const ControlName& name, const char* action) {
    return Verdict::impossible(written(name) + " can't be " + action);
}

int listItem(const ListBox& list, const std::string& choice) {
    const auto& items = list.items();
    const auto found = std::find(items.begin(), items.end(), choice);
    if (found != items.end()) {
        return static_cast<int>(found - items.begin());
    }
    const int index = wholeNumber(choice).value_or(-1);
    return index < static_cast<int>(items.size()) ? index : -1;
}

int tabPage(const TabControl& tabs, const std::string& choice) {
    const auto& pages = tabs.captions();
    const int index = wholeNumber(choice).value_or(-1);
    if (index >= 0) {
        return index < static_cast<int>(pages.size()) ? index : -1;
    }
    const auto found = std::find(pages.begin(), pages.end(), choice);
    return found == pages.end() ? -1 : static_cast<int>(found - pages.begin());
}

class Performer {
  public:
    Performer(const Stage& stage, ScriptActor& actor) : stage_(stage), actor_(actor) {}

    Verdict operator()(const ClickStep& step) {
        const Found found = findReachable(step.control, stage_);
        if (found.control != nullptr) {
            actor_.click(*found.control);
        }
        return found.verdict;
    }

    Verdict operator()(const TypeStep& step) {
        return with<clt_TermInput>(step.control, "typed into", [&](clt_TermInput& input) {
            actor_.type(input, step.text);
            return Verdict{};
        });
    }

    Verdict operator()(const KeyStep& step) {
        Control* control = nullptr;
        if (step.control) {
            const Found found = findReachable(*step.control, stage_);
            if (found.control == nullptr) {
                return found.verdict;
            }
            control = found.control;
        }
        return withTop([&](Form& top) { actor_.key(top, control, step.key, step.character); });
    }

    Verdict operator()(const ChooseStep& step) {
        const Found found = findReachable(step.control, stage_);
        if (found.control == nullptr) {
            return found.verdict;
        }
        const auto nothing =
            Verdict::impossible(written(step.control) + " has no \"" + step.choice + "\"");
        if (auto* tabs = dynamic_cast<TabControl*>(found.control)) {
            const int page = tabPage(*tabs, step.choice);
            return page < 0 ? nothing : (actor_.chooseTab(*tabs, page), Verdict{});
        }
        if (auto* list = dynamic_cast<ListBox*>(found.control)) {
            const int item = listItem(*list, step.choice);
            return item < 0 ? nothing : (actor_.chooseItem(*list, item), Verdict{});
        }
        return noSuchAction(step.control, "chosen from");
    }

    Verdict operator()(const CheckStep& step) {
        return with<CheckBox>(step.control, "checked", [&](CheckBox& box) {
            actor_.check(box, step.on);
            return Verdict{};
        });
    }

    Verdict operator()(const MouseStep& step) {
        const Form* form = namedForm(step.control, stage_);
        if (form != nullptr && form != CoreLib().Windows.top()) {
            return Verdict::impossible(form->name() + reachText(Reach::Beneath));
        }
        Control* control = nullptr;
        if (form == nullptr) {
            const Found found = findReachable(step.control, stage_);
            if (found.control == nullptr) {
                return found.verdict;
            }
            control = found.control;
        }
        return withTop([&](Form& top) { actor_.mouse(top, control, step.place, step.button); });
    }

    Verdict operator()(const MenuStep& step) {
        for (const Form* form : stage_.forms()) {
            for (Menu* menu : form->menus()) {
                if (menu->name() != step.name) {
                    continue;
                }
                if (form != CoreLib().Windows.top()) {
                    return Verdict::impossible(step.name + reachText(Reach::Beneath));
                }
                actor_.menu(*menu);
                return {};
            }
        }
        return Verdict::unknown("there is no menu item " + step.name);
    }

    Verdict operator()(const HoldStep& step) {
        actor_.hold(step.seconds);
        return {};
    }

    Verdict operator()(const CloseStep&) {
        return withTop([&](Form& top) { actor_.close(top); });
    }

    Verdict operator()(const CommandStep& step) {
        const Found found = findReachable(step.control, stage_);
        if (found.control == nullptr) {
            return found.verdict;
        }
        if (auto* executor = dynamic_cast<ctl_Executor*>(found.control)) {
            actor_.command(*executor, step.command);
            return {};
        }
        return with<ctl_CmdBar>(step.control, "given a command",
                                [&](ctl_CmdBar& bar) { return press(bar, step); });
    }

    // The steps that are no actions.
    template <class Other>
    Verdict operator()(const Other&) {
        return {};
    }

  private:
    Verdict press(ctl_CmdBar& bar, const CommandStep& step) {
        actor_.command(bar, step.command);
        return {};
    }

    template <class Kind, class Use>
    Verdict with(const ControlName& name, const char* action, Use&& use) {
        const Found found = findReachable(name, stage_);
        if (found.control == nullptr) {
            return found.verdict;
        }
        auto* control = dynamic_cast<Kind*>(found.control);
        return control == nullptr ? noSuchAction(name, action) : use(*control);
    }

    template <class Use>
    Verdict withTop(Use&& use) {
        Form* top = CoreLib().Windows.top();
        if (top == nullptr) {
            return Verdict::impossible("no form is open");
        }
        use(*top);
        return {};
    }

    const Stage& stage_;
    ScriptActor& actor_;
};

struct IsAction {
    template <class S>
    bool operator()(const S&) const {
        return std::is_same_v<S, ClickStep> || std::is_same_v<S, TypeStep> ||
               std::is_same_v<S, KeyStep> || std::is_same_v<S, ChooseStep> ||
               std::is_same_v<S, CheckStep> || std::is_same_v<S, MouseStep> ||
               std::is_same_v<S, MenuStep> || std::is_same_v<S, CloseStep> ||
               std::is_same_v<S, CommandStep> || std::is_same_v<S, HoldStep>;
    }
};

} // namespace

bool isAction(const StepKind& step) {
    return std::visit(IsAction{}, step);
}

Verdict performAction(const StepKind& step, const Stage& stage, ScriptActor& actor) {
    const Verdict verdict = std::visit(Performer(stage, actor), step);
    const std::string failure = actor.takeFailure();
    return verdict.held() && !failure.empty() ? Verdict::impossible(failure) : verdict;
}

} // namespace quendal
