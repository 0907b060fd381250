// One frame of the movie of the start dialog.
#pragma once

#include "host/surface.h"

#include <cstdint>

namespace quendal {

struct MovieMoment {
    std::int32_t scene = 0; // 1 to 6; 0 is the triangle alone
    double time = 0;        // 0 to 20: moves until 10, rests from there
    Color gridColor;
};

// Draws the whole surface, whatever stood there. Laid out for 505 by 201 units.
void drawMovieFrame(Surface& surface, const MovieMoment& moment);

} // namespace quendal
