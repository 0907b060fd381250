// What a script plays: the whole program, or one form alone.
#pragma once

#include "script/script.h"

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

namespace quendal {

// Runs until the program has ended; the text is the process's command line.
using ScriptProgram = std::function<void(const std::string& commandLine)>;

// Chooses by the script's settings; empty, and the reason in `fault`, when there is no such
// program. The player knows no forms, so whoever puts all together hands this in.
using ProgramChooser =
    std::function<ScriptProgram(const ScriptSettings& settings, std::string& fault)>;

struct ReadyScript {
    Script script;
    ScriptProgram program;
};

// Reads the file and chooses its program; nullopt, and one line on `err`, when either fails.
std::optional<ReadyScript> readyScript(const std::string& file, const ProgramChooser& choose,
                                       std::ostream& err);

} // namespace quendal
