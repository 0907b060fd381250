#include "desktop/charts/chart_plot.h"

#include "desktop/windows/look.h"
#include "desktop/windows/text_fit.h"
#include "host/number_service.h"
#include "host/roots.h"

#include <qcustomplot.h>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr double kLeastLettering = 13; // design px; below it nobody reads at the back
constexpr double kCurveWidth = 2.4;    // design px
constexpr double kMarkerGrowth = 1.7;  // markers stand out of the curve they lie on
constexpr int kMostParts = 10;         // an axis is cut into
constexpr double kPartSize = 4;        // room for a number at an axis, in heights of a line

constexpr double kAir = 0.025; // of an axis at both ends: a point there is shown whole

constexpr double kLegendFrom = 380; // design px; a smaller chart has no room for one

const QColor kGrid(225, 232, 233);

class Plotter {
  public:
    Plotter(const ChartSnapshot& chart, double scale)
        : chart_(chart), scale_(scale),
          lettering_(std::max(kLeastLettering, points(chart.lettering))) {}

    QPixmap draw(QSize size) {
        plot_.setAntialiasedElements(QCP::aeAll);
        plot_.setNoAntialiasingOnDrag(false);
        plot_.setBackground(QBrush(look::kPanel));
        plot_.setLocale(commaIsSign() ? QLocale(QLocale::German) : QLocale(QLocale::C));
        setAxis(*plot_.xAxis, chart_.xTitle, chart_.xRange(), size.width());
        setAxis(*plot_.yAxis, chart_.yTitle, chart_.yRange(), size.height());
        plot_.axisRect()->setupFullAxesBox(false);
        closeFrame(*plot_.xAxis2);
        closeFrame(*plot_.yAxis2);
        for (std::size_t i = 0; i < chart_.series.size(); ++i) {
            addSeries(chart_.series[i], i == 0);
        }
        if (chart_.empty()) {
            addNote("Zu dieser Aufgabe liegt keine Kurve vor.");
        } else if (size.width() >= px(kLegendFrom)) {
            setLegend();
        }
        return plot_.toPixmap(size.width(), size.height(), 1.0);
    }

  private:
    static bool commaIsSign() {
        return !rootsInstalled() || CoreLib().NumberService.decimalSign() == DecimalSign::Comma;
    }

    double px(double design) const { return design * scale_; }
    QFont font(double growth = 1, bool bold = false) const {
        return look::font(lettering_ * growth, scale_, bold);
    }

    int parts(int extent) const {
        const double fitting = extent / px(lettering_ * kPartSize);
        return std::clamp(static_cast<int>(fitting), 2, kMostParts);
    }

    void setAxis(QCPAxis& axis, const std::string& title, ChartRange range, int extent) const {
        const double air = kAir * (range.upper - range.lower);
        axis.setRange(range.lower - air, range.upper + air);
        axis.setLabel(shownText(title));
        axis.setLabelFont(font(1.08, true));
        axis.setTickLabelFont(font());
        axis.setLabelColor(look::kInk);
        axis.setTickLabelColor(look::kInk);
        axis.setNumberFormat("gb");
        axis.setNumberPrecision(6);
        const QSharedPointer<QCPAxisTickerFixed> ticker(new QCPAxisTickerFixed);
        ticker->setTickStep(roundStep(range.upper - range.lower, parts(extent)));
        ticker->setScaleStrategy(QCPAxisTickerFixed::ssNone);
        axis.setTicker(ticker);
        axis.setBasePen(QPen(look::kCalmInk, px(1.2)));
        axis.setTickPen(QPen(look::kCalmInk, px(1.2)));
        axis.setSubTicks(false);
        axis.setTickLength(0, static_cast<int>(px(5)));
        axis.setTickLabelPadding(static_cast<int>(px(4)));
        axis.setLabelPadding(static_cast<int>(px(6)));
        axis.grid()->setPen(QPen(kGrid, px(1)));
        axis.grid()->setZeroLinePen(QPen(kGrid, px(1)));
    }

    void closeFrame(QCPAxis& axis) const {
        axis.setBasePen(QPen(look::kBorder, px(1.2)));
        axis.setTicks(false);
        axis.setTickLabels(false);
    }

    // The first series is the measured curve: it has the program's own colour.
    void addSeries(const ChartSeries& series, bool first) {
        const QColor colour = first ? look::kAccent : look::toQColor(series.Style.Colour);
        // A curve may come back to the same x, so points keep their order.
        auto* curve = new QCPCurve(plot_.xAxis, plot_.yAxis); // the plot owns it
        QVector<double> xs;
        QVector<double> ys;
        for (const Point& point : series.Data.points()) {
            xs.append(point.x);
            ys.append(point.y);
        }
        curve->setData(xs, ys);
        curve->setName(shownText(series.name));
        curve->setLineStyle(series.Style.LineVisible ? QCPCurve::lsLine : QCPCurve::lsNone);
        curve->setPen(QPen(colour, px(kCurveWidth), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        if (series.Style.MarkerVisible) {
            curve->setScatterStyle(marker(series.Style, colour));
        }
        for (const FittedLine& line : series.fittedLines) {
            addFittedLine(line, colour);
        }
    }

    QCPScatterStyle marker(const SeriesStyle& style, const QColor& colour) const {
        const auto shape =
            style.MarkerStyle == 2 ? QCPScatterStyle::ssCircle : QCPScatterStyle::ssSquare;
        return {shape, QPen(Qt::white, px(1.2)), colour,
                px(std::max(1, style.MarkerSize) * kMarkerGrowth)};
    }

    void addFittedLine(const FittedLine& line, const QColor& colour) {
        if (!std::isfinite(line.slope) || !std::isfinite(line.intercept)) {
            return;
        }
        const ChartRange xs = chart_.xRange();
        QCPGraph& graph = *plot_.addGraph();
        graph.addData(xs.lower, line.intercept + line.slope * xs.lower);
        graph.addData(xs.upper, line.intercept + line.slope * xs.upper);
        graph.setPen(QPen(colour.darker(115), px(1.6), Qt::DashLine));
        graph.removeFromLegend();
    }

    void setLegend() {
        QCPLegend& legend = *plot_.legend;
        legend.setVisible(true);
        legend.setFont(font());
        legend.setTextColor(look::kInk);
        legend.setBrush(QColor(255, 255, 255, 235));
        legend.setBorderPen(QPen(look::kBorder, px(1)));
        legend.setIconSize(static_cast<int>(px(26)), static_cast<int>(px(16)));
        legend.setMargins(QMargins(1, 1, 1, 1) * static_cast<int>(px(8)));
        legend.setRowSpacing(static_cast<int>(px(4)));
        plot_.axisRect()->insetLayout()->setInsetAlignment(0, legendPlace());
        plot_.axisRect()->insetLayout()->setMargins(QMargins(1, 1, 1, 1) *
                                                    static_cast<int>(px(12)));
    }

    Qt::Alignment legendPlace() const {
        switch (chart_.freeCorner()) {
        case ChartSnapshot::Corner::TopLeft:
            return Qt::AlignTop | Qt::AlignLeft;
        case ChartSnapshot::Corner::TopRight:
            return Qt::AlignTop | Qt::AlignRight;
        case ChartSnapshot::Corner::BottomLeft:
            return Qt::AlignBottom | Qt::AlignLeft;
        case ChartSnapshot::Corner::BottomRight:
            break;
        }
        return Qt::AlignBottom | Qt::AlignRight;
    }

    void addNote(const QString& text) {
        auto* note = new QCPItemText(&plot_); // the plot owns it
        note->position->setType(QCPItemPosition::ptAxisRectRatio);
        note->position->setCoords(0.5, 0.5);
        note->setPositionAlignment(Qt::AlignCenter);
        note->setFont(font(1.15));
        note->setColor(look::kCalmInk);
        note->setText(text);
        note->setBrush(look::kPanel);
        note->setPadding(QMargins(1, 1, 1, 1) * static_cast<int>(px(10)));
    }

    const ChartSnapshot& chart_;
    double scale_;
    double lettering_; // design px
    QCustomPlot plot_;
};

} // namespace

QPixmap plotChart(const ChartSnapshot& chart, QSize size, double scale) {
    return size.isEmpty() ? QPixmap() : Plotter(chart, scale).draw(size);
}

} // namespace quendal
