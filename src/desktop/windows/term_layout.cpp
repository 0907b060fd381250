#include "desktop/windows/term_layout.h"

#include "desktop/windows/look.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

// Measures of the setting, in parts of the font's size.
constexpr double kScriptSize = 0.72;
constexpr double kDrop = 0.20;      // of a subscript below the baseline
constexpr double kRise = 0.38;      // of a superscript above it
constexpr double kAxis = 0.28;      // height of a fraction's bar above the baseline
constexpr double kBarGap = 0.10;    // between the bar and what stands above and below
constexpr double kBarMargin = 0.15; // of the bar beyond the wider of the two
constexpr double kLeastShare = 0.55;
constexpr int kLeastPixels = 8;

QFont fontOf(const FontSpec& spec, double pixelSize) {
    FontSpec sized = spec;
    sized.size = pixelSize;
    return look::font(sized, 1.0);
}

} // namespace

TermLayout::TermLayout(const std::string& markup, const FontSpec& spec, double scale, QSizeF box) {
    const Term term = parseTerm(markup);
    const int asked = std::max(1, static_cast<int>(std::lround(spec.size * scale)));
    const int least =
        std::min(asked, std::max(kLeastPixels, static_cast<int>(asked * kLeastShare)));
    set(term, spec, asked);
    if (box.isEmpty()) {
        return;
    }
    for (int size = asked; size > least && (width_ > box.width() || height() > box.height());) {
        set(term, spec, --size);
    }
}

void TermLayout::set(const Term& term, const FontSpec& spec, int pixelSize) {
    runs_.clear();
    bars_.clear();
    pixelSize_ = pixelSize;
    const Extent extent = place(term, spec, pixelSize, {0, 0});
    width_ = extent.width;
    ascent_ = extent.ascent;
    descent_ = extent.descent;
}

TermLayout::Extent TermLayout::place(const Term& term, const FontSpec& spec, double pixelSize,
                                     QPointF start) {
    const QFontMetricsF base(fontOf(spec, pixelSize));
    Extent whole{0, base.ascent(), base.descent()};
    for (const TermPiece& piece : term) {
        const QPointF at = start + QPointF(whole.width, 0);
        if (piece.fraction) {
            const Extent part = placeFraction(*piece.fraction, spec, pixelSize, at);
            whole.ascent = std::max(whole.ascent, part.ascent);
            whole.descent = std::max(whole.descent, part.descent);
            whole.width += part.width;
            continue;
        }
        const bool script = piece.style != TermStyle::Plain;
        const double offset = piece.style == TermStyle::Subscript     ? kDrop * pixelSize
                              : piece.style == TermStyle::Superscript ? -kRise * pixelSize
                                                                      : 0.0;
        Run run{at + QPointF(0, offset), fontOf(spec, pixelSize * (script ? kScriptSize : 1.0)),
                QString::fromStdString(piece.text)};
        const QFontMetricsF metrics(run.font);
        whole.ascent = std::max(whole.ascent, metrics.ascent() - offset);
        whole.descent = std::max(whole.descent, metrics.descent() + offset);
        whole.width += metrics.horizontalAdvance(run.text);
        runs_.push_back(std::move(run));
    }
    return whole;
}

TermLayout::Extent TermLayout::placeFraction(const TermFraction& fraction, const FontSpec& spec,
                                             double pixelSize, QPointF start) {
    const double gap = kBarGap * pixelSize;
    const double margin = kBarMargin * pixelSize;
    const double axis = kAxis * pixelSize;
    const double thickness = std::max(1.0, std::round(pixelSize / 14));

    const Mark begin = mark();
    const Extent top = place(fraction.numerator, spec, pixelSize, {0, 0});
    const Mark middle = mark();
    const Extent bottom = place(fraction.denominator, spec, pixelSize, {0, 0});

    const double inner = std::max(top.width, bottom.width);
    const double above = -axis - thickness / 2 - gap - top.descent;
    const double below = -axis + thickness / 2 + gap + bottom.ascent;
    shift(begin, middle, start + QPointF(margin * 2 + (inner - top.width) / 2, above));
    shift(middle, mark(), start + QPointF(margin * 2 + (inner - bottom.width) / 2, below));
    bars_.push_back({start + QPointF(margin, -axis), inner + 2 * margin, thickness});
    return {inner + 4 * margin, top.ascent - above, below + bottom.descent};
}

void TermLayout::shift(Mark from, Mark to, QPointF by) {
    for (std::size_t i = from.run; i < to.run; ++i) {
        runs_[i].place += by;
    }
    for (std::size_t i = from.bar; i < to.bar; ++i) {
        bars_[i].from += by;
    }
}

void TermLayout::paint(QPainter& painter, QPointF start) const {
    for (const Run& run : runs_) {
        painter.setFont(run.font);
        painter.drawText(start + run.place, run.text);
    }
    const QColor ink = painter.pen().color();
    for (const Bar& bar : bars_) {
        const QPointF from = start + bar.from;
        // On whole pixels, so that thin bars stay sharp.
        painter.fillRect(
            QRectF(from.x(), std::round(from.y() - bar.thickness / 2), bar.length, bar.thickness),
            ink);
    }
}

} // namespace quendal
