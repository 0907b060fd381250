// A command of a script out of its words.
#pragma once

#include "script/script.h"

#include <string>
#include <vector>

namespace quendal {

using Words = std::vector<std::string>;

// False, and the reason in `fault`, when the first word is no command or the others don't fit it.
bool readStep(const Words& words, StepKind& step, std::string& fault);

// True when `command` is one of the settings that stand before "start".
bool isSetting(const std::string& command);
// False when the words behind the setting don't fit it. `line` is where it stands.
bool readSetting(const Words& words, int line, ScriptSettings& settings);

} // namespace quendal
