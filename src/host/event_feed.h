// Something that stands in for the learner: the script player. A host without one is null there.
#pragma once

namespace quendal {

class EventFeed {
  public:
    virtual ~EventFeed() = default;
    // The program lets events in: performs at most one action that is ready. May be called again
    // from inside itself, because an action's handler pumps too.
    virtual void deliver() = 0;
    // The program waits, in a sleep of a running loop or for events: looks at what there is to look
    // at and makes the next action ready. Called before the clock moves.
    virtual void programWaits() = 0;
    // Clock time at which deliver() or programWaits() wants to be called again: the past when an
    // action is ready, infinity when the feed has nothing to wait for.
    virtual double due() const = 0;
};

} // namespace quendal
