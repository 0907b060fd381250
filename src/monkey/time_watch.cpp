#include "monkey/time_watch.h"

#include "host/field_table.h"
#include "host/form.h"
#include "workbench/workbench.h"

#include <utility>

namespace quendal {

namespace {

constexpr long kMostTurns = 200000; // at one moment of the clock

// The lesson on conductivity takes the first breaking off for itself and shows the stage's prompt,
// which wants another one.
bool hasGoneOn(const Form& form) {
    FieldTable table;
    form.describe(table);
    const auto aborted = table.find("Aborted");
    return aborted && *aborted == FieldValue(false);
}

} // namespace

void TimeWatch::toldToClose(const Form& form, double now) {
    closed_ = &form;
    closedSince_ = now;
}

void TimeWatch::forget(const Form& form) {
    closed_ = closed_ == &form ? nullptr : closed_;
    reactsOn_ = reactsOn_ == &form ? nullptr : reactsOn_;
}

std::optional<Finding> TimeWatch::check(const Form* top, EventWaits event, double now) {
    turns_ = now == lastTurn_ ? turns_ + 1 : 0;
    lastTurn_ = now;
    if (turns_ > kMostTurns) {
        return Finding{"the program turns round and round at one moment", {}};
    }
    const bool late = now - restless_ > kPatience;
    if (late && event == EventWaits::Yes) {
        return Finding{"the program hasn't let an event in for 60 s", {}};
    }
    if (top == nullptr) {
        return late ? std::optional(Finding{"there has been no form for 60 s", {}}) : std::nullopt;
    }
    const auto reactions = checkReactions(*top, now);
    const auto dosing = checkDosing(*top, now);
    const auto closing = checkClosing(*top, now);
    return reactions ? reactions : dosing ? dosing : closing;
}

// Particles meet only while the bench is in front and no dosing runs. Dosing doesn't begin the
// count anew: it brings new pairs but doesn't part those that are there.
std::optional<Finding> TimeWatch::checkReactions(const Form& top, double now) {
    const double passed = now - std::exchange(lastLook_, now);
    const auto* bench = dynamic_cast<const Workbench*>(&top);
    if (bench == nullptr || !bench->vCalm) {
        return std::nullopt;
    }
    const bool same = std::exchange(reactsOn_, &top) == &top;
    calm_ = same && bench->vMolecules.hasPairThatCanReact() ? calm_ + passed : 0;
    return calm_ > kMostCalm
               ? std::optional(Finding{"a pair in the beaker doesn't react", {"settle"}})
               : std::nullopt;
}

std::optional<Finding> TimeWatch::checkDosing(const Form& top, double now) {
    const auto* bench = dynamic_cast<const Workbench*>(&top);
    if (bench == nullptr || !bench->dosing()) {
        dosingSince_.reset();
        return std::nullopt;
    }
    dosingSince_ = dosingSince_.value_or(now);
    return now - *dosingSince_ > kPatience
               ? std::optional(Finding{"a dosing has lasted 60 s",
                                       {expectOther("session.SessionBusy", "true")}})
               : std::nullopt;
}

// What was told to close may stay for a last turn, but not longer; another form in front of it
// gives it time.
std::optional<Finding> TimeWatch::checkClosing(const Form& top, double now) {
    const auto* bench = dynamic_cast<const Workbench*>(&top);
    if (bench != nullptr && bench->vUnload && closed_ == nullptr) {
        toldToClose(top, now);
    }
    if (closed_ == nullptr) {
        return std::nullopt;
    }
    if (closed_ != &top || hasGoneOn(top)) {
        closed_ = nullptr;
        return std::nullopt;
    }
    return now - closedSince_ > kPatience
               ? std::optional(Finding{top.name() + " was closed 60 s ago and stays",
                                       {expectOther("top", top.name())}})
               : std::nullopt;
}

} // namespace quendal
