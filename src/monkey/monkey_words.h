// What the monkey writes: words of a script, and texts of all kinds for inputs and boxes.
#pragma once

#include "monkey/chance.h"

#include <string>
#include <string_view>

namespace quendal {

class Control;

// As one word of a script, in quotes where it needs them.
std::string scriptWord(std::string_view text);
// Name of the control as a script writes it.
std::string controlWord(const Control& control);

// What a learner might type: numbers of all kinds, nothing, nonsense, far too much.
std::string anyText(Chance& chance);
// A text that reads as a number.
std::string anyNumber(Chance& chance);
// One UTF-8 character.
std::string anyCharacter(Chance& chance);
// Value of a teacher's key, sensible or not.
std::string anyTeacherText(Chance& chance);

} // namespace quendal
