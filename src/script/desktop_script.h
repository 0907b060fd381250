// The way from the script player to the real windows.
#pragma once

#include "script/script_program.h"

namespace quendal {

struct ScriptOptions;

// Plays the one file of `options` on the desktop host and gives the exit status. The process is
// fresh: nothing of a window system has run in it. A build without the desktop says so and gives
// the status of a malformed call.
//
// What the desktop host does: it reads the file with readyScript, gives its services what
// Script::settings say, makes a ScriptPlayer with an actor that uses real events, sets it as event
// feed and observer, runs the program, and, when its EndProcess is called, tells the observer and
// leaves with ScriptPlayer::exitStatus.
int runDesktopScript(int argc, char** argv, const ScriptOptions& options,
                     const ProgramChooser& choose);

} // namespace quendal
