#include "desktop/pictures/sprite_outlines.h"

#include "desktop/pictures/sprite_text.h"

#include <QPainterPathStroker>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

// Beyond it a dashed line is a grey smear, and its dashes cost memory without end.
constexpr double kMostDashes = 2000;

QPointF toQt(Point point) {
    return {point.x, point.y};
}
QRectF toQt(const Rect& box) {
    return {box.left, box.top, box.width, box.height};
}

void addPoints(QPainterPath& path, const std::vector<Point>& points) {
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i == 0) {
            path.moveTo(toQt(points[i]));
        } else {
            path.lineTo(toQt(points[i]));
        }
    }
}

QPainterPath pathOf(const WmfPolygon& polygon) {
    QPainterPath path;
    for (const std::vector<Point>& ring : polygon.rings) {
        addPoints(path, ring);
        path.closeSubpath();
    }
    path.setFillRule(polygon.rule == WmfFillRule::Winding ? Qt::WindingFill : Qt::OddEvenFill);
    return path;
}

QPainterPath pathOf(const WmfPolyline& line) {
    QPainterPath path;
    addPoints(path, line.points);
    return path;
}

QPainterPath pathOf(const WmfEllipse& ellipse) {
    QPainterPath path;
    path.addEllipse(toQt(ellipse.box));
    return path;
}

QPainterPath pathOf(const WmfRectangle& rectangle) {
    QPainterPath path;
    path.addRoundedRect(toQt(rectangle.box), rectangle.corner.width / 2,
                        rectangle.corner.height / 2);
    return path;
}

QPainterPath pathOf(const WmfArc& arc) {
    const QRectF box = toQt(arc.box);
    QPainterPath path;
    if (arc.kind == WmfArc::Kind::Pie) {
        path.moveTo(box.center());
    } else {
        path.arcMoveTo(box, arc.start);
    }
    path.arcTo(box, arc.start, arc.sweep);
    if (arc.kind != WmfArc::Kind::Open) {
        path.closeSubpath();
    }
    return path;
}

// Texts have no outline of this kind.
QPainterPath pathOf(const WmfText& /*text*/) {
    return {};
}

Qt::PenCapStyle toQt(WmfPen::Cap cap) {
    return cap == WmfPen::Cap::Round    ? Qt::RoundCap
           : cap == WmfPen::Cap::Square ? Qt::SquareCap
                                        : Qt::FlatCap;
}

Qt::PenJoinStyle toQt(WmfPen::Join join) {
    return join == WmfPen::Join::Round   ? Qt::RoundJoin
           : join == WmfPen::Join::Bevel ? Qt::BevelJoin
                                         : Qt::MiterJoin;
}

Qt::PenStyle toQt(WmfPen::Style style) {
    switch (style) {
    case WmfPen::Style::Dash:
        return Qt::DashLine;
    case WmfPen::Style::Dot:
        return Qt::DotLine;
    case WmfPen::Style::DashDot:
        return Qt::DashDotLine;
    case WmfPen::Style::DashDotDot:
        return Qt::DashDotDotLine;
    case WmfPen::Style::Solid:
    case WmfPen::Style::None:
        break;
    }
    return Qt::SolidLine;
}

// `path` and `width` in pixels.
QPainterPath stroke(const QPainterPath& path, const WmfPen& pen, double width) {
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(toQt(pen.cap));
    stroker.setJoinStyle(toQt(pen.join));
    if (pen.style != WmfPen::Style::Solid && path.length() < kMostDashes * width) {
        stroker.setDashPattern(toQt(pen.style));
    }
    return stroker.createStroke(path);
}

bool isOpen(const WmfShape& shape) {
    const auto* arc = std::get_if<WmfArc>(&shape.form);
    return std::holds_alternative<WmfPolyline>(shape.form) ||
           (arc != nullptr && arc->kind == WmfArc::Kind::Open);
}

} // namespace

std::vector<SpriteOutline> spriteOutlines(const WmfShape& shape, const QTransform& toPixels,
                                          double thinnest) {
    if (const auto* text = std::get_if<WmfText>(&shape.form)) {
        return textOutlines(*text, toPixels);
    }
    std::vector<SpriteOutline> outlines;
    const QPainterPath path =
        toPixels.map(std::visit([](const auto& form) { return pathOf(form); }, shape.form));
    if (shape.fill && !isOpen(shape)) {
        outlines.push_back({path, *shape.fill});
    }
    if (shape.pen.style != WmfPen::Style::None) {
        const double scale = std::sqrt(std::abs(toPixels.determinant()));
        const double width = std::max(thinnest, shape.pen.width * scale);
        outlines.push_back({stroke(path, shape.pen, width), shape.pen.color});
    }
    return outlines;
}

} // namespace quendal
