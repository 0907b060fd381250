// What the learner sees and hears, as the script player prints it: one JSON object a line, in
// order, each with "t", the clock in seconds, and "event".
#pragma once

#include "script/json_line.h"

#include <ostream>
#include <string_view>

namespace quendal {

class Transcript {
  public:
    explicit Transcript(std::ostream& out) : out_(out) {}

    // A line that begins with time and event, for write().
    static JsonLine line(std::string_view event);
    // Written and flushed at once: the process may end at any moment.
    void write(const JsonLine& line);

  private:
    std::ostream& out_;
};

} // namespace quendal
