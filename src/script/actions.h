// The learner's actions: what must be true before the actor performs one.
#pragma once

#include "script/script.h"
#include "script/verdict.h"

namespace quendal {

class ScriptActor;
class Stage;

// True for steps that happen when the program lets events in.
bool isAction(const StepKind& step);

// Performs the action, or tells why a learner could not. Comes back when its handlers have come
// back.
Verdict performAction(const StepKind& step, const Stage& stage, ScriptActor& actor);

} // namespace quendal
