#include "desktop/charts/chart_legend.h"

#include "desktop/charts/chemical_term.h"
#include "desktop/windows/look.h"
#include "desktop/windows/term_layout.h"

#include <qcustomplot.h>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

// Smaller charts, in design px, have no room for a legend; those below the second height have it in
// one line.
constexpr QSizeF kLeastSize(300, 140);
constexpr double kFullHeight = 300;

constexpr std::size_t kRow = 5; // entries a row
constexpr std::size_t kMostInCorner = 6;
constexpr double kLeastLettering = 12; // design px
constexpr double kMostHeight = 0.25;   // of the chart, above the plot
constexpr double kBesideAxes = 72;     // design px that the plot may be narrower than the chart

constexpr double kAboveName = 2; // px; letters are clipped a pixel above where they end

// Measures in design px.
struct LegendMeasures {
    QSizeF icon;
    double iconGap = 0;
    double columnGap = 0;
};

LegendMeasures measures(LegendKind kind) {
    if (kind == LegendKind::Line) {
        return {.icon = {20, 14}, .iconGap = 4, .columnGap = 8};
    }
    return {.icon = {26, 16}, .iconGap = 7, .columnGap = 8};
}

// The curve's sign and its name, with ions typeset as such.
class LegendEntry final : public QCPAbstractLegendItem {
  public:
    LegendEntry(QCPLegend& legend, const QCPCurve& curve, TermLayout name)
        : QCPAbstractLegendItem(&legend), curve_(curve), name_(std::move(name)) {}

    QSize minimumOuterSizeHint() const override {
        const QSize icon = mParentLegend->iconSize();
        const double height = std::max<double>(icon.height(), name_.height() + 2 * kAboveName);
        return {icon.width() + mParentLegend->iconTextPadding() +
                    static_cast<int>(std::ceil(name_.width())),
                static_cast<int>(std::ceil(height))};
    }

  protected:
    void draw(QCPPainter* painter) override {
        const QSize icon = mParentLegend->iconSize();
        const double middle = rect().top() + rect().height() / 2.0;
        drawSign(*painter, {double(rect().left()), middle}, icon.width());
        // Names with and without a raised charge share one baseline.
        const QFontMetricsF metrics(mParentLegend->font());
        painter->setPen(mParentLegend->textColor());
        name_.paint(*painter,
                    {double(rect().left() + icon.width() + mParentLegend->iconTextPadding()),
                     std::round(middle + (metrics.ascent() - metrics.descent()) / 2)});
    }

  private:
    void drawSign(QCPPainter& painter, QPointF left, double width) const {
        painter.setAntialiasing(true);
        if (curve_.lineStyle() != QCPCurve::lsNone) {
            painter.setPen(curve_.pen());
            painter.drawLine(QLineF(left, left + QPointF(width, 0)));
        }
        const QCPScatterStyle sign = curve_.scatterStyle();
        if (!sign.isNone()) {
            sign.applyTo(&painter, curve_.pen());
            sign.drawShape(&painter, left + QPointF(width / 2, 0));
        }
    }

    const QCPCurve& curve_;
    TermLayout name_;
};

const std::string& nameOf(const ChartSeries& series, LegendKind kind) {
    return kind == LegendKind::Line && !series.shortName.empty() ? series.shortName : series.name;
}

class LegendBuilder {
  public:
    LegendBuilder(const ChartSnapshot& chart, LegendKind kind, double scale)
        : chart_(chart), kind_(kind), scale_(scale), measures_(measures(kind)) {}

    // As many columns as were asked for if they fit in any size that can be read, else fewer.
    void fit(double lettering, std::size_t columns, double width) {
        set(lettering);
        for (double size = lettering - 0.5; size >= kLeastLettering; size -= 0.5) {
            if (widthOf(columns) <= width) {
                break;
            }
            set(size);
        }
        while (columns > 1 && widthOf(columns) > width) {
            --columns;
        }
        columns_ = columns;
    }
    void set(double lettering) {
        lettering_ = lettering;
        names_.clear();
        for (const ChartSeries& series : chart_.series) {
            names_.emplace_back(chemicalTerm(nameOf(series, kind_)), FontSpec{.size = lettering},
                                scale_);
        }
    }

    double height() const {
        const std::size_t rows = (names_.size() + columns_ - 1) / columns_;
        double tallest = measures_.icon.height() * scale_;
        for (const TermLayout& name : names_) {
            tallest = std::max(tallest, name.height() + 2 * kAboveName);
        }
        return static_cast<double>(rows) * tallest;
    }

    void fill(QCPLegend& legend, const std::vector<QCPCurve*>& curves) const {
        legend.setVisible(true);
        legend.setFont(look::font(lettering_, scale_));
        legend.setTextColor(look::kInk);
        legend.setIconSize(px(measures_.icon.width()), px(measures_.icon.height()));
        legend.setIconTextPadding(px(measures_.iconGap));
        legend.setFillOrder(QCPLayoutGrid::foColumnsFirst);
        legend.setWrap(static_cast<int>(columns_));
        legend.setColumnSpacing(px(measures_.columnGap));
        for (std::size_t i = 0; i < curves.size(); ++i) {
            legend.addItem(new LegendEntry(legend, *curves[i], names_[i])); // the legend owns it
        }
    }

  private:
    int px(double design) const { return static_cast<int>(std::lround(design * scale_)); }

    double widthOf(std::size_t columns) const {
        std::vector<double> widths(columns, 0.0);
        for (std::size_t i = 0; i < names_.size(); ++i) {
            widths[i % columns] = std::max(widths[i % columns], std::ceil(names_[i].width()));
        }
        double sum = 0;
        for (const double width : widths) {
            sum += width + px(measures_.icon.width()) + px(measures_.iconGap);
        }
        return sum + static_cast<double>(columns - 1) * px(measures_.columnGap);
    }

    const ChartSnapshot& chart_;
    LegendKind kind_;
    double scale_;
    LegendMeasures measures_;
    double lettering_ = 0;
    std::vector<TermLayout> names_;
    std::size_t columns_ = 1;
};

Qt::Alignment alignment(ChartSnapshot::Corner corner) {
    switch (corner) {
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

QMargins allAround(double width) {
    return QMargins(1, 1, 1, 1) * static_cast<int>(width);
}

void putInCorner(QCustomPlot& plot, Qt::Alignment corner, double scale) {
    QCPLegend& legend = *plot.legend;
    legend.setBrush(QColor(255, 255, 255, 235));
    legend.setBorderPen(QPen(look::kBorder, scale));
    legend.setMargins(allAround(8 * scale));
    legend.setRowSpacing(static_cast<int>(2 * scale));
    plot.axisRect()->insetLayout()->setInsetAlignment(0, corner);
    plot.axisRect()->insetLayout()->setMargins(allAround(12 * scale));
}

// As wide as the plot below it.
void putAbove(QCustomPlot& plot, double scale) {
    QCPLegend& legend = *plot.legend;
    legend.setBrush(Qt::NoBrush);
    legend.setBorderPen(Qt::NoPen);
    legend.setRowSpacing(0);
    plot.axisRect()->insetLayout()->take(&legend);
    plot.plotLayout()->insertRow(0);
    plot.plotLayout()->addElement(0, 0, &legend);
    plot.plotLayout()->setRowStretchFactor(0, 0.001);
    plot.plotLayout()->setRowSpacing(static_cast<int>(2 * scale));
    legend.setMargins({0, static_cast<int>(2 * scale), 0, 0});
    auto* group = new QCPMarginGroup(&plot); // the plot owns it
    legend.setAutoMargins(QCP::msLeft | QCP::msRight);
    legend.setMarginGroup(QCP::msLeft | QCP::msRight, group);
    plot.axisRect()->setMarginGroup(QCP::msLeft | QCP::msRight, group);
    QMargins least = plot.axisRect()->minimumMargins();
    least.setTop(static_cast<int>(2 * scale));
    plot.axisRect()->setMinimumMargins(least);
}

} // namespace

LegendKind legendKind(const ChartSnapshot& chart, QSizeF size) {
    if (chart.series.empty() || size.width() < kLeastSize.width() ||
        size.height() < kLeastSize.height()) {
        return LegendKind::None;
    }
    if (size.height() < kFullHeight) {
        return LegendKind::Line;
    }
    if (chart.series.size() > kMostInCorner) {
        return LegendKind::Rows;
    }
    return chart.empty() ? LegendKind::None : LegendKind::Corner;
}

void addLegend(QCustomPlot& plot, const ChartSnapshot& chart, const std::vector<QCPCurve*>& curves,
               LegendKind kind, double lettering, double scale, QSizeF size) {
    if (kind == LegendKind::None) {
        return;
    }
    LegendBuilder builder(chart, kind, scale);
    if (kind == LegendKind::Corner) {
        builder.set(lettering);
        builder.fill(*plot.legend, curves);
        putInCorner(plot, alignment(chart.freeCorner()), scale);
        return;
    }
    builder.fit(lettering, kind == LegendKind::Line ? curves.size() : kRow,
                size.width() - kBesideAxes * scale);
    if (builder.height() <= kMostHeight * size.height()) {
        builder.fill(*plot.legend, curves);
        putAbove(plot, scale);
    }
}

} // namespace quendal
