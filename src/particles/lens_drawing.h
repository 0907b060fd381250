// What the scenes of the magnifying glass are drawn with.
#pragma once

#include "host/color.h"
#include "host/geometry.h"

namespace quendal {

class Surface;

// A ball with an outline; `haloFlag` puts a circle two units wider behind it, `minusFlag` and
// `plusFlag` a white sign on it. Leaves the surface's FillStyle transparent.
void hDrawBall(Surface& surface, double x, double y, double r, Color colour, bool haloFlag,
               Color haloColour, bool minusFlag, bool plusFlag);

// The same without halo and sign.
void drawPlainBall(Surface& surface, double x, double y, double r, Color colour);

// Ions of silver chloride by their charge, in the colours that they have in the beaker.
enum class IonSign { Minus, Plus };
Color ionColor(IonSign sign);
Color signColor(IonSign sign);

// A bar, for plus two of them, 1.2 radii long and `thickness` wide. `unit` as for LensScene::draw.
void drawSign(Surface& surface, Point centre, double r, IonSign sign, Color colour,
              double thickness = 3, Size unit = {1, 1});

} // namespace quendal
