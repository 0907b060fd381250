#include "host/log.h"

#include <cstdio>
#include <utility>

namespace quendal {

namespace {

LogSink& sink() {
    static LogSink current = [](std::string_view line) {
        std::fprintf(stderr, "quendal: %.*s\n", static_cast<int>(line.size()), line.data());
    };
    return current;
}

} // namespace

void logLine(std::string_view text) {
    std::string line(text);
    for (char& c : line) {
        if (c == '\n' || c == '\r') {
            c = ' ';
        }
    }
    if (sink()) {
        sink()(line);
    }
}

LogSink exchangeLogSink(LogSink next) {
    return std::exchange(sink(), std::move(next));
}

} // namespace quendal
