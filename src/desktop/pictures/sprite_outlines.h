// The shapes of a sprite's drawing as outlines to fill.
#pragma once

#include "desktop/files/wmf_drawing.h"

#include <QPainterPath>
#include <QTransform>

#include <vector>

namespace quendal {

// An outline in pixels and the colour it is filled with.
struct SpriteOutline {
    QPainterPath path; // with its fill rule
    Color color;
};

// What a shape fills, in the order of painting: its inside, then its outline, or a text's ground
// and letters. `toPixels` scales design px; lines are at least `thinnest` pixels wide.
std::vector<SpriteOutline> spriteOutlines(const WmfShape& shape, const QTransform& toPixels,
                                          double thinnest);

} // namespace quendal
