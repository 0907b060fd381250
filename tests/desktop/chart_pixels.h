// Counts what can be seen of a chart.
#pragma once

#include "desktop/charts/chart_plot.h"

#include <QColor>
#include <QImage>

#include <cmath>

namespace quendal::test {

inline int pixelsLike(const QImage& image, const QColor& wanted, int tolerance = 30) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            count += std::abs(c.red() - wanted.red()) <= tolerance &&
                             std::abs(c.green() - wanted.green()) <= tolerance &&
                             std::abs(c.blue() - wanted.blue()) <= tolerance
                         ? 1
                         : 0;
        }
    }
    return count;
}

inline QImage drawn(const ChartSnapshot& chart, QSize size = {900, 560}, double scale = 1) {
    return plotChart(chart, size, scale).toImage();
}

} // namespace quendal::test
