// Time. The only source of it for all logic.
#pragma once

namespace quendal {

class Clock {
  public:
    virtual ~Clock() = default;
    // Seconds since the start of the process, in whole microseconds converted once, so that a
    // duration prints short in its default text form.
    virtual double Now() const = 0;
    // Waits on the present thread without letting events in; 0 and less return at once.
    virtual void SleepMs(double milliseconds) = 0;
    // The same in seconds; the second argument is always 0 and carries no meaning.
    void Sleep(double seconds, int /*unused*/) { SleepMs(seconds * 1000.0); }
};

} // namespace quendal
