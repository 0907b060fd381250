// What a step of a script found out.
#pragma once

#include "script/script_options.h"

#include <string>

namespace quendal {

struct Verdict {
    ScriptStatus status = ScriptStatus::Held;
    std::string found; // why not, for the message; empty when it held

    bool held() const { return status == ScriptStatus::Held; }

    static Verdict failed(std::string found) { return {ScriptStatus::Failed, std::move(found)}; }
    static Verdict unknown(std::string found) {
        return {ScriptStatus::Malformed, std::move(found)};
    }
    static Verdict impossible(std::string found) {
        return {ScriptStatus::Impossible, std::move(found)};
    }
};

} // namespace quendal
