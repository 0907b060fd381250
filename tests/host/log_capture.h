// Listens to the log for as long as it lives.
#pragma once

#include "host/log.h"

#include <string>
#include <vector>

namespace quendal {

class LogCapture {
  public:
    LogCapture()
        : before_(exchangeLogSink([this](std::string_view line) { lines.emplace_back(line); })) {}
    ~LogCapture() { exchangeLogSink(std::move(before_)); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    std::vector<std::string> lines;

  private:
    LogSink before_;
};

} // namespace quendal
