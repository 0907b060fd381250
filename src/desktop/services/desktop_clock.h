// The machine's own clock.
#pragma once

#include "host/clock.h"

#include <functional>

namespace quendal {

class DesktopClock final : public Clock {
  public:
    double Now() const override;
    void SleepMs(double milliseconds) override;

    // Called before a sleep begins.
    std::function<void()> beforeSleep;
};

} // namespace quendal
