// The random tables of the particle grid.
#pragma once

namespace quendal {

class RandomSource;

// Fills GridShuffle, GridJitterX and GridJitterY of the session: first all of GridShuffle, then
// both jitter tables entry by entry, X before Y. Takes 120,000 random numbers.
void fillGridTables(RandomSource& random);

} // namespace quendal
