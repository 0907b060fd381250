#include "desktop/charts/qcustomplot_chart_painter.h"

#include "desktop/charts/chart_plot.h"
#include "desktop/pictures/picture_surface.h"
#include "host/pictures.h"

#include <QPainter>

namespace quendal {

void QCustomPlotChartPainter::render(const ChartView& view, PictureBox& target, double scale) {
    auto* surface = dynamic_cast<PictureSurface*>(&target.surface());
    if (surface == nullptr) {
        return; // nobody will see this box
    }
    surface->setBackdrop([chart = ChartSnapshot::of(view, scale)](
                             QPainter& painter, const QRectF& box, double windowScale) {
        painter.drawPixmap(box.topLeft(), plotChart(chart, box.size().toSize(), windowScale));
    });
    target.drawn();
}

} // namespace quendal
