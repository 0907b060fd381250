// The legend of a chart: where it stands and how it is set.
#pragma once

#include "desktop/charts/chart_snapshot.h"

#include <QSizeF>

#include <vector>

class QCPCurve;
class QCustomPlot;

namespace quendal {

enum class LegendKind {
    None,   // no room
    Corner, // over the plot, in the corner with the fewest points
    Line,   // one line above the plot, with the short names
    Rows    // rows of five above the plot, so that two sets of five stand under each other
};

// What suits a chart of `size` design px.
LegendKind legendKind(const ChartSnapshot& chart, QSizeF size);

// The legend of the curves, one for each series of the chart. `lettering` in design px, `scale`
// pixels for a design px, `size` of the chart in pixels. A line or rows that don't fit are set
// smaller, then in more rows; a legend that would take much of the chart is left out.
void addLegend(QCustomPlot& plot, const ChartSnapshot& chart, const std::vector<QCPCurve*>& curves,
               LegendKind kind, double lettering, double scale, QSizeF size);

} // namespace quendal
