// Where the texts of the movie stand on a recording surface.
#pragma once

#include "host/text_size.h"
#include "support/recording_surface.h"

namespace quendal::test {

inline constexpr Color kRed{255, 0, 0};
inline const FontSpec kMovieFont{.family = "Arial", .size = points(10), .bold = true};

inline Rect room(const RecordingSurface::TextMark& mark) {
    const Size size = estimatedTextSize(mark.text, mark.font);
    return {mark.place.x, mark.place.y, size.width, size.height};
}

inline Point middle(const RecordingSurface::TextMark& mark) {
    const Rect box = room(mark);
    return {box.left + box.width / 2, box.top + box.height / 2};
}

} // namespace quendal::test
