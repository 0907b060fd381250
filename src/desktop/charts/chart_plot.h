// Draws a chart with QCustomPlot.
#pragma once

#include "desktop/charts/chart_snapshot.h"

#include <QPixmap>
#include <QSize>

namespace quendal {

// The chart in `size` pixels; `scale` is pixels for a design px. Null for an empty size.
QPixmap plotChart(const ChartSnapshot& chart, QSize size, double scale);

} // namespace quendal
