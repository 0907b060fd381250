#include "desktop/charts/fitted_segments.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace quendal {

namespace {

constexpr double kOvershoot = 0.08; // beyond a crossing, of the width of the sheet

double at(const FittedLine& line, double x) {
    return line.intercept + line.slope * x;
}

// Where two neighbours end: a little beyond their crossing, but never inside the points of either.
// Lines that cross elsewhere run on to the first point of the other.
struct Meeting {
    double leftEnds = 0;
    double rightBegins = 0;
};

Meeting meeting(const FittedLine& left, const FittedLine& right, double overshoot) {
    const double crossing = (right.intercept - left.intercept) / (left.slope - right.slope);
    if (crossing >= left.to - overshoot && crossing <= right.from + overshoot) {
        return {std::max(left.to, crossing + overshoot),
                std::min(right.from, crossing - overshoot)};
    }
    return {std::max(left.to, right.from), std::min(left.to, right.from)};
}

// The part of the line between the heights of the sheet.
std::optional<ChartSegment> cut(const FittedLine& line, ChartRange xs, ChartRange ys) {
    if (line.slope != 0) {
        const double one = (ys.lower - line.intercept) / line.slope;
        const double other = (ys.upper - line.intercept) / line.slope;
        xs.lower = std::max(xs.lower, std::min(one, other));
        xs.upper = std::min(xs.upper, std::max(one, other));
    } else if (line.intercept < ys.lower || line.intercept > ys.upper) {
        return std::nullopt;
    }
    if (!(xs.lower < xs.upper)) {
        return std::nullopt;
    }
    const auto on = [&](double x) { return Point{x, std::clamp(at(line, x), ys.lower, ys.upper)}; };
    return ChartSegment{on(xs.lower), on(xs.upper)};
}

} // namespace

std::vector<ChartSegment> fittedSegments(const std::vector<FittedLine>& lines, ChartRange xs,
                                         ChartRange ys) {
    const double overshoot = kOvershoot * (xs.upper - xs.lower);
    std::vector<ChartSegment> segments;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!std::isfinite(lines[i].slope) || !std::isfinite(lines[i].intercept)) {
            continue;
        }
        ChartRange drawn = xs;
        if (i > 0) {
            drawn.lower =
                std::max(drawn.lower, meeting(lines[i - 1], lines[i], overshoot).rightBegins);
        }
        if (i + 1 < lines.size()) {
            drawn.upper =
                std::min(drawn.upper, meeting(lines[i], lines[i + 1], overshoot).leftEnds);
        }
        if (const auto segment = cut(lines[i], drawn, ys)) {
            segments.push_back(*segment);
        }
    }
    return segments;
}

} // namespace quendal
