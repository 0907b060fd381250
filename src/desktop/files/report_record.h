// One line of the report file.
#pragma once

#include <optional>
#include <string>

namespace quendal {

struct ReportRecord {
    std::string time; // ISO 8601, local with offset
    std::string learner;
    std::string task;
    std::string event; // "progress" or "result"
    int points = 0;
    int errors = 0;
    std::optional<int> score; // of a result only, like the two below
    std::optional<double> mark;
    std::string markText;
};

// A JSON object on one line, with its line end. Bytes that are no UTF-8 are replaced.
std::string reportLine(const ReportRecord& record);

} // namespace quendal
