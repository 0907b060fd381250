// The order in which Tab goes through a form.
#pragma once

#include <vector>

namespace quendal {

class Control;
class Form;

// What Tab comes to on the form at present, and the control with the focus even where Tab wouldn't
// come to it any more. In the order of reading: what stands in one container stays together, rows
// from top to bottom, in a row from left to right; what stands at the same place in the order of
// its making.
std::vector<Control*> tabOrder(const Form& form);

} // namespace quendal
