// What a script expects of the program at a moment, and what it finds.
#pragma once

#include "script/script.h"
#include "script/verdict.h"

#include <optional>

namespace quendal {

class Stage;
struct Witness;

Verdict checkCondition(const Condition& condition, const Stage& stage, const Witness& witness);

// No dosing runs on the workbench, nothing falls and, where its model counts particles, no pair is
// left that can react. True where there is no workbench.
bool isSettled(const Stage& stage);

// For the expectations that are judged at once; what was asked about has then been asked about.
// nullopt for every other step.
std::optional<Verdict> judge(const StepKind& step, const Stage& stage, Witness& witness);

} // namespace quendal
