#include "script/script_player.h"

#include "host/clock.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "script/actions.h"
#include "script/expectations.h"
#include "script/values.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quendal {

namespace {

constexpr double kTimeLimit = 3600; // s of the clock for a whole script
// A form on its way out still runs its last frames, and its timer takes it off the screen. What
// follows a closing may be expected at once all the same.
constexpr double kClosingPause = 1; // s
// Half a tick of the clock: a moment is reached when no tick before it is left.
constexpr double kHalfTick = 5e-7; // s
constexpr double kLateLoop = 0.1;  // s without a sleep, see PlayerOptions::realClock

double now() {
    return CoreLib().Clock.Now();
}

Verdict checkTop(const std::string& name) {
    const Form* top = CoreLib().Windows.top();
    const std::string found = top == nullptr ? "no form" : top->name();
    return found == name ? Verdict{} : Verdict::failed("found " + found);
}

} // namespace

ScriptPlayer::ScriptPlayer(const Script& script, ScriptActor& actor, PlayerOptions options,
                           std::ostream& out, std::ostream& err)
    : script_(script), actor_(actor), options_(options), transcript_(out), err_(err) {
    while (const auto* answer = std::get_if<AnswerStep>(&script_.steps[next_].what)) {
        answers_.add(answer->reply);
        ++next_;
    }
    last_ = &script_.steps[next_];
}

void ScriptPlayer::deliver() {
    if (options_.realClock && now() - lookedAt_ > kLateLoop) {
        programWaits();
    }
    const ScriptStep* step = std::exchange(ready_, nullptr);
    if (step == nullptr || phase_ != Phase::Playing) {
        return;
    }
    last_ = step;
    take(performAction(step->what, stage_, actor_), *step);
}

void ScriptPlayer::programWaits() {
    lookedAt_ = now();
    // A sleep between two forms, or before the first, is no time for the learner.
    if (phase_ == Phase::Over || CoreLib().Windows.top() == nullptr) {
        wake_ = kTimeLimit;
    } else {
        phase_ = Phase::Playing;
        advance();
    }
    if (phase_ != Phase::Over && now() + kHalfTick >= kTimeLimit) {
        take(Verdict::impossible("3,600 seconds are used up"), current());
    }
}

double ScriptPlayer::due() const {
    if (phase_ == Phase::Over) {
        return std::numeric_limits<double>::infinity();
    }
    if (phase_ == Phase::Starting) {
        return kTimeLimit;
    }
    return ready_ != nullptr ? 0.0 : std::min(wake_, kTimeLimit);
}

void ScriptPlayer::advance() {
    while (phase_ != Phase::Over && ready_ == nullptr) {
        if (next_ == script_.steps.size()) {
            leave();
            return;
        }
        if (!pass(script_.steps[next_])) {
            return;
        }
        began_.reset();
        ++next_;
    }
}

bool ScriptPlayer::allowedAfterEnd(const StepKind& step) const {
    if (const auto* expect = std::get_if<ExpectStep>(&step)) {
        return expect->condition.thing.kind == ThingKind::BoxProposal;
    }
    return std::holds_alternative<StartStep>(step) || std::holds_alternative<PrintStep>(step) ||
           std::holds_alternative<ExpectBoxStep>(step) ||
           std::holds_alternative<ExpectNoneStep>(step) ||
           std::holds_alternative<ExpectPresetsStep>(step) ||
           std::holds_alternative<ExpectSoundStep>(step) ||
           std::holds_alternative<ExpectReportStep>(step) ||
           std::holds_alternative<ExpectEndedStep>(step);
}

bool ScriptPlayer::pass(const ScriptStep& step) {
    if (phase_ == Phase::Ended && !began_ && !allowedAfterEnd(step.what)) {
        take(Verdict::impossible("the program has ended"), step);
        return true;
    }
    if (isAction(step.what)) {
        ready_ = &step;
        return true;
    }
    if (const auto* answer = std::get_if<AnswerStep>(&step.what)) {
        answers_.add(answer->reply);
    } else if (const auto* asked = std::get_if<PrintStep>(&step.what)) {
        print(*asked, step);
    } else if (std::holds_alternative<DumpStep>(step.what)) {
        dump();
    } else if (const auto* picture = std::get_if<ScreenshotStep>(&step.what)) {
        takeScreenshot(picture->file);
    } else if (const auto verdict = judge(step.what, stage_, witness_)) {
        take(*verdict, step);
    } else {
        return passWaiting(step);
    }
    return true;
}

bool ScriptPlayer::elapsed(double seconds) {
    began_ = began_.value_or(now());
    wake_ = *began_ + seconds;
    return phase_ == Phase::Ended || now() + kHalfTick >= wake_;
}

// True when the waiting is over: it has come true or the time is up, which is a failure.
bool ScriptPlayer::waitFor(const Verdict& verdict, double seconds) {
    if (verdict.held()) {
        return true;
    }
    if (!elapsed(seconds)) {
        return false;
    }
    take(verdict, script_.steps[next_]);
    return true;
}

bool ScriptPlayer::passWaiting(const ScriptStep& step) {
    if (const auto* wait = std::get_if<WaitStep>(&step.what)) {
        return elapsed(wait->seconds);
    }
    if (const auto* settle = std::get_if<SettleStep>(&step.what)) {
        const bool settled = phase_ == Phase::Ended || isSettled(stage_);
        return waitFor(settled ? Verdict{} : Verdict::failed("found it still moving"),
                       settle->seconds);
    }
    if (const auto* until = std::get_if<UntilStep>(&step.what)) {
        return waitFor(checkCondition(until->condition, stage_, witness_), until->seconds);
    }
    if (const auto* form = std::get_if<ExpectFormStep>(&step.what)) {
        return waitFor(checkTop(form->name), kClosingPause);
    }
    if (std::holds_alternative<ExpectEndedStep>(step.what)) {
        return waitFor(phase_ == Phase::Ended ? Verdict{} : Verdict::failed("found it running"),
                       kClosingPause);
    }
    return true; // start
}

void ScriptPlayer::take(const Verdict& verdict, const ScriptStep& step) {
    if (verdict.held() || phase_ == Phase::Over) {
        return;
    }
    err_ << script_.file << ':' << step.line << ": " << step.text << ": " << verdict.found << '\n'
         << std::flush;
    transcript_.write(Transcript::line("failed")
                          .add("file", script_.file)
                          .addRaw("line", std::to_string(step.line))
                          .add("asked", step.text)
                          .add("found", verdict.found)
                          .addRaw("status", std::to_string(static_cast<int>(verdict.status))));
    status_ = std::max(status_, verdict.status);
    if (verdict.status != ScriptStatus::Failed || !options_.keepGoing) {
        leave();
    }
}

void ScriptPlayer::leave() {
    const bool running = std::exchange(phase_, Phase::Over) != Phase::Ended;
    if (running) {
        CoreLib().Windows.EndProcess();
    }
}

const ScriptStep& ScriptPlayer::current() const {
    if (ready_ != nullptr) {
        return *ready_;
    }
    return next_ < script_.steps.size() ? script_.steps[next_] : *last_;
}

void ScriptPlayer::processEnded() {
    if (phase_ == Phase::Over || phase_ == Phase::Ended) {
        return;
    }
    phase_ = Phase::Ended;
    transcript_.write(Transcript::line("ended"));
    if (ready_ != nullptr) {
        take(Verdict::impossible("the program has ended"), *ready_);
        ready_ = nullptr;
    }
    advance();
}

} // namespace quendal
