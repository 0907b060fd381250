// The texts of a sprite as outlines, so that they keep their proportions at any size.
#pragma once

#include "desktop/pictures/sprite_outlines.h"

namespace quendal {

// The ground, where the text has one, and the letters.
std::vector<SpriteOutline> textOutlines(const WmfText& text, const QTransform& toPixels);

} // namespace quendal
