// Where controls stand on their form, and what stands in front of them.
#pragma once

#include "host/geometry.h"

namespace quendal {

class Control;

// In design units of the form.
Rect placeOnForm(const Control& control);

// What one can't see through: frames, panels, buttons, pictures with a ground of their own.
bool isOpaque(const Control& control);

// `front` stands in front of `back`: neither holds the other, both are shown, and at the innermost
// container that holds both it comes later.
bool standsInFront(const Control& front, const Control& back);

// An opaque control in front takes what is pressed at the place on the form.
bool isCoveredAt(const Control& control, Point at);

// Nothing of the control is to be seen.
bool isCovered(const Control& control);

} // namespace quendal
