#include "host/timer.h"

#include "host/clock.h"
#include "host/form.h"
#include "host/roots.h"

namespace quendal {

Timer::Timer(Form& form, std::string name, double interval)
    : form_(form), name_(std::move(name)), interval_(interval) {
    form_.timers_.push_back(this);
}

void Timer::setEnabled(bool enabled) {
    static unsigned long nextSequence = 0;
    if (enabled && !enabled_) {
        due_ = CoreLib().Clock.Now() + interval_ / 1000.0;
        sequence_ = ++nextSequence;
    }
    enabled_ = enabled;
}

} // namespace quendal
