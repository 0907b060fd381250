#include "desktop/pictures/command_painter.h"

#include "desktop/pictures/bit_join.h"
#include "desktop/pictures/desktop_picture.h"
#include "desktop/pictures/stamp_cache.h"
#include "desktop/pictures/stretch.h"
#include "desktop/windows/look.h"

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

StampCache& stamps() {
    static StampCache cache;
    return cache;
}

Stretcher& stretcher() {
    static Stretcher kept;
    return kept;
}

const DesktopPicture* pictureOf(const DrawCommand& command) {
    return dynamic_cast<const DesktopPicture*>(command.picture.get());
}

// Far beyond any screen, and still far from where whole numbers end.
constexpr double kFarthest = 1 << 24;

int wholePixel(double at) {
    return static_cast<int>(std::lround(std::clamp(at, -kFarthest, kFarthest)));
}

// What `from` has in the part of a box that is left.
QRectF partOf(const QRectF& from, const QRectF& box, const QRectF& left) {
    const double across = from.width() / box.width();
    const double down = from.height() / box.height();
    return {from.x() + (left.x() - box.x()) * across, from.y() + (left.y() - box.y()) * down,
            left.width() * across, left.height() * down};
}

// Pixels of the copy for one of the picture.
double scaleOf(const StretchBoxes& boxes) {
    return std::max(boxes.to.width() / boxes.from.width(), boxes.to.height() / boxes.from.height());
}

// A copy much larger than the image, which would need much memory.
bool isHuge(QSize copy, QSize image) {
    return copy.width() > 2 * image.width() || copy.height() > 2 * image.height();
}

// Keeps to what can be seen of a huge copy.
StretchBoxes cutToTarget(const StretchBoxes& boxes, const QRect& target) {
    if (!isHuge(boxes.to.size(), target.size())) {
        return boxes;
    }
    const QRect seen = boxes.to & target;
    return {seen, partOf(boxes.from, boxes.to, seen)};
}

QSize sizeOf(const Picture& picture, const Stretch& stretch) {
    return {std::max(1, static_cast<int>(std::lround(picture.width() * stretch.x))),
            std::max(1, static_cast<int>(std::lround(picture.height() * stretch.y)))};
}

} // namespace

void CommandPainter::clip(const QRegion& pixels) {
    clip_ = pixels;
    painter_.setClipRegion(pixels);
}

QPoint CommandPainter::pixel(Point point) const {
    return {wholePixel(point.x * stretch_.x), wholePixel(point.y * stretch_.y)};
}

double CommandPainter::width(double units) const {
    return std::max(1.0, units * stretch_.smaller());
}

QRect CommandPainter::place(const DrawCommand& command) const {
    if (command.kind == DrawCommand::Kind::Stretch) {
        return {pixel(command.a), pixel(command.b) - QPoint(1, 1)};
    }
    if (command.kind == DrawCommand::Kind::Box) {
        const Point least{std::min(command.a.x, command.b.x), std::min(command.a.y, command.b.y)};
        const Point most{std::max(command.a.x, command.b.x), std::max(command.a.y, command.b.y)};
        return {pixel(least), pixel({most.x + 1, most.y + 1}) - QPoint(1, 1)};
    }
    return {pixel(command.a), sizeOf(*command.picture, stretch_)};
}

std::pair<std::size_t, QRect> CommandPainter::largestCover(const QRect& pixels) const {
    std::pair<std::size_t, QRect> largest;
    const auto area = [](const QRect& box) { return std::int64_t{box.width()} * box.height(); };
    for (std::size_t i = 0; i < list_.size(); ++i) {
        if (!list_.commands()[i].opaque) {
            continue;
        }
        const QRect hidden = place(list_.commands()[i]) & pixels;
        if (area(hidden) >= area(largest.second)) {
            largest = {i, hidden};
        }
    }
    return largest;
}

void CommandPainter::paint(std::size_t first, std::size_t end) {
    for (std::size_t i = first; i < end; ++i) {
        paint(list_.commands()[i]);
    }
}

void CommandPainter::paint(const DrawCommand& command) {
    switch (command.kind) {
    case DrawCommand::Kind::Line:
        line(command);
        break;
    case DrawCommand::Kind::Box:
        box(command);
        break;
    case DrawCommand::Kind::Circle:
        stamps().circle(painter_, middle(command.a),
                        {command.size * stretch_.smaller(), width(1), command.color,
                         command.fillColor, command.fillStyle});
        break;
    case DrawCommand::Kind::Polygon:
        polygon(command);
        break;
    case DrawCommand::Kind::Text:
        stamps().text(painter_, {command.a.x * stretch_.x, command.a.y * stretch_.y},
                      list_.text(command), list_.font(command), stretch_.smaller(), command.color);
        break;
    case DrawCommand::Kind::Copy:
        copy(command);
        break;
    case DrawCommand::Kind::Stretch:
        stretch(command);
        break;
    }
}

void CommandPainter::line(const DrawCommand& command) {
    const QColor color = look::toQColor(command.color);
    const QPointF from = middle(command.a);
    const QPointF to = middle(command.b);
    const double thick = std::round(width(command.size));
    // Upright and level lines on whole pixels, so that scales and grids stay sharp.
    if (command.a.y == command.b.y) {
        const double left = std::round(std::min(from.x(), to.x()));
        const double right = std::round(std::max(from.x(), to.x()));
        painter_.fillRect(QRectF(left, std::round(from.y() - thick / 2), right - left, thick),
                          color);
    } else if (command.a.x == command.b.x) {
        const double top = std::round(std::min(from.y(), to.y()));
        const double bottom = std::round(std::max(from.y(), to.y()));
        painter_.fillRect(QRectF(std::round(from.x() - thick / 2), top, thick, bottom - top),
                          color);
    } else {
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setPen(QPen(color, width(command.size)));
        painter_.drawLine(from, to);
    }
}

void CommandPainter::box(const DrawCommand& command) {
    const double left = std::round(std::min(command.a.x, command.b.x) * stretch_.x);
    const double top = std::round(std::min(command.a.y, command.b.y) * stretch_.y);
    const double right = std::round((std::max(command.a.x, command.b.x) + 1) * stretch_.x);
    const double bottom = std::round((std::max(command.a.y, command.b.y) + 1) * stretch_.y);
    painter_.fillRect(QRectF(left, top, right - left, bottom - top), look::toQColor(command.color));
}

void CommandPainter::polygon(const DrawCommand& command) {
    static std::vector<QPointF> corners; // kept, so that no frame needs memory for it
    corners.clear();
    for (const Point& corner : list_.corners(command)) {
        corners.push_back(middle(corner));
    }
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(
        QPen(look::toQColor(command.color), width(1), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter_.setBrush(command.fillStyle == FillStyle::Solid
                          ? QBrush(look::toQColor(command.fillColor))
                          : QBrush(Qt::NoBrush));
    painter_.drawPolygon(corners.data(), static_cast<int>(corners.size()));
}

void CommandPainter::copy(const DrawCommand& command) {
    const DesktopPicture* picture = pictureOf(command);
    if (picture == nullptr) {
        return;
    }
    const QRect to = place(command);
    if (isHuge(to.size(), target_.size())) {
        stretch(*picture, {to, QRectF(0, 0, picture->width(), picture->height())},
                RasterOp::SrcCopy);
    } else {
        painter_.drawImage(to.topLeft(), picture->prepared(to.size()));
    }
}

void CommandPainter::stretch(const DrawCommand& command) {
    const DesktopPicture* picture = pictureOf(command);
    if (picture == nullptr) {
        return;
    }
    const Rect& from = command.from;
    const QRectF part(from.left, from.top, from.width, from.height);
    const QRectF exact(QPointF(command.a.x * stretch_.x, command.a.y * stretch_.y),
                       QPointF(command.b.x * stretch_.x, command.b.y * stretch_.y));
    if (QRectF(-kFarthest, -kFarthest, 2 * kFarthest, 2 * kFarthest).contains(exact)) {
        stretch(*picture, {place(command), part}, command.operation);
        return;
    }
    const QRectF seen = exact & QRectF(target_.rect());
    stretch(*picture, {seen.toRect(), partOf(part, exact, seen)}, command.operation);
}

void CommandPainter::stretch(const DesktopPicture& picture, const StretchBoxes& whole,
                             RasterOp operation) {
    const StretchBoxes boxes = cutToImage(whole, {picture.width(), picture.height()});
    if ((boxes.to & clip_.boundingRect()).isEmpty()) {
        return;
    }
    if (operation == RasterOp::SrcCopy && picture.opaque()) {
        stretchCopy(picture, boxes);
    } else {
        join(picture, cutToTarget(boxes, target_.rect()), operation);
    }
}

void CommandPainter::join(const DesktopPicture& picture, const StretchBoxes& boxes,
                          RasterOp operation) {
    if (operation == RasterOp::SrcCopy) {
        const bool whole = boxes.from == QRectF(QPointF(), QSizeF(boxes.to.size())) &&
                           boxes.to.size() == QSize(picture.width(), picture.height());
        painter_.drawImage(boxes.to.topLeft(), whole ? picture.detail(boxes.from, 1).image
                                                     : picture.cut(boxes.from, boxes.to.size()));
        return;
    }
    const DesktopPicture::Detail best = picture.passingDetail(boxes.from, scaleOf(boxes));
    for (const QRect& part : clip_) {
        joinBits(target_, part, best.image, {boxes.to, best.from}, operation);
    }
}

void CommandPainter::stretchCopy(const DesktopPicture& picture, const StretchBoxes& boxes) {
    const DesktopPicture::Detail best = picture.detail(boxes.from, scaleOf(boxes));
    for (const QRect& part : clip_) {
        stretcher().copy(target_, part, best.image, {boxes.to, best.from});
    }
}

} // namespace quendal
