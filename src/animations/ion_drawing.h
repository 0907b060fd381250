// What the ions of the conductivity lesson look like.
#pragma once

#include "host/geometry.h"

namespace quendal {

class IonField;
class Surface;

// The field with its border on a cleared surface that counts in units of the field. Counts the
// field's DepositedCount anew. `unit` holds the units across and down that are as long as a unit
// of a circle's radius: 1 and 1, or less on the axis that the screen stretches more.
void drawIons(Surface& surface, IonField& field, Size unit);

} // namespace quendal
