#include "monkey/event_log.h"

#include <algorithm>
#include <cstring>
#include <new>

#include <sys/mman.h>

namespace quendal {

EventLog::EventLog(std::size_t capacity)
    : capacity_(capacity),
      memory_(mmap(nullptr, capacity + sizeof(std::size_t), PROT_READ | PROT_WRITE,
                   MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {
    if (memory_ == MAP_FAILED) {
        throw std::bad_alloc();
    }
    used_ = static_cast<std::size_t*>(memory_);
    text_ = static_cast<char*>(memory_) + sizeof(std::size_t);
}

EventLog::~EventLog() {
    munmap(memory_, capacity_ + sizeof(std::size_t));
}

void EventLog::add(EntryKind kind, std::string_view text) {
    const std::size_t needed = text.size() + 2;
    if (*used_ + needed > capacity_) {
        return;
    }
    char* to = text_ + *used_;
    to[0] = static_cast<char>(kind);
    std::memcpy(to + 1, text.data(), text.size());
    std::replace(to + 1, to + 1 + text.size(), '\n', ' ');
    to[needed - 1] = '\n';
    *used_ += needed;
}

std::vector<Entry> EventLog::entries() const {
    std::vector<Entry> all;
    std::string_view rest = bytes();
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        all.push_back({static_cast<EntryKind>(rest[0]), std::string(rest.substr(1, end - 1))});
        rest.remove_prefix(end + 1);
    }
    return all;
}

std::string sessionScript(const std::vector<Entry>& entries) {
    std::string comments;
    std::string lines;
    std::size_t lastEvent = 0; // where the line of the last event begins
    const auto addLine = [](std::string& to, const std::string& line) { to += line + "\n"; };
    for (const Entry& entry : entries) {
        switch (entry.kind) {
        case EntryKind::Event:
            lastEvent = lines.size();
            addLine(lines, entry.text);
            break;
        case EntryKind::Answer:
            lines.insert(lastEvent, entry.text + "\n");
            lastEvent += entry.text.size() + 1;
            break;
        case EntryKind::Setting:
        case EntryKind::Expect:
            addLine(lines, entry.text);
            break;
        case EntryKind::Finding:
            addLine(comments, "# " + entry.text);
            break;
        case EntryKind::Late:
            lines.erase(lastEvent);
            lines += entry.text.empty() ? "" : entry.text + "\n";
            break;
        case EntryKind::Seen:
            break;
        }
    }
    return comments + lines;
}

} // namespace quendal
