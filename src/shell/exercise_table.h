// The buttons of the start dialog and what each opens.
#pragma once

#include "shell/frm_DialogStartup.h"

#include <span>

namespace quendal {

enum class StartTab { Introduction = 0, Animations = 1, Demos = 2, Tasks = 3 };

struct ExerciseRow {
    StartTab tab;
    ctl_Button frm_DialogStartup::*button;
    const char* caption;
    int number; // scene of an animation, else the result code
    int key;    // value of the tab's mode key for which the button stays visible
    int column; // place on the tab
    int row;
};

// Tab by tab, in the order in which the teacher's keys are applied.
std::span<const ExerciseRow> exerciseTable();

} // namespace quendal
