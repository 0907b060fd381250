// Who watches the desktop host. One link is shared by all services, so that an observer can be set
// and taken away at any time.
#pragma once

namespace quendal {

class HostObserver;

struct ObserverLink {
    HostObserver* observer = nullptr; // null: a learner sits there
};

} // namespace quendal
