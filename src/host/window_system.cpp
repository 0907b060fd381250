#include "host/window_system.h"

#include "host/clock.h"
#include "host/roots.h"

#include <algorithm>
#include <limits>

namespace quendal {

void WindowSystem::DoEvents() {
    deliverEvents();
    fireDueTimers();
}

bool WindowSystem::load(Form& form) {
    if (!form.loaded_) {
        form.loaded_ = true;
        loaded_.push_back(&form);
        prepare(form);
        form.Form_Load();
    }
    return form.loaded_;
}

void WindowSystem::Show(Form& form) {
    if (load(form) && !form.shown_) {
        form.shown_ = true;
        realise(form, false);
    }
}

void WindowSystem::ShowModal(Form& form) {
    if (form.shown_ || !load(form)) {
        return;
    }
    form.shown_ = true;
    modal_.push_back(&form);
    realise(form, true);
    form.Form_Activate();
    waitWhile([&form] { return form.shown_; });
}

void WindowSystem::Unload(Form& form) {
    if (form.loaded_ && form.Form_QueryUnload(UnloadReason::Code)) {
        takeDown(form);
    }
}

void WindowSystem::takeDown(Form& form) {
    form.loaded_ = false;
    form.Form_Unload();
    for (Timer* timer : form.timers_) {
        timer->setEnabled(false);
    }
    std::erase(loaded_, &form);
    std::erase(modal_, &form);
    if (form.shown_) {
        form.shown_ = false;
        form.measured_ = false;
        form.focus_ = nullptr;
        withdraw(form);
    }
}

void WindowSystem::UnloadAll(const Form* kept) {
    const std::vector<Form*> forms = loaded_;
    for (Form* form : forms) {
        if (form != kept) {
            Unload(*form);
        }
    }
}

void WindowSystem::userClosed(Form& form) {
    // Whoever is asked may have taken the form down already.
    if (form.shown_ && form.Form_QueryUnload(UnloadReason::User) && form.loaded_) {
        takeDown(form);
    }
}

void WindowSystem::forget(Form& form) {
    std::erase(loaded_, &form);
    std::erase(modal_, &form);
}

Form* WindowSystem::top() const {
    return modal_.empty() ? nullptr : modal_.back();
}

void WindowSystem::waitWhile(const std::function<bool()>& open) {
    DoEvents();
    while (open()) {
        waitForEvents(nextTimerDue());
        DoEvents();
    }
}

double WindowSystem::nextTimerDue() const {
    double soonest = std::numeric_limits<double>::infinity();
    for (const Form* form : loaded_) {
        for (const Timer* timer : form->timers_) {
            if (timer->enabled_ && !timer->running_) {
                soonest = std::min(soonest, timer->due_);
            }
        }
    }
    return soonest;
}

namespace {

// Marks a timer as running for as long as its handler is on the stack.
class Running {
  public:
    explicit Running(bool& flag) : flag_(flag) { flag_ = true; }
    ~Running() { flag_ = false; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

  private:
    bool& flag_;
};

// A due moment is a sum and may lie a rounding error behind the tick of the clock that it means.
constexpr double kHalfTick = 5e-7; // s

} // namespace

void WindowSystem::fireDueTimers() {
    // Only what is due now: a timer that comes due while the others run waits for the next pump.
    const double now = CoreLib().Clock.Now();
    for (;;) {
        Timer* next = nullptr;
        for (Form* form : loaded_) {
            for (Timer* timer : form->timers_) {
                const bool due =
                    timer->enabled_ && !timer->running_ && timer->due_ <= now + kHalfTick;
                if (due && (next == nullptr || timer->due_ < next->due_ ||
                            (timer->due_ == next->due_ && timer->sequence_ < next->sequence_))) {
                    next = timer;
                }
            }
        }
        if (next == nullptr) {
            return;
        }
        // The next beat counts from now, so that a slow handler isn't followed by a burst.
        next->due_ = now + next->interval_ / 1000.0;
        const Running running(next->running_);
        if (next->onTimer) {
            next->onTimer();
        }
    }
}

} // namespace quendal
