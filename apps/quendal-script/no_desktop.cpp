// A build without the desktop program can't show real windows.
#include "script/desktop_script.h"
#include "script/script_options.h"

#include <iostream>

namespace quendal {

int runDesktopScript(int /*argc*/, char** /*argv*/, const ScriptOptions& /*options*/,
                     const ProgramChooser& /*choose*/) {
    std::cerr << "quendal-script: --desktop needs a build with QUENDAL_DESKTOP\n";
    return static_cast<int>(ScriptStatus::Malformed);
}

} // namespace quendal
