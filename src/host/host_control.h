// The surrounding school: the learner's name, the teacher's keys, reports.
#pragma once

#include <string>

namespace quendal {

inline constexpr const char* kControlSection = "QUENDAL_CONTROL";

class HostControl {
  public:
    virtual ~HostControl() = default;

    std::string UserName; // the learner's name for the session, empty until asked for

    // Text of a teacher key, empty when it isn't set. Section and verb are always
    // "QUENDAL_CONTROL" and "GET".
    virtual std::string Query(const std::string& section, const std::string& verb,
                              const std::string& key) = 0;
    // How far the learner has come. What follows `wrong` is always 0, 0, "", "", "STATUS", 0,
    // 10, 1.
    virtual void ReportProgress(int points, int wrong, int, int, const std::string&,
                                const std::string&, const std::string& kind, int, int, int) = 0;
    // The result of a finished task; the last two are always 1 and "".
    virtual void ReportResult(int score, double mark, const std::string& markText, int,
                              const std::string&) = 0;
};

} // namespace quendal
