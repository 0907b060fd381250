// Plays a script's text against a small program, for tests.
#pragma once

#include "headless/play_headless.h"
#include "script/script.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>

namespace quendal::test {

struct Played {
    int status = -1;
    std::string out;    // the transcript
    std::string errors; // one line a failure

    bool printed(const std::string& part) const { return out.find(part) != std::string::npos; }
};

inline Played play(const std::string& text, const std::function<void()>& program,
                   ScriptOptions options = {}) {
    ScriptFault fault;
    auto script = parseScript(text, fault);
    if (!script) {
        return {2, {}, "test:" + std::to_string(fault.line) + ": " + fault.message};
    }
    script->file = "test";
    std::ostringstream out;
    std::ostringstream errors;
    const int status = playHeadless(*script, options, program, out, errors);
    return {status, out.str(), errors.str()};
}

} // namespace quendal::test
