#include "desktop/pictures/stretch.h"

#include "desktop/pictures/pixel_mix.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace quendal {

namespace {

// Byte by byte, which the compiler turns into wide operations.
void mixLines(const std::uint32_t* first, const std::uint32_t* second, unsigned weight,
              std::uint32_t* out, std::size_t pixels) {
    const auto* a = reinterpret_cast<const std::uint8_t*>(first);
    const auto* b = reinterpret_cast<const std::uint8_t*>(second);
    auto* to = reinterpret_cast<std::uint8_t*>(out);
    const auto rest = static_cast<std::uint16_t>(kWholeWeight - weight);
    const auto part = static_cast<std::uint16_t>(weight);
    for (std::size_t i = 0; i < pixels * 4; ++i) {
        to[i] = static_cast<std::uint8_t>(
            static_cast<std::uint16_t>(a[i] * rest + b[i] * part + kWholeWeight / 2) >> 8);
    }
}

const std::uint32_t* lineOf(const QImage& image, int row) {
    return reinterpret_cast<const std::uint32_t*>(image.constScanLine(row));
}
std::uint32_t* lineOf(QImage& image, int row) {
    return reinterpret_cast<std::uint32_t*>(image.scanLine(row));
}

} // namespace

StretchBoxes cutToImage(StretchBoxes boxes, QSize size) {
    const QRectF& from = boxes.from;
    const QRectF inside = from & QRectF(QPointF(0, 0), QSizeF(size));
    if (inside == from || boxes.to.isEmpty() || inside.isEmpty()) {
        return {inside.isEmpty() ? QRect() : boxes.to, inside};
    }
    const double across = boxes.to.width() / from.width();
    const double down = boxes.to.height() / from.height();
    const auto edge = [](double at) { return static_cast<int>(std::lround(at)); };
    const int left = boxes.to.x() + edge((inside.left() - from.left()) * across);
    const int top = boxes.to.y() + edge((inside.top() - from.top()) * down);
    const int right = boxes.to.x() + edge((inside.right() - from.left()) * across);
    const int bottom = boxes.to.y() + edge((inside.bottom() - from.top()) * down);
    return {QRect(left, top, right - left, bottom - top), inside};
}

void Stretcher::look(std::vector<Look>& looks, int clipStart, int clipEnd, int toStart,
                     int toLength, double fromStart, double fromLength) {
    const int least = static_cast<int>(std::floor(fromStart));
    const int most = std::max(least, static_cast<int>(std::ceil(fromStart + fromLength)) - 1);
    const double step = fromLength / toLength;
    looks.resize(static_cast<std::size_t>(clipEnd - clipStart));
    for (int at = clipStart; at < clipEnd; ++at) {
        // From the middle of one pixel to the middle of the other.
        const double place = fromStart + (at - toStart + 0.5) * step - 0.5;
        const double floor = std::floor(place);
        const int first = static_cast<int>(floor);
        looks[static_cast<std::size_t>(at - clipStart)] = {
            std::clamp(first, least, most), std::clamp(first + 1, least, most),
            static_cast<unsigned>(std::lround((place - floor) * kWholeWeight))};
    }
}

// A row of the source, stretched across. The two made last are kept: neighbours in the target
// mostly want the same ones.
const std::vector<std::uint32_t>& Stretcher::line(const QImage& source, int row) {
    Line& kept = lines_[row & 1];
    if (kept.row == row) {
        return kept.pixels;
    }
    kept.row = row;
    kept.pixels.resize(columns_.size());
    const std::uint32_t* pixels = lineOf(source, row);
    if (straight_) {
        std::memcpy(kept.pixels.data(), pixels + columns_.front().first, columns_.size() * 4);
        return kept.pixels;
    }
    std::uint32_t* out = kept.pixels.data();
    for (const Look& column : columns_) {
        *out++ = mixedPixels(pixels[column.first], pixels[column.second], column.weight);
    }
    return kept.pixels;
}

void Stretcher::copy(QImage& target, const QRect& clip, const QImage& source,
                     const StretchBoxes& boxes) {
    const QRect& to = boxes.to;
    const QRectF& from = boxes.from;
    const QRect part = clip & to & target.rect();
    if (part.isEmpty() || from.isEmpty()) {
        return;
    }
    look(columns_, part.left(), part.right() + 1, to.left(), to.width(), from.left(), from.width());
    look(rows_, part.top(), part.bottom() + 1, to.top(), to.height(), from.top(), from.height());
    straight_ = from.width() == to.width() && from.left() == std::floor(from.left());
    lines_[0].row = lines_[1].row = -1;
    for (int row = part.top(); row <= part.bottom(); ++row) {
        const Look& place = rows_[static_cast<std::size_t>(row - part.top())];
        std::uint32_t* out = lineOf(target, row) + part.left();
        if (place.weight == 0 || place.first == place.second) {
            std::memcpy(out, line(source, place.first).data(), columns_.size() * 4);
        } else if (place.weight == kWholeWeight) {
            std::memcpy(out, line(source, place.second).data(), columns_.size() * 4);
        } else {
            const std::uint32_t* upper = line(source, place.first).data();
            const std::uint32_t* lower = line(source, place.second).data();
            mixLines(upper, lower, place.weight, out, columns_.size());
        }
    }
}

} // namespace quendal
