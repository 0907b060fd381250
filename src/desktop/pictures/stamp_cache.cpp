#include "desktop/pictures/stamp_cache.h"

#include "desktop/windows/look.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <functional>

namespace quendal {

namespace {

constexpr std::size_t kMostStamps = 6000;
constexpr qsizetype kMostBytes = 8 << 20; // beyond either all are made anew
constexpr double kLargest = 120;          // radius above which copying costs more than drawing
constexpr int kPhases = 4;                // of a pixel, on either axis
constexpr int kMargin = 2;
constexpr std::size_t kLongestText = 48;

std::uint64_t packed(Color color) {
    return (std::uint64_t{color.r} << 16) | (std::uint64_t{color.g} << 8) | color.b;
}

std::uint64_t mixed(std::uint64_t hash, std::uint64_t value) {
    hash ^= value + 0x9e3779b97f4a7c15U + (hash << 6) + (hash >> 2);
    return hash * 0xff51afd7ed558ccdU;
}

void drawCircle(QPainter& painter, QPointF centre, const StampCache::CircleLook& look) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look::toQColor(look.outline), look.outlineWidth));
    painter.setBrush(look.fillStyle == FillStyle::Solid ? QBrush(look::toQColor(look.fill))
                                                        : QBrush(Qt::NoBrush));
    painter.drawEllipse(centre, look.radius, look.radius);
}

// Which quarter of its pixel a place falls into.
int phaseOf(double place) {
    return std::clamp(static_cast<int>((place - std::floor(place)) * kPhases), 0, kPhases - 1);
}

} // namespace

QImage StampCache::stored(const QImage& painted) {
    if (bytes_ + painted.sizeInBytes() > kMostBytes ||
        circles_.size() + texts_.size() >= kMostStamps) {
        circles_.clear();
        texts_.clear();
        bytes_ = 0;
    }
    bytes_ += painted.sizeInBytes();
    return painted.copy();
}

void StampCache::circle(QPainter& painter, QPointF centre, const CircleLook& look) {
    if (!(look.radius >= 0) || look.radius > kLargest) {
        if (look.radius > kLargest) {
            drawCircle(painter, centre, look);
        }
        return;
    }
    const int phaseX = phaseOf(centre.x());
    const int phaseY = phaseOf(centre.y());
    // Exact while radius and width stay below 128 and 16 pixels: 11 + 8 bits in steps of 1/16.
    const auto radius = static_cast<std::uint64_t>(std::lround(look.radius * 16));
    const auto width = static_cast<std::uint64_t>(std::lround(look.outlineWidth * 16));
    std::uint64_t key = mixed(packed(look.outline) << 24 | packed(look.fill), radius << 8 | width);
    key = mixed(key, static_cast<std::uint64_t>(phaseX * kPhases + phaseY) << 1 |
                         (look.fillStyle == FillStyle::Solid ? 1U : 0U));
    const int reach = static_cast<int>(std::ceil(look.radius + look.outlineWidth)) + kMargin;
    auto known = circles_.find(key);
    if (known == circles_.end()) {
        QImage stamp(2 * reach, 2 * reach, QImage::Format_ARGB32_Premultiplied);
        stamp.fill(Qt::transparent);
        QPainter stampPainter(&stamp);
        drawCircle(stampPainter,
                   QPointF(reach + (phaseX + 0.5) / kPhases, reach + (phaseY + 0.5) / kPhases),
                   look);
        stampPainter.end();
        known = circles_.emplace(key, stored(stamp)).first;
    }
    painter.drawImage(QPoint(static_cast<int>(std::floor(centre.x())) - reach,
                             static_cast<int>(std::floor(centre.y())) - reach),
                      known->second);
}

void StampCache::text(QPainter& painter, QPointF place, std::string_view text, const FontSpec& font,
                      double scale, Color color) {
    const auto shown = [&] {
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    };
    const QColor ink = look::toQColor(color);
    if (text.size() > kLongestText) {
        painter.setFont(look::font(font, scale));
        painter.setPen(ink);
        painter.drawText(QRectF(place, QSizeF(1e5, 1e5)), Qt::AlignLeft | Qt::AlignTop, shown());
        return;
    }
    std::uint64_t key = mixed(std::hash<std::string_view>{}(text), packed(color));
    key = mixed(key, static_cast<std::uint64_t>(std::lround(font.size * scale * 16)) << 2 |
                         (font.bold ? 2U : 0U) | (font.italic ? 1U : 0U));
    auto known = texts_.find(key);
    const bool same = known != texts_.end() && known->second.text == text &&
                      known->second.font == font && known->second.scale == scale &&
                      known->second.color == color;
    if (!same) {
        const QFont face = look::font(font, scale);
        const QFontMetricsF metrics(face);
        QImage image(static_cast<int>(std::ceil(metrics.horizontalAdvance(shown()))) + 2 * kMargin,
                     static_cast<int>(std::ceil(metrics.height())) + 2 * kMargin,
                     QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter stampPainter(&image);
        stampPainter.setFont(face);
        stampPainter.setPen(ink);
        stampPainter.drawText(QPointF(kMargin, kMargin + metrics.ascent()), shown());
        stampPainter.end();
        QImage stamp = stored(image); // may clear the list
        known = texts_
                    .insert_or_assign(
                        key, TextStamp{std::string(text), font, scale, color, std::move(stamp)})
                    .first;
    }
    painter.drawImage(QPoint(static_cast<int>(std::lround(place.x())) - kMargin,
                             static_cast<int>(std::lround(place.y())) - kMargin),
                      known->second.image);
}

} // namespace quendal
