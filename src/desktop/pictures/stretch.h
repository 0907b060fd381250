// Copies of a part of an image, stretched, pixel by pixel. Fast enough for a whole screen at every
// frame.
#pragma once

#include "host/surface.h"

#include <QImage>
#include <QRectF>

#include <cstdint>
#include <vector>

namespace quendal {

// The part of an image that is stretched, and the box of the target that it fills.
struct StretchBoxes {
    QRect to;
    QRectF from;
};

// Cuts off what `from` has beyond an image of `size`; the box shrinks with it. Empty when nothing
// is left.
StretchBoxes cutToImage(StretchBoxes boxes, QSize size);

class Stretcher {
  public:
    // Writes the part of the stretched copy that lies in `clip` over what is there, with smooth
    // transitions. Both images have 32 opaque bits a pixel.
    void copy(QImage& target, const QRect& clip, const QImage& source, const StretchBoxes& boxes);

  private:
    // Where a pixel of the target looks in a line of the source: between `first` and the next one.
    struct Look {
        int first = 0;
        int second = 0;
        unsigned weight = 0; // of the second, of 256
    };
    struct Line {
        int row = -1; // of the source; -1: nothing in it
        std::vector<std::uint32_t> pixels;
    };

    static void look(std::vector<Look>& looks, int clipStart, int clipEnd, int toStart,
                     int toLength, double fromStart, double fromLength);
    const std::vector<std::uint32_t>& line(const QImage& source, int row);

    // Kept, so that no frame needs memory for them.
    std::vector<Look> columns_;
    std::vector<Look> rows_;
    Line lines_[2];
    bool straight_ = false; // the columns of the source as they are
};

} // namespace quendal
