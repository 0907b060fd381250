// A script played on the host without a screen.
#pragma once

#include "script/script_options.h"
#include "script/script_program.h"

#include <functional>
#include <iosfwd>

namespace quendal {

struct Script;

// Runs `program` on a host of its own with the script's player as the learner. Gives the exit
// status; what happens goes to `out`, failures to `err`.
int playHeadless(const Script& script, const ScriptOptions& options,
                 const std::function<void()>& program, std::ostream& out, std::ostream& err);

// The same for the one file of `options`, on the standard streams.
int playHeadlessFile(const ScriptOptions& options, const ProgramChooser& choose);

} // namespace quendal
