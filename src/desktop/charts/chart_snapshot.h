// What a chart showed at the moment it was asked for. A picture may be painted long after its
// document has been closed.
#pragma once

#include "host/chart.h"

#include <limits>
#include <string>
#include <vector>

namespace quendal {

struct ChartRange {
    double lower = 0;
    double upper = 1;
};

// Between which values points lie; without a point the least is above the greatest.
struct ChartExtent {
    Point least{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
    Point greatest{-std::numeric_limits<double>::infinity(),
                   -std::numeric_limits<double>::infinity()};

    // Points that are no numbers don't count.
    void include(const Point& point);
    void include(const ChartSeries& series);
};

struct ChartSnapshot {
    std::string xTitle;
    std::string yTitle;
    std::vector<ChartSeries> series; // what is drawn
    double lettering = 8;            // points on the design grid
    std::string emptyNote;           // stands in a chart without a point
    ChartExtent sheet;               // of what isn't drawn but has its place on the axes

    static ChartSnapshot of(const ChartView& view, double lettering);
    bool empty() const; // no point in any series

    // All points with some air around them, ends on round numbers. Without points 0 to 20 and 0 to
    // 14: a titration's usual sheet.
    ChartRange xRange() const;
    ChartRange yRange() const;

    // The corner of the chart with the fewest points in it, for the legend.
    enum class Corner { TopLeft, TopRight, BottomLeft, BottomRight };
    Corner freeCorner() const;
};

// The step from 1, 2, 5 times a power of ten that cuts `span` into about `wanted` parts.
double roundStep(double span, int wanted);

} // namespace quendal
