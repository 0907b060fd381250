#include "desktop/files/text_bytes.h"
#include "desktop/files/wmf_drawing.h"
#include "fuzz_input.h"
#include "host/picture_bytes.h"

#include <cmath>

namespace quendal {
namespace {

void check(Point place) {
    require(std::abs(place.x) <= kWmfFarthest && std::abs(place.y) <= kWmfFarthest);
}

void check(const Rect& box) {
    check(Point{box.left, box.top});
    require(box.width >= 0 && box.width <= 2 * kWmfFarthest);
    require(box.height >= 0 && box.height <= 2 * kWmfFarthest);
}

std::size_t check(const std::vector<Point>& points) {
    for (const Point& point : points) {
        check(point);
    }
    return points.size();
}

// Each gives the number of its points.

std::size_t check(const WmfPolygon& polygon) {
    std::size_t points = 0;
    for (const auto& ring : polygon.rings) {
        points += check(ring);
    }
    return points;
}

std::size_t check(const WmfPolyline& line) {
    return check(line.points);
}

std::size_t check(const WmfEllipse& ellipse) {
    check(ellipse.box);
    return 0;
}

std::size_t check(const WmfRectangle& rectangle) {
    check(rectangle.box);
    require(rectangle.corner.width >= 0 && rectangle.corner.width <= rectangle.box.width);
    require(rectangle.corner.height >= 0 && rectangle.corner.height <= rectangle.box.height);
    return 0;
}

std::size_t check(const WmfArc& arc) {
    check(arc.box);
    require(std::abs(arc.start) <= 360 && arc.sweep > 0 && arc.sweep <= 360);
    return 0;
}

std::size_t check(const WmfText& text) {
    require(!text.text.empty() && isUtf8(text.text) && isUtf8(text.font.family));
    require(text.font.height >= 0 && text.font.height <= kWmfTallestText);
    check(text.place);
    for (const double advance : text.advances) {
        require(std::isfinite(advance));
    }
    return 0;
}

void check(const WmfDrawing& drawing) {
    require(drawing.size.width > 0 && drawing.size.width <= kLargestPictureSide);
    require(drawing.size.height > 0 && drawing.size.height <= kLargestPictureSide);
    require(drawing.shapes.size() <= kWmfShapeLimit);
    std::size_t points = 0;
    for (const WmfShape& shape : drawing.shapes) {
        points += std::visit([](const auto& form) { return check(form); }, shape.form);
        require(shape.pen.width > 0 && shape.pen.width <= kWmfWidestPen);
        if (shape.clip) {
            require(shape.clip->width >= 0 && shape.clip->height >= 0);
        }
    }
    require(points <= kWmfPointLimit);
}

} // namespace
} // namespace quendal

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    const std::string_view bytes = fuzzText(data, size);
    const WmfReading reading = readWmf(bytes);
    require(reading.drawing.has_value() == reading.fault.empty());
    if (reading.drawing) {
        // Both hosts know its size.
        require(placeableHead(bytes).has_value());
        check(*reading.drawing);
    }
    return 0;
}
