// Who plays the learner on the headless host. Shared by all its services, so that it can be set
// after they have been made.
#pragma once

namespace quendal {

class EventFeed;
class HostObserver;

struct Watchers {
    EventFeed* feed = nullptr;
    HostObserver* observer = nullptr;
};

} // namespace quendal
