// The monkey from the command line: sessions until the events are used up.
#pragma once

#include "script/script_program.h"

#include <cstdint>
#include <iosfwd>
#include <string>

namespace quendal {

struct MonkeyOptions {
    std::uint64_t seed = 1;
    long events = 0;
    std::string form;         // to stay on, empty for the whole program
    std::string folder;       // where scripts go; empty: the working folder
    bool keepScripts = false; // also of sessions in which all was well
    // After so much time of the processor, or of the day, a session counts as hanging. One takes a
    // second, and many times that on a busy machine or with a checked build.
    long cpuSeconds = 120;
    unsigned wallSeconds = 240;
};

// Whether the monkey knows a way to the form.
bool monkeyKnows(const std::string& form);

// Plays sessions, each in a process of its own, so that one that crashes can be told of. What was
// played goes to `out`, for the same options the same to the byte; a failure to `err`, with the
// name of the script that shows it. Gives the exit status: 0, or 1 after a failure.
int playMonkey(const MonkeyOptions& options, const ProgramChooser& choose, std::ostream& out,
               std::ostream& err);

} // namespace quendal
