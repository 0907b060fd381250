// Small shapes that are drawn many times a frame, rendered once and then only copied.
#pragma once

#include "host/color.h"
#include "host/font.h"
#include "host/surface.h"

#include <QImage>
#include <QPointF>

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

class QPainter;

namespace quendal {

// All sizes and places in device pixels.
class StampCache {
  public:
    struct CircleLook {
        double radius = 0;
        double outlineWidth = 1;
        Color outline;
        Color fill;
        FillStyle fillStyle = FillStyle::Solid;
    };

    // Places are kept to a quarter of a pixel, so that slow bodies move evenly.
    void circle(QPainter& painter, QPointF centre, const CircleLook& look);
    // `place` is the left upper corner.
    void text(QPainter& painter, QPointF place, std::string_view text, const FontSpec& font,
              double scale, Color color);

  private:
    struct TextStamp {
        std::string text;
        FontSpec font;
        double scale = 0;
        Color color;
        QImage image;
    };

    // The stamp without what the toolkit keeps with an image that was painted on, which is more
    // than the stamp itself. Makes room where it is needed.
    QImage stored(const QImage& painted);

    std::unordered_map<std::uint64_t, QImage> circles_;
    std::unordered_map<std::uint64_t, TextStamp> texts_;
    qsizetype bytes_ = 0; // of all stamps
};

} // namespace quendal
