// What only a teacher or a developer can act on goes to standard error, one line each.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace quendal {

using LogSink = std::function<void(std::string_view line)>;

// Writes one line; line ends inside `text` become blanks. Never fails.
void logLine(std::string_view text);

// Replaces the sink (standard error at first) and gives the old one back; tests listen with it.
LogSink exchangeLogSink(LogSink sink);

} // namespace quendal
