// A script on the real windows, by hands of the caller's choice.
#pragma once

#include "script/script_program.h"

#include <functional>
#include <memory>

namespace quendal {

class DesktopWindowSystem;
class ScriptActor;
struct ScriptOptions;

using HandsMaker = std::function<std::unique_ptr<ScriptActor>(DesktopWindowSystem& windows)>;

// As runDesktopScript, which gives the script the usual hands.
int playOnDesktop(int argc, char** argv, const ScriptOptions& options, const ProgramChooser& choose,
                  const HandsMaker& makeHands);

} // namespace quendal
