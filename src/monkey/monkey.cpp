#include "monkey/monkey.h"

#include "host/clock.h"
#include "host/field_table.h"
#include "host/form.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "monkey/monkey_words.h"
#include "script/actions.h"
#include "script/script_actor.h"
#include "script/script_words.h"
#include "script/step_reader.h"
#include "script/values.h"
#include "workbench/workbench.h"

#include <limits>
#include <utility>

namespace quendal {

namespace {

constexpr double kSessionTime = 3400; // s; a script may last 3,600
constexpr double kHalfTick = 5e-7;    // s, as the player of scripts counts
constexpr int kMostBoxes = 200;       // that one event brings

double now() {
    return CoreLib().Clock.Now();
}

std::optional<StepKind> readLine(const std::string& line) {
    std::string fault;
    StepKind step;
    const auto words = splitWords(line, fault);
    return words && readStep(*words, step, fault) ? std::optional(step) : std::nullopt;
}

std::string answerLine(const BoxReply& reply) {
    switch (reply.kind) {
    case BoxReply::Kind::Yes:
        return "answer yes";
    case BoxReply::Kind::No:
        return "answer no";
    case BoxReply::Kind::Text:
        return "answer text " + scriptWord(reply.text);
    case BoxReply::Kind::Value:
        return "answer value " + scriptWord(reply.text);
    case BoxReply::Kind::Preset:
        return "answer preset " + std::to_string(reply.preset);
    case BoxReply::Kind::Cancel:
        return "answer cancel";
    case BoxReply::Kind::Ok:
        break;
    }
    return {};
}

} // namespace

Monkey::Monkey(Mind mind, ScriptActor& actor, EventLog& log, int events)
    : mind_(std::move(mind)), actor_(actor), log_(log), left_(events) {
    log_.add(EntryKind::Event, "start");
}

const Workbench* Monkey::bench() const {
    for (const Form* form : stage_.forms()) {
        if (const auto* found = dynamic_cast<const Workbench*>(form)) {
            return found;
        }
    }
    return nullptr;
}

void Monkey::deliver() {
    time_.letsEventsIn(now());
    if (ready_ && !over_) {
        perform();
    }
}

void Monkey::perform() {
    const StepKind step = *std::exchange(ready_, std::nullopt);
    boxes_ = 0;
    const Form* top = CoreLib().Windows.top();
    const bool closes = std::holds_alternative<CloseStep>(step);
    if (closes && top != nullptr) {
        time_.toldToClose(*top, now());
    }
    const Verdict verdict = performAction(step, stage_, actor_);
    if (over_ || verdict.held()) {
        return;
    }
    if (verdict.status == ScriptStatus::Malformed && top == chosenOn_) {
        take(Finding{"the event names what isn't there: " + verdict.found, {}});
    }
    // What was in reach when the monkey made up its mind no longer is.
    ++counts_["events that came too late"];
    late_ = true;
}

double Monkey::due() const {
    if (over_) {
        return std::numeric_limits<double>::infinity();
    }
    return ready_ ? 0.0 : wake_.value_or(now() + TimeWatch::kPatience);
}

bool Monkey::stillWaiting() {
    if (ready_ || (wake_ && now() + kHalfTick < *wake_)) {
        return true;
    }
    wake_.reset();
    return false;
}

void Monkey::programWaits() {
    if (over_) {
        return;
    }
    const Form* top = CoreLib().Windows.top();
    take(time_.check(top, ready_ ? EventWaits::Yes : EventWaits::No, now()));
    while (top != nullptr && !over_ && !stillWaiting()) {
        lookAtAll(*top);
        if (!over_) {
            next(*top);
        }
    }
}

// A script can't do what comes too late; it waits for as long in its place. Where that makes no
// difference to the clock, the session ends, because the script would be early by a turn.
void Monkey::tellLateEvent() {
    const double waited = now() - chosenAt_;
    log_.add(EntryKind::Late, waited > kHalfTick ? "wait " + numberText(waited) : "");
    if (waited <= kHalfTick) {
        over_ = true;
        CoreLib().Windows.EndProcess();
    }
}

void Monkey::next(const Form& top) {
    if (std::exchange(late_, false)) {
        tellLateEvent();
    }
    if (left_ <= 0 || now() >= kSessionTime || log_.nearlyFull()) {
        leave();
        return;
    }
    const std::string line = mind_.nextEvent(top);
    const auto step = readLine(line);
    chosenOn_ = &top;
    chosenAt_ = now();
    log_.add(EntryKind::Event, line);
    --left_;
    ++done_;
    noteEvent(top, line);
    if (!step) {
        take(Finding{"the event is no line of a script", {}});
    } else if (const auto* wait = std::get_if<WaitStep>(&*step)) {
        wake_ = now() + wait->seconds;
    } else {
        ready_ = *step;
    }
}

void Monkey::lookAtAll(const Form& top) {
    take(checkTop(stage_));
    if (const Workbench* present = bench()) {
        take(counters_.check(*present));
        if (present == &top && !present->vUnload) {
            take(checkBalance(*present));
        }
    }
    take(reports_.finding());
    take(looks_.check(top));
}

void Monkey::take(const std::optional<Finding>& finding) {
    if (!finding || fault_) {
        return;
    }
    fault_ = true;
    log_.add(EntryKind::Finding, finding->what);
    for (const std::string& line : finding->expects) {
        log_.add(EntryKind::Expect, line);
    }
    leave();
}

void Monkey::leave() {
    if (std::exchange(over_, true)) {
        return;
    }
    if (!fault_) {
        noteEnd();
    }
    CoreLib().Windows.EndProcess();
}

// So that a script that plays the session again shows that it comes to the same end.
void Monkey::noteEnd() {
    const auto expect = [this](const std::string& thing, const std::string& value) {
        log_.add(EntryKind::Expect, "expect " + thing + " == " + scriptWord(value));
    };
    expect("clock", numberText(now()));
    if (const Form* top = CoreLib().Windows.top()) {
        expect("top", top->name());
    }
    if (const Workbench* present = bench()) {
        expect("beaker.count", std::to_string(present->vMolecules.COUNT()));
        expect(present->name() + ".vWrong", std::to_string(present->vWrong));
    }
}

void Monkey::processEnded() {
    if (!std::exchange(over_, true)) {
        log_.add(EntryKind::Expect, "expect ended");
    }
}

BoxReply Monkey::boxOpened(const BoxEvent& event) {
    constexpr const char* kNames[] = {"ok",    "info",  "yesno",     "input",
                                      "alarm", "about", "calculator"};
    ++counts_[std::string("box ") + kNames[static_cast<std::size_t>(event.kind)]];
    const BoxReply reply = mind_.reply(event);
    const std::string line = answerLine(reply);
    if (!line.empty()) {
        log_.add(EntryKind::Answer, line);
    }
    if (++boxes_ > kMostBoxes) {
        take(Finding{"one event has brought 200 boxes", {}});
    }
    // What the program says when it has lost its way.
    for (const char* lost : {"Grauenvolles", "Ungültiger fall"}) {
        if (event.text.find(lost) != std::string::npos) {
            take(Finding{"the box \"" + event.text + "\"", {"expect nobox"}});
        }
    }
    return reply;
}

void Monkey::soundPlayed(const std::string& /*name*/) {
    ++counts_["sounds"];
}

void Monkey::progressReported(int points, int wrong) {
    ++counts_["reports"];
    reports_.progress(bench(), points, wrong);
}

void Monkey::resultReported(int score, double mark, const std::string& markText) {
    ++counts_["mark " + numberText(mark)];
    reports_.result(bench(), score, mark, markText);
}

void Monkey::formShown(const Form& form) {
    const auto* shown = dynamic_cast<const Workbench*>(&form);
    ++counts_["form " + form.name() + (shown != nullptr && shown->vDemo ? " demo" : "")];
    stage_.shown(form);
}

void Monkey::formClosed(const Form& form) {
    stage_.closed(form);
    counters_.forget(form);
    looks_.forget(form);
    time_.forget(form);
    if (const auto* gone = dynamic_cast<const Workbench*>(&form)) {
        reports_.benchClosed();
        counts_["points " + form.name()] += gone->vPoints;
        counts_["mL " + form.name()] += gone->vSourceVol[1];
    }
}

void Monkey::noteEvent(const Form& top, const std::string& line) {
    ++counts_["event " + line.substr(0, line.find(' '))];
    ++counts_["on " + top.name()];
    if (line.find("but_CalcStep") == std::string::npos) {
        return;
    }
    FieldTable table;
    top.describe(table);
    if (const auto step = table.find("sStep")) {
        ++counts_["step " + top.name() + " " + valueText(*step)];
    }
}

void Monkey::writeCounts() {
    counts_["clock"] += static_cast<long>(now());
    for (const auto& [name, count] : counts_) {
        log_.add(EntryKind::Seen, std::to_string(count) + " " + name);
    }
}

} // namespace quendal
