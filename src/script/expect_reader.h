// What a script expects, out of its words.
#pragma once

#include "script/script.h"
#include "script/step_reader.h"

namespace quendal {

// THING == VALUE, THING != VALUE or THING ~= VALUE TOLERANCE.
std::optional<Condition> readCondition(const Words& words);

// The words behind "expect", at least one.
std::optional<StepKind> readExpect(const Words& words);

} // namespace quendal
