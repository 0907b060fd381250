// A sprite's drawing in pixels.
#pragma once

#include "desktop/files/wmf_drawing.h"

#include <QImage>

namespace quendal {

// The whole drawing in this many pixels, on a white ground and with soft edges; what was painted in
// the key colour (255, 0, 255) is transparent, without a trace of it at the edges. Null for a size
// that no picture may have (isPictureSize), and for a drawing so intricate that it would take
// seconds.
QImage renderSprite(const WmfDrawing& drawing, QSize devicePixels);

} // namespace quendal
