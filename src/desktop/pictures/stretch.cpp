#include "desktop/pictures/stretch.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace quendal {

namespace {

constexpr unsigned kWhole = 256; // weight of a pixel that stands alone
constexpr std::uint32_t kOpaque = 0xff000000U;
constexpr std::uint32_t kColours = 0x00ffffffU;

// Two channels at once, each with the empty byte above it for the carry.
std::uint32_t mixed(std::uint32_t first, std::uint32_t second, unsigned weight) {
    constexpr std::uint32_t kChannels = 0x00ff00ffU;
    constexpr std::uint32_t kHalf = 0x00800080U;
    const unsigned rest = kWhole - weight;
    const std::uint32_t low =
        ((first & kChannels) * rest + (second & kChannels) * weight + kHalf) >> 8;
    const std::uint32_t high =
        ((first >> 8) & kChannels) * rest + ((second >> 8) & kChannels) * weight + kHalf;
    return (low & kChannels) | (high & ~kChannels);
}

// Byte by byte, which the compiler turns into wide operations.
void mixLines(const std::uint32_t* first, const std::uint32_t* second, unsigned weight,
              std::uint32_t* out, std::size_t pixels) {
    const auto* a = reinterpret_cast<const std::uint8_t*>(first);
    const auto* b = reinterpret_cast<const std::uint8_t*>(second);
    auto* to = reinterpret_cast<std::uint8_t*>(out);
    const auto rest = static_cast<std::uint16_t>(kWhole - weight);
    const auto part = static_cast<std::uint16_t>(weight);
    for (std::size_t i = 0; i < pixels * 4; ++i) {
        to[i] = static_cast<std::uint8_t>(
            static_cast<std::uint16_t>(a[i] * rest + b[i] * part + kWhole / 2) >> 8);
    }
}

// Index of the pixel of the source that lies under the middle of pixel `at` of the copy.
std::vector<int> nearestIndices(double start, double length, int size, int last) {
    std::vector<int> indices(static_cast<std::size_t>(size));
    for (int at = 0; at < size; ++at) {
        const double place = start + (at + 0.5) * length / size;
        indices[static_cast<std::size_t>(at)] =
            std::clamp(static_cast<int>(std::floor(place)), 0, last);
    }
    return indices;
}

const std::uint32_t* lineOf(const QImage& image, int row) {
    return reinterpret_cast<const std::uint32_t*>(image.constScanLine(row));
}
std::uint32_t* lineOf(QImage& image, int row) {
    return reinterpret_cast<std::uint32_t*>(image.scanLine(row));
}

QImage blackAsNothing(const QImage& source) {
    QImage keyed = source.convertToFormat(QImage::Format_ARGB32);
    for (int row = 0; row < keyed.height(); ++row) {
        std::uint32_t* pixels = lineOf(keyed, row);
        for (int i = 0; i < keyed.width(); ++i) {
            pixels[i] = (pixels[i] & kColours) == 0 ? 0 : pixels[i];
        }
    }
    return keyed;
}

QImage nearestCopy(const QImage& source, const QRectF& from, QSize size) {
    QImage copy(size, source.format());
    const std::vector<int> columns =
        nearestIndices(from.left(), from.width(), size.width(), source.width() - 1);
    const std::vector<int> rows =
        nearestIndices(from.top(), from.height(), size.height(), source.height() - 1);
    for (int row = 0; row < size.height(); ++row) {
        const std::uint32_t* pixels = lineOf(source, rows[static_cast<std::size_t>(row)]);
        std::uint32_t* out = lineOf(copy, row);
        for (const int column : columns) {
            *out++ = pixels[column];
        }
    }
    return copy;
}

QImage smoothCopy(const QImage& source, const QRectF& from, QSize size) {
    return source.copy(from.toAlignedRect())
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32);
}

std::uint32_t joinedWhole(std::uint32_t there, std::uint32_t pixel, RasterOp operation) {
    const std::uint32_t colours = pixel & kColours;
    if (operation == RasterOp::SrcAnd) {
        const std::uint32_t solid = colours == kColours ? 0 : kOpaque;
        return (there & (kOpaque | colours)) | solid;
    }
    return (there ^ colours) | (colours == 0 ? 0 : kOpaque);
}

std::uint32_t joined(std::uint32_t there, std::uint32_t pixel, RasterOp operation) {
    const std::uint32_t opacity = pixel >> 24;
    if (opacity == 0xff) {
        return joinedWhole(there, pixel, operation);
    }
    return opacity == 0 ? there : mixed(there, joinedWhole(there, pixel, operation), opacity + 1);
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
            static_cast<unsigned>(std::lround((place - floor) * kWhole))};
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
        *out++ = mixed(pixels[column.first], pixels[column.second], column.weight);
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
        } else if (place.weight == kWhole) {
            std::memcpy(out, line(source, place.second).data(), columns_.size() * 4);
        } else {
            const std::uint32_t* upper = line(source, place.first).data();
            const std::uint32_t* lower = line(source, place.second).data();
            mixLines(upper, lower, place.weight, out, columns_.size());
        }
    }
}

QImage maskCopy(const QImage& source, const QRectF& from, QSize size) {
    QImage copy = nearestCopy(source, from, size).convertToFormat(QImage::Format_ARGB32);
    const QImage smooth = smoothCopy(source, from, size);
    for (int row = 0; row < size.height(); ++row) {
        const std::uint32_t* pixels = lineOf(smooth, row);
        std::uint32_t* out = lineOf(copy, row);
        for (int i = 0; i < size.width(); ++i) {
            const int lightest = std::max({qRed(pixels[i]), qGreen(pixels[i]), qBlue(pixels[i])});
            if (out[i] == (kOpaque | kColours) && lightest < 0xff) {
                out[i] = qRgba(0, 0, 0, 0xff - lightest);
            }
        }
    }
    return copy;
}

QImage invertCopy(const QImage& source, const QRectF& from, QSize size) {
    QImage copy = nearestCopy(source, from, size);
    const QImage smooth = smoothCopy(blackAsNothing(source), from, size);
    for (int row = 0; row < size.height(); ++row) {
        const std::uint32_t* pixels = lineOf(smooth, row);
        std::uint32_t* out = lineOf(copy, row);
        for (int i = 0; i < size.width(); ++i) {
            const bool colour = (out[i] & kColours) != 0 && (pixels[i] & kOpaque) != 0;
            out[i] = colour ? (out[i] & kOpaque) | (pixels[i] & kColours) : out[i];
        }
    }
    return copy;
}

void joinBits(QImage& target, const QRect& clip, const QImage& source, QPoint place,
              RasterOp operation) {
    const QRect part = clip & target.rect() & QRect(place, source.size());
    for (int row = part.top(); row <= part.bottom(); ++row) {
        const std::uint32_t* pixels = lineOf(source, row - place.y()) + (part.left() - place.x());
        std::uint32_t* out = lineOf(target, row) + part.left();
        for (int i = 0; i < part.width(); ++i) {
            out[i] = joined(out[i], pixels[i], operation);
        }
    }
}

} // namespace quendal
