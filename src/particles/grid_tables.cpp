#include "particles/grid_tables.h"

#include "host/random_source.h"
#include "shell/session/session.h"

#include <algorithm>

namespace quendal {

namespace {

double jitter(RandomSource& random) {
    return random.next() * 4.0 - 2.0;
}

} // namespace

void fillGridTables(RandomSource& random) {
    SessionState& state = session();
    for (int count = 1; count <= kGridLimit; ++count) {
        for (int i = 1; i <= kGridLimit; ++i) {
            const int place = static_cast<int>(random.next() * count) + 1;
            state.GridShuffle[count][i] = std::clamp(place, 1, count);
        }
    }
    for (int count = 1; count <= kGridLimit; ++count) {
        for (int i = 1; i <= kGridLimit; ++i) {
            state.GridJitterX[count][i] = jitter(random);
            state.GridJitterY[count][i] = jitter(random);
        }
    }
}

} // namespace quendal
