// Puts charts into picture boxes.
#pragma once

#include "host/chart.h"

namespace quendal {

class QCustomPlotChartPainter final : public ChartPainter {
  public:
    void render(const ChartView& view, PictureBox& target, double scale) override;
};

} // namespace quendal
