// What a learner has set for the whole program, kept from one start to the next.
#pragma once

namespace quendal {

// 1 where nothing is kept; also, with a logged line, where what is kept makes no sense.
double keptZoom();
// A folder that can't be written keeps nothing; that is logged.
void keepZoom(double zoom);

} // namespace quendal
