// Lets the monkey play a program with a fault, and plays the script again that it writes.
#pragma once

#include "headless/play.h"
#include "monkey/play_monkey.h"
#include "support/temporary_name.h"

#include <gtest/gtest.h>

#include <csignal>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace quendal::test {

using Program = std::function<void()>;

struct Hunt {
    int status = -1;
    std::string errors;
    std::string script; // that was written
};

inline std::string contentOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

// The folder in `options` is the hunt's own.
inline Hunt hunt(const Program& program, MonkeyOptions options) {
    const auto folder = temporaryName("quendal-monkey");
    std::filesystem::create_directory(folder);
    options.folder = folder.string();
    const ProgramChooser choose = [&](const ScriptSettings&, std::string&) {
        return ScriptProgram([&program](const std::string&) { program(); });
    };
    std::ostringstream out;
    std::ostringstream errors;
    Hunt result;
    result.status = playMonkey(options, choose, out, errors);
    result.errors = errors.str();
    result.script = contentOf(result.errors.substr(0, result.errors.find(".qs: ") + 3));
    std::filesystem::remove_all(folder);
    return result;
}

// What becomes of a process that plays the script: its status, or 128 and the signal's number.
inline int replay(const std::string& script, const Program& program, unsigned wallSeconds) {
    const pid_t child = fork();
    if (child == 0) {
        alarm(wallSeconds); // for a fault that hangs
        try {
            _exit(play(script, program).status);
        } catch (const std::exception&) {
            raise(SIGABRT); // as a program that nobody catches it for
        }
    }
    int state = 0;
    EXPECT_EQ(waitpid(child, &state, 0), child);
    return WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
}

} // namespace quendal::test
