// How far the fitted lines of a series are drawn.
#pragma once

#include "desktop/charts/chart_snapshot.h"

#include <vector>

namespace quendal {

struct ChartSegment {
    Point start;
    Point end;
};

// Each line over its points and out to the edges of the sheet; towards a neighbour it ends a little
// beyond the crossing of the two, so that many lines can be told apart. All cut to the sheet; lines
// that don't touch it, and those that are no numbers, are left out. The lines of a series stand
// from left to right.
std::vector<ChartSegment> fittedSegments(const std::vector<FittedLine>& lines, ChartRange xs,
                                         ChartRange ys);

} // namespace quendal
