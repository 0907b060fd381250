#include "particles/lens_zoom.h"

#include <algorithm>

namespace quendal {

namespace {

struct Span {
    double from = 0;
    double to = 0;
};

Span ordered(double one, double other, double most) {
    const auto [least, largest] = std::minmax(one, other);
    return {std::clamp(least, 0.0, most), std::clamp(largest, 0.0, most)};
}

// At least one px long and inside the picture.
Span atLeastOnePixel(double from, double length, double most) {
    const double size = std::min(std::max(length, 1.0), most);
    const double start = std::clamp(from, 0.0, most - size);
    return {start, start + size};
}

} // namespace

Rect sourceOnScreen(double left, double top, double right, double bottom, Size screen) {
    const Span across = ordered(left, right, screen.width);
    const Span down = ordered(top, bottom, screen.height);
    return {across.from, down.from, across.to - across.from, down.to - down.from};
}

int zoomHundredths(double seconds) {
    return static_cast<int>(std::clamp(seconds, 0.0, 1.0) * 100);
}

Rect zoomedRect(const Rect& source, Size whole, int hundredths) {
    const double q = hundredths;
    const double left = source.left - source.left * q / 100;
    const double top = source.top - source.top * q / 100;
    const double right = source.right() + (whole.width - source.right()) * q / 100;
    const double bottom = source.bottom() + (whole.height - source.bottom()) * q / 100;
    return {left, top, right - left, bottom - top};
}

Rect magnifiedPart(const Rect& source, Size picture) {
    const Span across = atLeastOnePixel(source.left, source.width, picture.width);
    const Span down = atLeastOnePixel(source.top, source.height, picture.height);
    return {across.from, down.from, across.to - across.from, down.to - down.from};
}

} // namespace quendal
