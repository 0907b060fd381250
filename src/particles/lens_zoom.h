// The zoom between a rectangle of the screen and the whole form.
#pragma once

#include "host/geometry.h"

namespace quendal {

// The edges in order and on the screen: whoever gives them may have swapped them, or meant sizes.
Rect sourceOnScreen(double left, double top, double right, double bottom, Size screen);

// Hundredths of the way, from the seconds since the zoom began; cut towards zero. The zoom lasts
// one second at any frame rate.
int zoomHundredths(double seconds);

// The rectangle at `hundredths` of the way from the source to the whole form.
Rect zoomedRect(const Rect& source, Size whole, int hundredths);

// The px of a picture of the screen that are magnified; at least one, so that a rectangle without
// size has something to show.
Rect magnifiedPart(const Rect& source, Size picture);

} // namespace quendal
