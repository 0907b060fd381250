// A clock of its own: it moves only when the program sleeps or waits, straight to the next moment
// at which something is due. For hosts that play a script.
#pragma once

#include "host/clock.h"

#include <cstdint>
#include <functional>

namespace quendal {

class VirtualClock final : public Clock {
  public:
    double Now() const override { return static_cast<double>(microseconds_) / 1e6; }
    void SleepMs(double milliseconds) override;
    // Never backwards.
    void advanceTo(double seconds);

    // Called before a sleep moves the clock.
    std::function<void()> beforeSleep;

  private:
    std::int64_t microseconds_ = 0;
};

} // namespace quendal
