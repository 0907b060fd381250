// The entry routine: from the splash through the session loop to the end of the process.
#pragma once

#include <string>

namespace quendal {

class Form;

// Runs the whole program on the installed roots. `commandLine` is the process's command line as one
// text. Never returns: every way out ends the process through the window system.
[[noreturn]] void runSession(const std::string& commandLine);

// The same session with one form in place of splash, start dialog and all that follows: shows it
// and ends the process when it has left the screen.
[[noreturn]] void runSingleForm(Form& form, const std::string& commandLine);

} // namespace quendal
