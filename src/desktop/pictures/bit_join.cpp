#include "desktop/pictures/bit_join.h"

#include "desktop/pictures/pixel_mix.h"

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr std::uint32_t kOpaque = 0xff000000U;
constexpr std::uint32_t kColours = 0x00ffffffU;

// Pixels of the source along one axis that a pixel of the copy stands for.
struct Range {
    double start = 0;
    double end = 0;

    int first() const { return static_cast<int>(std::floor(start)); }
    int beyond() const { return static_cast<int>(std::ceil(end)); }
    // How much of the source's pixel `at` lies in it.
    float share(int at) const {
        return static_cast<float>(std::min(end, at + 1.0) - std::max(start, double(at)));
    }
};

// One axis of the copy and of the part of the source that it shows.
struct Axis {
    int toStart;
    int toLength;
    double fromStart;
    double fromLength;
    int size; // of the source

    double middle(int at) const { return fromStart + (at - toStart + 0.5) * fromLength / toLength; }
    int nearest(int at) const {
        return std::clamp(static_cast<int>(std::floor(middle(at))), 0, size - 1);
    }
    // A whole pixel of the source at least: larger copies go smoothly from one to the next.
    Range range(int at) const {
        const double half = std::max(1.0, fromLength / toLength) / 2;
        const double least = std::max(0.0, std::floor(fromStart));
        const double most = std::min<double>(size, std::ceil(fromStart + fromLength));
        return {std::max(least, middle(at) - half), std::min(most, middle(at) + half)};
    }
};

// Colours, each times how much of it there is.
struct Sum {
    float red = 0;
    float green = 0;
    float blue = 0;
    float weight = 0;

    void add(const Sum& part, float share) {
        red += part.red * share;
        green += part.green * share;
        blue += part.blue * share;
        weight += part.weight * share;
    }
    std::uint32_t mean() const {
        const auto part = [this](float sum) { return static_cast<int>(std::lround(sum / weight)); };
        return weight > 0 ? qRgb(part(red), part(green), part(blue)) : 0;
    }
};

const std::uint32_t* lineOf(const QImage& image, int row) {
    return reinterpret_cast<const std::uint32_t*>(image.constScanLine(row));
}

// The lines of a copy between `left` and `right`, each pixel the mean of those that it stands for.
class MeanLines {
  public:
    MeanLines(const QImage& source, const Axis& across, int left, int right, RasterOp operation)
        : source_(source), skipsBlack_(operation == RasterOp::SrcInvert),
          means_(static_cast<std::size_t>(right - left)) {
        for (int at = left; at < right; ++at) {
            ranges_.push_back(across.range(at));
        }
        first_ = ranges_.front().first();
        sums_.resize(static_cast<std::size_t>(ranges_.back().beyond() - first_));
    }

    // 0 where there is nothing but black that is skipped.
    const std::vector<std::uint32_t>& line(const Range& rows) {
        std::fill(sums_.begin(), sums_.end(), Sum{});
        for (int row = rows.first(); row < rows.beyond(); ++row) {
            addRow(lineOf(source_, row) + first_, rows.share(row));
        }
        for (std::size_t i = 0; i < means_.size(); ++i) {
            means_[i] = mean(ranges_[i]);
        }
        return means_;
    }

  private:
    void addRow(const std::uint32_t* pixels, float share) {
        for (Sum& sum : sums_) {
            const std::uint32_t pixel = *pixels++;
            if (!skipsBlack_ || (pixel & kColours) != 0) {
                sum.add({float(qRed(pixel)), float(qGreen(pixel)), float(qBlue(pixel)), 1}, share);
            }
        }
    }
    std::uint32_t mean(const Range& columns) const {
        Sum sum;
        for (int column = columns.first(); column < columns.beyond(); ++column) {
            sum.add(sums_[static_cast<std::size_t>(column - first_)], columns.share(column));
        }
        return sum.mean();
    }

    const QImage& source_;
    bool skipsBlack_;
    int first_ = 0; // column of the source
    std::vector<Range> ranges_;
    std::vector<Sum> sums_;
    std::vector<std::uint32_t> means_;
};

std::uint32_t softened(std::uint32_t nearest, std::uint32_t mean, RasterOp operation) {
    if (operation == RasterOp::SrcAnd) {
        const int lightest = std::max({qRed(mean), qGreen(mean), qBlue(mean)});
        const bool atEdge = nearest == (kOpaque | kColours) && lightest < 0xff;
        return atEdge ? qRgba(0, 0, 0, 0xff - lightest) : nearest;
    }
    const bool colour = (nearest & kColours) != 0 && mean != 0;
    return colour ? (nearest & kOpaque) | (mean & kColours) : nearest;
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
    return opacity == 0 ? there
                        : mixedPixels(there, joinedWhole(there, pixel, operation), opacity + 1);
}

} // namespace

void joinBits(QImage& target, const QRect& clip, const QImage& source, const StretchBoxes& boxes,
              RasterOp operation) {
    const QRect part = clip & target.rect() & boxes.to;
    if (part.isEmpty()) {
        return;
    }
    const QImage plain =
        source.hasAlphaChannel() ? source.convertToFormat(QImage::Format_ARGB32) : source;
    const Axis across{boxes.to.left(), boxes.to.width(), boxes.from.left(), boxes.from.width(),
                      plain.width()};
    const Axis down{boxes.to.top(), boxes.to.height(), boxes.from.top(), boxes.from.height(),
                    plain.height()};
    const int end = part.right() + 1;
    MeanLines means(plain, across, part.left(), end, operation);
    for (int row = part.top(); row <= part.bottom(); ++row) {
        const std::uint32_t* mean = means.line(down.range(row)).data();
        const std::uint32_t* pixels = lineOf(plain, down.nearest(row));
        auto* out = reinterpret_cast<std::uint32_t*>(target.scanLine(row)) + part.left();
        for (int at = part.left(); at < end; ++at, ++out, ++mean) {
            const std::uint32_t nearest = pixels[across.nearest(at)];
            *out = joined(*out, softened(nearest, *mean, operation), operation);
        }
    }
}

} // namespace quendal
