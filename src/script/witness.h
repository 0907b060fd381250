// What has happened and has not been asked about yet.
#pragma once

#include "host/host_observer.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace quendal {

struct SeenReport {
    std::vector<std::string> words; // as "expect report" names it: progress 1 0
};

// The oldest of what waits, which then waits no longer.
template <class T>
std::optional<T> takeOldest(std::deque<T>& queue) {
    if (queue.empty()) {
        return std::nullopt;
    }
    T oldest = std::move(queue.front());
    queue.pop_front();
    return oldest;
}

struct Witness {
    std::deque<BoxEvent> boxes;
    std::deque<std::string> sounds;
    std::deque<SeenReport> reports;

    // Of the last calculator; nullopt when none has been opened.
    std::optional<std::vector<std::string>> presets;
    std::string proposal; // of the last input box

    void add(const BoxEvent& box) {
        boxes.push_back(box);
        if (box.kind == BoxKind::Calculator) {
            presets = box.presets;
        } else if (box.kind == BoxKind::Input) {
            proposal = box.proposal;
        }
    }
};

} // namespace quendal
