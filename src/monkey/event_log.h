// What has happened in a session, in memory that outlives the process that writes it: whoever
// watches can tell the story of a session that crashed.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quendal {

enum class EntryKind : char {
    Setting = 's', // a line before "start"
    Event = 'e',   // what the learner did, "start" included
    Answer = 'a',  // to a box that the event before has brought
    Finding = 'f', // what is wrong
    Expect = 'x',  // a line that shows it
    Late = 'l', // the last event couldn't be done any more; what stands in its place, if anything
    Seen = 'n', // a count: a number, a blank, what was counted
};

struct Entry {
    EntryKind kind = EntryKind::Event;
    std::string text; // without a line end
};

class EventLog {
  public:
    // Throws std::bad_alloc when there is no such memory.
    explicit EventLog(std::size_t capacity);
    ~EventLog();
    EventLog(const EventLog&) = delete;
    EventLog& operator=(const EventLog&) = delete;

    void clear() { *used_ = 0; }
    // What doesn't fit is dropped.
    void add(EntryKind kind, std::string_view text);
    // Less than an eighth is left: time for the session to end.
    bool nearlyFull() const { return *used_ > capacity_ / 8 * 7; }
    std::string_view bytes() const { return {text_, *used_}; }
    std::vector<Entry> entries() const;

  private:
    std::size_t capacity_; // bytes for entries
    void* memory_;
    std::size_t* used_;
    char* text_;
};

// The script that plays the session again. An answer waits for its box, so it stands before the
// event that brings the box; what the finding is stands at the top as a comment.
std::string sessionScript(const std::vector<Entry>& entries);

} // namespace quendal
