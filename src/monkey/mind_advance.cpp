// What leads the monkey deeper: into the exercises, through the tasks, to the mark.
#include "host/buttons.h"
#include "host/chart.h"
#include "host/field_table.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/number_service.h"
#include "host/roots.h"
#include "monkey/mind.h"
#include "monkey/monkey_words.h"
#include "shell/exercise_table.h"
#include "shell/session/session.h"
#include "workbench/workbench.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace quendal {

namespace {

constexpr int kFullBeaker = 30; // mL

struct Workplace {
    const char* form;
    int code; // result code of the start dialog
};

constexpr Workplace kWorkplaces[] = {
    {"frm_AppMainStrong", 1},      {"frm_AppMainWeak", 2},           {"frm_AppMainSilver", 4},
    {"frm_AppMainConducto", 5},    {"frm_AppMainConductoSilver", 6}, {"frm_AppMainConductoWeak", 7},
    {"frm_AppMainConductolog", 8},
};

// Whether an exercise of the start dialog may lead to the form.
bool leadsTo(const ExerciseRow& row, const std::string& form) {
    if (row.tab == StartTab::Animations) {
        return form == "frm_AppIntro" || form == "frm_AppMagnify";
    }
    const auto* place = std::find_if(std::begin(kWorkplaces), std::end(kWorkplaces),
                                     [&](const Workplace& one) { return one.code == row.number; });
    const bool lens = row.number == 2 || row.number == 4;
    if (form == "frm_DialogDone") {
        return row.tab == StartTab::Tasks;
    }
    const std::string bench = place->form;
    return form.starts_with("frm_Dialog") || (form == "frm_AppMagnify" && lens) || form == bench ||
           form == bench + "Start" || (form == "frm_AppMainConductoStart" && row.number == 8);
}

bool usable(const Form& form, const char* name) {
    const Control* control = form.findControl(name);
    return control != nullptr && control->reach() == Reach::Reachable;
}

template <class T = double>
std::optional<T> fieldOf(const Form& form, const char* name, std::optional<int> index = {}) {
    FieldTable table;
    form.describe(table);
    const auto value = index ? table.find(name, *index) : table.find(name);
    const T* number = value ? std::get_if<T>(&*value) : nullptr;
    return number != nullptr ? std::optional(*number) : std::nullopt;
}

// The number that a direct answer should give.
double rightAnswer(const Workbench& bench) {
    if (const auto total = fieldOf(bench, "IonValues", 5)) {
        return *total;
    }
    return fieldOf(bench, "vPotentialNow").value_or(bench.vPhNow);
}

// A point that the learner hasn't finished yet.
bool pointOpen(const Workbench& bench) {
    const ChartSeries* points = bench.learnerSeries(1);
    return points != nullptr &&
           (points->Data.Count() == 0 || points->Data.LastX() < bench.vSourceVol[1]);
}

} // namespace

std::string Mind::advance(const Form& top) {
    if (top.name() == "frm_DialogStartup") {
        return chooseExercise(top);
    }
    if (const auto* bench = dynamic_cast<const Workbench*>(&top)) {
        return work(*bench);
    }
    if (top.name() == "frm_AppIntro" || top.name() == "frm_AppMagnify") {
        return watchAnimation(top);
    }
    return closeDialog(top);
}

// One of several controls with the same name, or the one that has it.
std::string Mind::anyOf(const Form& form, const char* name, const char* verb) {
    std::vector<const Control*> all;
    std::copy_if(form.controls().begin(), form.controls().end(), std::back_inserter(all),
                 [&](const Control* control) {
                     return control->name() == name && control->reach() == Reach::Reachable;
                 });
    if (all.empty()) {
        return {};
    }
    const Control& one = *all[chance_.below(all.size())];
    return std::string_view(verb) == "click" ? clickOn(one)
                                             : std::string(verb) + " " + controlWord(one);
}

std::string Mind::clickOneOf(const Form& form, std::initializer_list<const char*> names) {
    std::vector<const char*> all;
    std::copy_if(names.begin(), names.end(), std::back_inserter(all),
                 [&](const char* name) { return usable(form, name); });
    return all.empty() ? std::string() : clickOn(*form.findControl(all[chance_.below(all.size())]));
}

std::string Mind::chooseExercise(const Form& start) {
    const double share = chance_.unit();
    if (share < 0.3) {
        constexpr const char* kPages[] = {"1", "1", "2", "2", "3", "3", "3", "3", "3", "0"};
        return usable(start, "SSTab1") ? std::string("choose SSTab1 ") + chance_.pick(kPages)
                                       : std::string();
    }
    if (share < 0.5) {
        constexpr const char* kSettings[] = {"opt_CalcTerm", "opt_NeedCalc", "opt_EnableSounds"};
        Control* list = start.findControl("lst_Mol");
        const bool free = list != nullptr && list->reach() == Reach::Reachable;
        return free && chance_.hit(0.6) ? useControl(*list)
                                        : clickOneOf(start, {chance_.pick(kSettings)});
    }
    const auto& dialog = static_cast<const frm_DialogStartup&>(start);
    std::vector<const Control*> ways;
    for (const ExerciseRow& row : exerciseTable()) {
        const Control& button = dialog.*row.button;
        if (button.reach() == Reach::Reachable && (target_.empty() || leadsTo(row, target_))) {
            ways.push_back(&button);
        }
    }
    const bool stays = target_ == start.name() && chance_.hit(0.9);
    return ways.empty() || stays ? std::string() : clickOn(*ways[chance_.below(ways.size())]);
}

std::string Mind::work(const Workbench& bench) {
    if (chance_.hit(0.02)) {
        return lookAround(bench);
    }
    if (!target_.empty() && chance_.hit(0.1)) {
        const std::string way = seekTarget(bench);
        if (!way.empty()) {
            return way;
        }
    }
    if (usable(bench, "frm_Calc")) {
        return followTutor(bench);
    }
    if (usable(bench, "frm_CalcDirect")) {
        return answerDirectly(bench);
    }
    if (bench.dosing() || bench.vDrops.COUNT() > 0) {
        return anyWait(bench.vPipShown ? 6 : 2);
    }
    return dose(bench);
}

std::string Mind::dose(const Workbench& bench) {
    if (bench.vPipShown) {
        return chance_.hit(0.7) ? clickOneOf(bench, {"ctl_Button1", "pic_Above"})
                                : anyOf(bench, "but_Add", "click");
    }
    const bool last = bench.vVol >= kFullBeaker;
    const bool open = pointOpen(bench);
    if (last && !open) {
        return finishTask(bench);
    }
    // A demo goes on when it has shown its point; a task may want some of them.
    const bool asked = session().SessionNeedCalc;
    if (open && (last || chance_.hit(bench.vDemo ? 0.15 : asked ? 0.3 : zeal_))) {
        return clickOneOf(bench, {"but_Calc", "ctl_Button2"});
    }
    return last ? std::string() : clickOneOf(bench, {"ctl_Button3", "ctl_Button3", "pic_Above"});
}

std::string Mind::finishTask(const Workbench& bench) {
    const double share = chance_.unit();
    if (share < 0.3) {
        return clickOneOf(bench, {"but_phCompare"});
    }
    return share < 0.4 ? "menu mnu_FileNew" : lookAround(bench);
}

std::string Mind::lookAround(const Workbench& bench) {
    constexpr const char* kMenus[] = {"menu mnu_HelpText", "menu mnu_HelpTerms",
                                      "menu mnu_HelpAbout"};
    const std::string click = clickOneOf(bench, {"but_ShowMag", "but_ShowMag", "but_phCompare",
                                                 "but_Help", "but_AddPoint", "but_AddPoint"});
    return click.empty() || chance_.hit(0.2) ? chance_.pick(kMenus) : click;
}

std::string Mind::seekTarget(const Workbench& bench) {
    if (target_ == "frm_DialogHelp") {
        return chance_.hit(0.5) ? "menu mnu_HelpText" : clickOneOf(bench, {"but_Help"});
    }
    if (target_ == "frm_DialogTerms") {
        return "menu mnu_HelpTerms";
    }
    if (target_ == "frm_DialogphCompare") {
        return clickOneOf(bench, {"but_phCompare"});
    }
    return target_ == "frm_AppMagnify" ? clickOneOf(bench, {"but_ShowMag"}) : std::string();
}

std::string Mind::answerRightly(const Workbench& bench) {
    constexpr int kPlaces = 4; // more than are asked for
    const std::string answer = CoreLib().NumberService.Format(rightAnswer(bench), kPlaces);
    return bench.txt_Ph.text() == answer ? clickOneOf(bench, {"but_CalcDone"})
                                         : "type txt_Ph " + scriptWord(answer);
}

std::string Mind::answerDirectly(const Workbench& bench) {
    if (chance_.hit(skill_)) {
        return answerRightly(bench);
    }
    const double share = chance_.unit();
    if (share < 0.08) {
        return clickOneOf(bench, {"but_HelpCalc"});
    }
    if (share < 0.5) {
        const NumberService& numbers = CoreLib().NumberService;
        return "type txt_Ph " + scriptWord(chance_.hit(0.7) ? numbers.Format(rightAnswer(bench),
                                                                             chance_.between(2, 4))
                                                            : anyText(chance_));
    }
    return share < 0.6 ? "key ENTER txt_Ph" : clickOneOf(bench, {"but_CalcDone"});
}

// Wrong answers lead up the ladder of help, at the end of which the tutor fills in the numbers.
std::string Mind::followTutor(const Workbench& bench) {
    const double share = chance_.unit();
    std::string event;
    if (share < 0.06) {
        event = anyOf(bench, "but_CalcPH", "click");
    } else if (share < 0.14) {
        event = anyOf(bench, "opt_Calc", "click");
    } else if (share < 0.2) {
        event = anyOf(bench, "txt_Calc", "type");
        event += event.empty() ? "" : " " + scriptWord(anyText(chance_));
    } else if (share < 0.23) {
        event = anyOf(bench, "opt_CalcStore", "click");
    }
    return event.empty() ? anyOf(bench, "but_CalcStep", "click") : event;
}

std::string Mind::watchAnimation(const Form& stage) {
    const double share = chance_.unit();
    if (share < 0.4) {
        return anyWait(4);
    }
    if (share < 0.5) {
        constexpr const char* kKeys[] = {"key ENTER", "key \" \"", "key 1", "key 2", "key 3",
                                         "key +",     "key -",     "key v", "key z"};
        return chance_.pick(kKeys);
    }
    const std::string lens = share < 0.6 ? clickOneOf(stage, {"but_Magnify", "but_Acid"}) : "";
    return lens.empty() ? anyPress(stage) : lens;
}

std::string Mind::closeDialog(const Form& dialog) {
    if (chance_.hit(onTarget(dialog) ? 0.95 : 0.4)) {
        return {};
    }
    for (const Control* control : dialog.controls()) {
        const auto* bar = dynamic_cast<const ctl_CmdBar*>(control);
        if (bar != nullptr && !bar->buttons().empty() && bar->reach() == Reach::Reachable) {
            return "command " + controlWord(*bar) + " " +
                   scriptWord(bar->buttons().front().command);
        }
    }
    return {};
}

} // namespace quendal
