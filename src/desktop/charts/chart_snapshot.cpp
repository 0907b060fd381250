#include "desktop/charts/chart_snapshot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace quendal {

namespace {

constexpr int kParts = 8;         // an axis is cut into about so many
constexpr double kCornerX = 0.42; // share of the chart that a legend may cover
constexpr double kCornerY = 0.3;

bool drawable(const Point& point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

template <class Use>
void forEachPoint(const ChartSnapshot& chart, Use use) {
    for (const ChartSeries& series : chart.series) {
        for (const Point& point : series.Data.points()) {
            if (drawable(point)) {
                use(point);
            }
        }
    }
}

ChartRange rangeOf(const ChartSnapshot& chart, double Point::*axis, ChartRange otherwise) {
    constexpr double kNone = std::numeric_limits<double>::infinity();
    ChartRange found{kNone, -kNone};
    forEachPoint(chart, [&](const Point& point) {
        found.lower = std::min(found.lower, point.*axis);
        found.upper = std::max(found.upper, point.*axis);
    });
    if (found.lower > found.upper) {
        return otherwise;
    }
    const double span = found.upper - found.lower;
    const double step = roundStep(span > 0 ? span : std::max(1.0, std::abs(found.lower)), kParts);
    const double lower = std::floor(found.lower / step) * step;
    const double upper = std::ceil(found.upper / step) * step;
    return {lower, upper > lower ? upper : lower + step};
}

} // namespace

double roundStep(double span, int wanted) {
    if (!(span > 0) || !std::isfinite(span)) {
        return 1;
    }
    const double raw = span / wanted;
    const double power = std::pow(10.0, std::floor(std::log10(raw)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (raw <= factor * power * (1 + 1e-9)) {
            return factor * power;
        }
    }
    return 10 * power;
}

ChartSnapshot ChartSnapshot::of(const ChartDocument& document, double lettering) {
    ChartSnapshot chart{
        .xTitle = document.xTitle, .yTitle = document.yTitle, .series = {}, .lettering = lettering};
    for (int i = 1; i <= document.seriesCount(); ++i) {
        chart.series.push_back(document.Series(i));
    }
    return chart;
}

bool ChartSnapshot::empty() const {
    bool found = false;
    forEachPoint(*this, [&found](const Point&) { found = true; });
    return !found;
}

ChartRange ChartSnapshot::xRange() const {
    return rangeOf(*this, &Point::x, {0, 20});
}
ChartRange ChartSnapshot::yRange() const {
    return rangeOf(*this, &Point::y, {0, 14});
}

ChartSnapshot::Corner ChartSnapshot::freeCorner() const {
    const ChartRange xs = xRange();
    const ChartRange ys = yRange();
    std::array<int, 4> points{};
    forEachPoint(*this, [&](const Point& point) {
        const double x = (point.x - xs.lower) / (xs.upper - xs.lower);
        const double y = (point.y - ys.lower) / (ys.upper - ys.lower);
        const bool left = x < kCornerX;
        const bool right = x > 1 - kCornerX;
        const bool top = y > 1 - kCornerY;
        const bool bottom = y < kCornerY;
        points[0] += top && left ? 1 : 0;
        points[1] += top && right ? 1 : 0;
        points[2] += bottom && left ? 1 : 0;
        points[3] += bottom && right ? 1 : 0;
    });
    const auto fewest = std::min_element(points.begin(), points.end());
    return static_cast<Corner>(fewest - points.begin());
}

} // namespace quendal
