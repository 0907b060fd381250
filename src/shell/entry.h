// The entry routine: from the splash through the session loop to the end of the process.
#pragma once

#include <string>

namespace quendal {

// Runs the whole program on the installed roots. `commandLine` is the process's command line as one
// text. Never returns: every way out ends the process through the window system.
[[noreturn]] void runSession(const std::string& commandLine);

} // namespace quendal
