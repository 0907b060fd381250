#include "shell/exercise_table.h"

namespace quendal {

namespace {

using Dialog = frm_DialogStartup;
using enum StartTab;

// No animation has the key 4: the button of the logarithm answers to 5 alone.
constexpr ExerciseRow kExercises[] = {
    {Animations, &Dialog::but_IntroLeit, "Beeinflussung der elektrischen Leitfähigkeit", 7, 1, 0,
     0},
    {Animations, &Dialog::ctl_Button2, "Säure-Base-Reaktion (HCl mit Wasser)", 1, 2, 0, 1},
    {Animations, &Dialog::ctl_Button10, "Neutralisation: Salzsäure mit Natronlauge", 5, 3, 0, 2},
    {Animations, &Dialog::ctl_Button1, "Der negative dekadische Logarithmus", 0, 5, 0, 3},
    {Animations, &Dialog::ctl_Button6, "Säure-Base-Reaktion (schwache Säure)", 4, 6, 1, 0},
    {Animations, &Dialog::ctl_Button7, "Säure-Base-Reaktion (Wasser-Autoprotolyse)", 3, 7, 1, 1},
    {Animations, &Dialog::ctl_Button12, "Fällung: Chlorid-Ionen mit Silber-Ionen", 6, 8, 1, 2},

    {Demos, &Dialog::ctl_Button13, "LF: Salzsäure mit Natronlauge", 5, 1, 0, 0},
    {Demos, &Dialog::ctl_Button19, "gerechnet: Salzsäure mit Natronlauge (mit log)", 8, 2, 0, 1},
    {Demos, &Dialog::Ctl_Button18, "LF: Essigsäure mit Natronlauge", 7, 3, 0, 2},
    {Demos, &Dialog::ctl_Button14, "LF: Chlorid-Ionen mit Silber-Ionen", 6, 4, 0, 3},
    {Demos, &Dialog::ctl_Button15, "pH: Starke Säure mit starker Base", 1, 5, 1, 0},
    {Demos, &Dialog::ctl_Button16, "pH: Schwache Säure mit starker Base", 2, 6, 1, 1},
    {Demos, &Dialog::ctl_Button17, "U: Chlorid-Ionen mit Silber-Ionen", 4, 7, 1, 2},

    {Tasks, &Dialog::ctl_Button9, "LF: Salzsäure mit Natronlauge", 5, 1, 0, 0},
    {Tasks, &Dialog::but_CunductoWeak, "LF: Essigsäure mit Natronlauge", 7, 2, 0, 1},
    {Tasks, &Dialog::ctl_Button11, "LF: Chlorid-Ionen mit Silber-Ionen", 6, 3, 0, 2},
    {Tasks, &Dialog::ctl_Button3, "pH: Starke Säure mit starker Base", 1, 4, 1, 0},
    {Tasks, &Dialog::ctl_Button4, "pH: Schwache Säure mit starker Base", 2, 5, 1, 1},
    {Tasks, &Dialog::ctl_Button8, "U: Chlorid-Ionen mit Silber-Ionen", 4, 6, 1, 2},
};

} // namespace

std::span<const ExerciseRow> exerciseTable() {
    return kExercises;
}

} // namespace quendal
