#include "desktop/pictures/sprite_renderer.h"

#include "desktop/pictures/sprite_outlines.h"
#include "desktop/pictures/sprite_spans.h"
#include "host/picture_bytes.h"

#include <QPolygonF>

#include <optional>

namespace quendal {

namespace {

constexpr Color kKeyColor{255, 0, 255};
constexpr std::size_t kMostEdges = 1'000'000; // of all outlines; some 40 bytes each

// The key colour clears before anything is filtered, so that none of it gets into the edges.
std::uint32_t pixelOf(Color color) {
    return color == kKeyColor ? 0 : qRgb(color.r, color.g, color.b);
}

Rect scaled(const Rect& box, const QTransform& toPixels) {
    return {box.left * toPixels.m11(), box.top * toPixels.m22(), box.width * toPixels.m11(),
            box.height * toPixels.m22()};
}

SpriteArea areaOf(const SpriteOutline& outline, const Rect& clip) {
    const bool winding = outline.path.fillRule() == Qt::WindingFill;
    SpriteArea area(pixelOf(outline.color), winding ? WmfFillRule::Winding : WmfFillRule::Alternate,
                    clip);
    std::vector<Point> ring;
    for (const QPolygonF& polygon : outline.path.toSubpathPolygons()) {
        ring.clear();
        for (const QPointF& point : polygon) {
            ring.push_back({point.x(), point.y()});
        }
        area.addRing(ring);
    }
    return area;
}

Rect cut(const Rect& a, const Rect& b) {
    const QRectF both =
        QRectF(a.left, a.top, a.width, a.height) & QRectF(b.left, b.top, b.width, b.height);
    return {both.x(), both.y(), both.width(), both.height()};
}

// Nullopt when there are too many edges.
std::optional<std::vector<SpriteArea>> areasOf(const WmfDrawing& drawing, const Rect& whole) {
    const QTransform toPixels =
        QTransform::fromScale(whole.width / drawing.size.width, whole.height / drawing.size.height);
    std::vector<SpriteArea> areas;
    std::size_t edges = 0;
    for (const WmfShape& shape : drawing.shapes) {
        const Rect clip = shape.clip ? cut(whole, scaled(*shape.clip, toPixels)) : whole;
        for (const SpriteOutline& outline : spriteOutlines(shape, toPixels, kFineness)) {
            areas.push_back(areaOf(outline, clip));
            edges += areas.back().edges();
        }
        if (edges > kMostEdges) {
            return std::nullopt;
        }
    }
    return areas;
}

} // namespace

QImage renderSprite(const WmfDrawing& drawing, QSize size) {
    if (!isPictureSize(size.width(), size.height())) {
        return {};
    }
    const Rect whole{0, 0, double(size.width()) * kFineness, double(size.height()) * kFineness};
    const auto areas = areasOf(drawing, whole);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    if (!areas || image.isNull()) {
        return {};
    }
    auto* pixels = reinterpret_cast<std::uint32_t*>(image.bits());
    const auto stride = static_cast<std::size_t>(image.bytesPerLine()) / sizeof(std::uint32_t);
    const bool painted = paintSpriteAreas(*areas, size.width(), size.height(), pixels, stride);
    return painted ? image : QImage();
}

} // namespace quendal
