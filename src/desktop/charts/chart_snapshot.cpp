#include "desktop/charts/chart_snapshot.h"

#include <algorithm>
#include <array>
#include <cmath>

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
    ChartExtent found = chart.sheet;
    for (const ChartSeries& series : chart.series) {
        found.include(series);
    }
    const double least = found.least.*axis;
    const double greatest = found.greatest.*axis;
    if (least > greatest) {
        return otherwise;
    }
    const double span = greatest - least;
    const double step = roundStep(span > 0 ? span : std::max(1.0, std::abs(least)), kParts);
    const double lower = std::floor(least / step) * step;
    const double upper = std::ceil(greatest / step) * step;
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

void ChartExtent::include(const Point& point) {
    if (drawable(point)) {
        least = {std::min(least.x, point.x), std::min(least.y, point.y)};
        greatest = {std::max(greatest.x, point.x), std::max(greatest.y, point.y)};
    }
}

void ChartExtent::include(const ChartSeries& series) {
    for (const Point& point : series.Data.points()) {
        include(point);
    }
}

ChartSnapshot ChartSnapshot::of(const ChartView& view, double lettering) {
    const ChartDocument& document = view.document();
    ChartSnapshot chart{.xTitle = document.xTitle,
                        .yTitle = document.yTitle,
                        .series = {},
                        .lettering = lettering,
                        .emptyNote = view.emptyNote,
                        .sheet = {}};
    for (const ChartSeries* series : view.shown()) {
        chart.series.push_back(*series);
    }
    for (int i = 1; i <= document.seriesCount(); ++i) {
        chart.sheet.include(document.Series(i));
    }
    for (const Point& point : view.reserved()) {
        chart.sheet.include(point);
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
