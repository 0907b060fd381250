// That the program comes back in time: it lets events in, doses and closes within a minute of its
// clock, and what can react in the beaker does.
#pragma once

#include "monkey/invariants.h"

#include <optional>

namespace quendal {

class Form;

enum class EventWaits { No, Yes };

class TimeWatch {
  public:
    static constexpr double kPatience = 60; // s that anything may take
    // s of calm in a beaker until no pair is left. It has never taken more than 2.5 s in 600,000
    // events, drop upon drop included.
    static constexpr double kMostCalm = 20;

    void letsEventsIn(double now) { restless_ = now; }
    void toldToClose(const Form& form, double now);
    void forget(const Form& form);

    // Each time that the program waits; null while there is no form.
    std::optional<Finding> check(const Form* top, EventWaits event, double now);

  private:
    std::optional<Finding> checkDosing(const Form& top, double now);
    std::optional<Finding> checkClosing(const Form& top, double now);
    std::optional<Finding> checkReactions(const Form& top, double now);

    double restless_ = 0; // since when the program hasn't let events in
    long turns_ = 0;      // without a move of the clock
    double lastTurn_ = -1;
    std::optional<double> dosingSince_;
    const Form* closed_ = nullptr; // was told to close and has been in front since then
    double closedSince_ = 0;
    const Form* reactsOn_ = nullptr; // the bench whose pairs are watched
    double calm_ = 0;                // s of calm in which it has always had one
    double lastLook_ = 0;
};

} // namespace quendal
