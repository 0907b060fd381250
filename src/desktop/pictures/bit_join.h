// Stretched pictures joined bit by bit to what is there, as a mask and its picture are laid over a
// screen. Made a line at a time: a copy as large as the screen would need as much memory again.
#pragma once

#include "desktop/pictures/stretch.h"

namespace quendal {

// Joins the part of the stretched copy that lies in `clip` to `target`. Each pixel is the nearest
// one of the source, so that mask and picture of a pair keep to the same edges, and:
//   And   has soft edges on the white side of black: what black covers of such a pixel is how much
//         of it is joined.
//   Invert has smooth transitions between colours. Black, which an exclusive or leaves no trace of,
//         mixes with no other colour.
// On a target with transparency what keeps its colour keeps its transparency; all else becomes
// opaque. Where a pixel of the source isn't opaque, as much stays as it was.
void joinBits(QImage& target, const QRect& clip, const QImage& source, const StretchBoxes& boxes,
              RasterOp operation);

} // namespace quendal
