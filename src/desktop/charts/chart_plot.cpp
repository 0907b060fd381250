#include "desktop/charts/chart_plot.h"

#include "desktop/charts/chart_legend.h"
#include "desktop/charts/fitted_segments.h"
#include "desktop/windows/look.h"
#include "desktop/windows/text_fit.h"
#include "host/number_service.h"
#include "host/roots.h"

#include <qcustomplot.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace quendal {

namespace {

// What differs between a chart of its own and one that is a panel among others. Lengths in design
// px.
struct PlotMeasures {
    double leastLettering; // below it nobody reads at the back
    double curve;          // width of a line; many curves have thin ones
    double markerEdge;
    double markerGrowth; // markers stand out of the curve they lie on
    double numberHeight; // room for a number at the upright axis, in heights of a line
    double tickLength;
    double numberGap;
    double titleGap;
    double outside; // beyond the title
    QMarginsF leastMargins;
};

constexpr PlotMeasures kLarge{.leastLettering = 13,
                              .curve = 2.4,
                              .markerEdge = 1.2,
                              .markerGrowth = 1.7,
                              .numberHeight = 4,
                              .tickLength = 5,
                              .numberGap = 4,
                              .titleGap = 6,
                              .outside = 5,
                              .leastMargins = {15, 15, 15, 15}};
constexpr PlotMeasures kSmall{.leastLettering = 12,
                              .curve = 1.8,
                              .markerEdge = 0.9,
                              .markerGrowth = 1.2,
                              .numberHeight = 2.2,
                              .tickLength = 4,
                              .numberGap = 2,
                              .titleGap = 1,
                              .outside = 1,
                              .leastMargins = {0, 2, 12, 0}};

constexpr double kSmallBelow = 300;   // height of a chart, design px
constexpr double kNumberWidth = 4;    // room for a number at the lower axis, in heights of a line
constexpr int kMostParts = 10;        // an axis is cut into
constexpr double kTitleGrowth = 1.08; // titles and names over the numbers at the axes
constexpr std::size_t kFewSeries = 3;
constexpr double kThinCurve = 1.6;  // design px
constexpr double kFittedLine = 1.3; // design px

constexpr double kAir = 0.025; // of an axis at both ends: a point there is shown whole

const QColor kGrid(225, 232, 233);
// For series without a colour, in turn.
const std::array kOwnColours{look::kAccent, look::kFocus, look::kRight, look::kWrong};

// Shapes of one size that look equally large.
struct MarkerShape {
    QCPScatterStyle::ScatterShape shape;
    double growth;
};

MarkerShape shapeOf(Marker marker) {
    switch (marker) {
    case Marker::FilledCircle:
        return {QCPScatterStyle::ssCircle, 1};
    case Marker::Square:
        return {QCPScatterStyle::ssSquare, 0.9};
    case Marker::Triangle:
        return {QCPScatterStyle::ssTriangle, 1.15};
    case Marker::Diamond:
        return {QCPScatterStyle::ssDiamond, 1.4};
    case Marker::TriangleDown:
        return {QCPScatterStyle::ssTriangleInverted, 1.15};
    }
    return {QCPScatterStyle::ssSquare, 0.9};
}

// Breaks the lines of a text between words, so that none is wider than `width`, if words allow.
QString wrapped(const QString& text, const QFontMetricsF& metrics, double width) {
    QString lines;
    QString line;
    for (const QString& word : text.split(' ')) {
        const QString longer = line.isEmpty() ? word : line + ' ' + word;
        if (!line.isEmpty() && metrics.horizontalAdvance(longer) > width) {
            lines += line + '\n';
            line = word;
        } else {
            line = longer;
        }
    }
    return lines + line;
}

// As few lines as `width` allows, about equally long.
QString balanced(const QString& text, const QFont& font, double width) {
    const QFontMetricsF metrics(font);
    const QString widest = wrapped(text, metrics, width);
    for (const double share : {0.55, 0.65, 0.75, 0.85}) {
        const QString narrower = wrapped(text, metrics, width * share);
        if (narrower.count('\n') == widest.count('\n')) {
            return narrower;
        }
    }
    return widest;
}

ChartRange rangeOf(const QCPAxis& axis) {
    return {axis.range().lower, axis.range().upper};
}

class Plotter {
  public:
    Plotter(const ChartSnapshot& chart, QSize size, double scale)
        : chart_(chart), size_(size), scale_(scale),
          measures_(size.height() < px(kSmallBelow) ? kSmall : kLarge),
          lettering_(std::max(measures_.leastLettering, points(chart.lettering))) {}

    QPixmap draw() {
        plot_.setAntialiasedElements(QCP::aeAll);
        plot_.setNoAntialiasingOnDrag(false);
        plot_.setBackground(QBrush(look::kPanel));
        plot_.setLocale(commaIsSign() ? QLocale(QLocale::German) : QLocale(QLocale::C));
        plot_.setAutoAddPlottableToLegend(false);
        setAxes();
        addFittedLines();
        for (std::size_t i = 0; i < chart_.series.size(); ++i) {
            addCurve(chart_.series[i], colour(i));
        }
        if (chart_.empty()) {
            addNote();
        }
        addLegend(plot_, chart_, curves_, legendKind(chart_, QSizeF(size_) / scale_), letters(),
                  scale_, size_);
        return plot_.toPixmap(size_.width(), size_.height(), 1.0);
    }

  private:
    static bool commaIsSign() {
        return !rootsInstalled() || CoreLib().NumberService.decimalSign() == DecimalSign::Comma;
    }

    double px(double design) const { return design * scale_; }
    int wholePx(double design) const { return static_cast<int>(px(design)); }
    QFont font(double growth = 1, bool bold = false) const {
        return look::font(lettering_ * growth, scale_, bold);
    }
    // Of the legend, design px.
    double letters() const {
        return &measures_ == &kSmall ? lettering_ * kTitleGrowth : lettering_;
    }

    int parts(double extent, double lines) const {
        const double fitting = extent / px(lettering_ * lines);
        return std::clamp(static_cast<int>(fitting), 2, kMostParts);
    }

    void setAxes() {
        setAxis(*plot_.xAxis, chart_.xTitle, chart_.xRange(), parts(size_.width(), kNumberWidth));
        setAxis(*plot_.yAxis, chart_.yTitle, chart_.yRange(),
                parts(size_.height(), measures_.numberHeight));
        plot_.axisRect()->setupFullAxesBox(false);
        const QMarginsF least = measures_.leastMargins * scale_;
        plot_.axisRect()->setMinimumMargins(least.toMargins());
        closeFrame(*plot_.xAxis2);
        closeFrame(*plot_.yAxis2);
    }

    void setAxis(QCPAxis& axis, const std::string& title, ChartRange range, int parts) const {
        const double air = kAir * (range.upper - range.lower);
        axis.setRange(range.lower - air, range.upper + air);
        axis.setLabel(shownText(title));
        axis.setLabelFont(font(kTitleGrowth, true));
        axis.setTickLabelFont(font());
        axis.setLabelColor(look::kInk);
        axis.setTickLabelColor(look::kInk);
        axis.setNumberFormat("gb");
        axis.setNumberPrecision(6);
        const QSharedPointer<QCPAxisTickerFixed> ticker(new QCPAxisTickerFixed);
        ticker->setTickStep(roundStep(range.upper - range.lower, parts));
        ticker->setScaleStrategy(QCPAxisTickerFixed::ssNone);
        axis.setTicker(ticker);
        axis.setBasePen(QPen(look::kCalmInk, px(1.2)));
        axis.setTickPen(QPen(look::kCalmInk, px(1.2)));
        axis.setSubTicks(false);
        axis.setTickLength(0, wholePx(measures_.tickLength));
        axis.setTickLabelPadding(wholePx(measures_.numberGap));
        axis.setLabelPadding(wholePx(measures_.titleGap));
        axis.setPadding(wholePx(measures_.outside));
        axis.grid()->setPen(QPen(kGrid, px(1)));
        axis.grid()->setZeroLinePen(QPen(kGrid, px(1)));
    }

    void closeFrame(QCPAxis& axis) const {
        axis.setBasePen(QPen(look::kBorder, px(1.2)));
        axis.setTicks(false);
        axis.setTickLabels(false);
    }

    // A series' own colour, darkened until it can be seen on the sheet.
    QColor colour(std::size_t at) const {
        const auto coloured = [](const ChartSeries& series) {
            return series.Style.Colour.has_value();
        };
        const auto& asked = chart_.series[at].Style.Colour;
        if (asked) {
            return look::readable(look::toQColor(*asked), look::kPanel, look::kShapeContrast);
        }
        const auto first = chart_.series.begin();
        const auto before =
            std::count_if(first, first + static_cast<std::ptrdiff_t>(at), std::not_fn(coloured));
        return kOwnColours[static_cast<std::size_t>(before) % kOwnColours.size()];
    }

    double curveWidth() const {
        return chart_.series.size() > kFewSeries ? kThinCurve : measures_.curve;
    }

    void addCurve(const ChartSeries& series, const QColor& colour) {
        // A curve may come back to the same x, so points keep their order.
        auto* curve = new QCPCurve(plot_.xAxis, plot_.yAxis); // the plot owns it
        QVector<double> xs;
        QVector<double> ys;
        for (const Point& point : series.Data.points()) {
            xs.append(point.x);
            ys.append(point.y);
        }
        curve->setData(xs, ys);
        curve->setLineStyle(series.Style.LineVisible ? QCPCurve::lsLine : QCPCurve::lsNone);
        curve->setPen(QPen(colour, px(curveWidth()), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        if (series.Style.MarkerVisible) {
            curve->setScatterStyle(marker(series.Style, colour));
        }
        curves_.push_back(curve);
    }

    QCPScatterStyle marker(const SeriesStyle& style, const QColor& colour) const {
        const MarkerShape shape = shapeOf(style.MarkerStyle);
        const double size = std::max(1, style.MarkerSize) * measures_.markerGrowth * shape.growth;
        return {shape.shape, QPen(Qt::white, px(measures_.markerEdge)), colour, px(size)};
    }

    // Below the points, so that these stay whole.
    void addFittedLines() {
        for (std::size_t i = 0; i < chart_.series.size(); ++i) {
            const QPen pen(colour(i), px(kFittedLine), Qt::CustomDashLine, Qt::FlatCap);
            for (const ChartSegment& segment : fittedSegments(
                     chart_.series[i].fittedLines, rangeOf(*plot_.xAxis), rangeOf(*plot_.yAxis))) {
                addSegment(segment, pen);
            }
        }
    }

    void addSegment(const ChartSegment& segment, QPen pen) {
        pen.setDashPattern({3.5, 2.5});
        auto* line = new QCPItemLine(&plot_); // the plot owns it
        line->start->setCoords(segment.start.x, segment.start.y);
        line->end->setCoords(segment.end.x, segment.end.y);
        line->setPen(pen);
    }

    void addNote() {
        constexpr double kShare = 0.75;       // of the chart's width
        auto* note = new QCPItemText(&plot_); // the plot owns it
        note->position->setType(QCPItemPosition::ptAxisRectRatio);
        note->position->setCoords(0.5, 0.5);
        note->setPositionAlignment(Qt::AlignCenter);
        note->setTextAlignment(Qt::AlignCenter);
        note->setFont(font(1.15));
        note->setColor(look::kCalmInk);
        note->setText(balanced(shownText(chart_.emptyNote), note->font(), kShare * size_.width()));
        note->setBrush(look::kPanel);
        note->setPadding(QMargins(1, 1, 1, 1) * wholePx(10));
    }

    const ChartSnapshot& chart_;
    QSize size_;
    double scale_;
    const PlotMeasures& measures_;
    double lettering_; // design px
    QCustomPlot plot_;
    std::vector<QCPCurve*> curves_; // the plot owns them
};

} // namespace

QPixmap plotChart(const ChartSnapshot& chart, QSize size, double scale) {
    return size.isEmpty() ? QPixmap() : Plotter(chart, size, scale).draw();
}

} // namespace quendal
