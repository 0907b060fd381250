#include "desktop/pictures/draw_list.h"

#include "desktop/windows/look.h"

#include <QFontMetricsF>

#include <algorithm>

namespace quendal {

namespace {

// Looking for what a box hides is worth its while when it is at least this part of the surface.
constexpr double kSmallestCover = 16;

QRectF boxOf(Point a, Point b, double margin) {
    return QRectF(QPointF(std::min(a.x, b.x), std::min(a.y, b.y)),
                  QPointF(std::max(a.x, b.x), std::max(a.y, b.y)))
        .adjusted(-margin, -margin, margin, margin);
}

QRectF boundsOf(std::span<const Point> corners, double margin) {
    if (corners.empty()) {
        return {};
    }
    Point least = corners.front();
    Point most = corners.front();
    for (const Point& corner : corners) {
        least = {std::min(least.x, corner.x), std::min(least.y, corner.y)};
        most = {std::max(most.x, corner.x), std::max(most.y, corner.y)};
    }
    return boxOf(least, most, margin);
}

} // namespace

void DrawList::clear() {
    commands_.clear();
    points_.clear();
    texts_.clear();
    fonts_.clear();
}

void DrawList::addPolygon(DrawCommand command, std::span<const Point> corners) {
    command.first = points_.size();
    command.count = corners.size();
    points_.insert(points_.end(), corners.begin(), corners.end());
    commands_.push_back(command);
}

void DrawList::addText(DrawCommand command, std::string_view text, const FontSpec& font) {
    command.first = texts_.size();
    command.count = text.size();
    texts_.append(text);
    const auto known = std::find(fonts_.begin(), fonts_.end(), font);
    command.font = static_cast<std::size_t>(known - fonts_.begin());
    if (known == fonts_.end()) {
        fonts_.push_back(font);
    }
    commands_.push_back(command);
}

void DrawList::append(const DrawList& other, std::size_t index) {
    const DrawCommand& command = other.commands_[index];
    if (command.kind == DrawCommand::Kind::Polygon) {
        addPolygon(command, other.corners(command));
    } else if (command.kind == DrawCommand::Kind::Text) {
        addText(command, other.text(command), other.font(command));
    } else {
        add(command);
    }
}

void DrawList::append(const DrawList& other, const QRectF& whole) {
    const bool frame = other.hidesAny(whole);
    for (std::size_t i = 0; i < other.size(); ++i) {
        if (other.hides(i, whole)) {
            dropBeneath(cover(other.commands_[i]), whole);
        } else if (frame && other.commands_[i].kind == DrawCommand::Kind::Line) {
            dropSameLine(other.commands_[i]);
        }
        append(other, i);
    }
}

// The outline of a box reaches beyond it, so that the box of the next frame doesn't cover it.
void DrawList::dropSameLine(const DrawCommand& line) {
    std::erase_if(commands_, [&](const DrawCommand& other) {
        return other.kind == DrawCommand::Kind::Line && other.a == line.a && other.b == line.b &&
               other.size == line.size && other.color == line.color;
    });
}

bool DrawList::hides(std::size_t index, const QRectF& whole) const {
    const QRectF box = cover(commands_[index]);
    const bool large =
        box.width() * box.height() * kSmallestCover >= whole.width() * whole.height();
    return !box.isEmpty() && (commands_[index].kind != DrawCommand::Kind::Box || large);
}

bool DrawList::hidesAny(const QRectF& whole) const {
    for (std::size_t i = 0; i < size(); ++i) {
        if (hides(i, whole)) {
            return true;
        }
    }
    return false;
}

void DrawList::dropBeneath(const QRectF& box, const QRectF& whole) {
    const auto hidden = [&](std::size_t index) {
        const QRectF own = cover(commands_[index]);
        const QRectF place = (own.isEmpty() ? bounds(index) : own) & whole;
        return place.isEmpty() || box.contains(place);
    };
    DrawList left;
    for (std::size_t i = 0; i < size(); ++i) {
        if (!hidden(i)) {
            left.append(*this, i);
        }
    }
    if (left.empty()) {
        clear(); // and keep the memory
    } else if (left.size() < size()) {
        std::swap(*this, left);
    }
}

QRectF DrawList::cover(const DrawCommand& command) {
    if (!command.opaque) {
        return {};
    }
    if (command.kind == DrawCommand::Kind::Stretch) {
        return boxOf(command.a, command.b, 0);
    }
    if (command.kind == DrawCommand::Kind::Box) {
        return boxOf(command.a, command.b, 0).adjusted(0, 0, 1, 1);
    }
    // Its size in device pixels is rounded apart from its place, so that its far edges are certain
    // only where it begins at 0.
    const double width = command.picture->width() - (command.a.x == 0 ? 0 : 1);
    const double height = command.picture->height() - (command.a.y == 0 ? 0 : 1);
    return {command.a.x, command.a.y, width, height};
}

std::span<const Point> DrawList::corners(const DrawCommand& command) const {
    return std::span(points_).subspan(command.first, command.count);
}

std::string_view DrawList::text(const DrawCommand& command) const {
    return std::string_view(texts_).substr(command.first, command.count);
}

QRectF DrawList::bounds(std::size_t index) const {
    const DrawCommand& command = commands_[index];
    switch (command.kind) {
    case DrawCommand::Kind::Line:
        return boxOf(command.a, command.b, command.size + 1);
    case DrawCommand::Kind::Box:
        return boxOf(command.a, command.b, 2);
    case DrawCommand::Kind::Circle:
        return boxOf(command.a, command.a, command.size + 2);
    case DrawCommand::Kind::Polygon:
        return boundsOf(corners(command), 2);
    case DrawCommand::Kind::Text: {
        const std::string_view bytes = text(command);
        const QFontMetricsF metrics(look::font(font(command), 1.0));
        const double width = metrics.horizontalAdvance(
            QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size())));
        return QRectF(command.a.x, command.a.y, width * 1.1, metrics.height() * 1.1)
            .adjusted(-2, -2, 2, 2);
    }
    case DrawCommand::Kind::Copy:
        return command.picture == nullptr
                   ? QRectF()
                   : QRectF(command.a.x - 1, command.a.y - 1, command.picture->width() + 2,
                            command.picture->height() + 2);
    case DrawCommand::Kind::Stretch:
        return boxOf(command.a, command.b, 0.5);
    }
    return {};
}

QRectF DrawList::bounds() const {
    QRectF all;
    for (std::size_t i = 0; i < commands_.size(); ++i) {
        all |= bounds(i);
    }
    return all;
}

bool DrawList::same(std::size_t index, const DrawList& other) const {
    const DrawCommand& one = commands_[index];
    const DrawCommand& two = other.commands_[index];
    if (one.kind != two.kind || !(one.a == two.a) || !(one.b == two.b) || one.size != two.size ||
        !(one.color == two.color) || one.count != two.count) {
        return false;
    }
    switch (one.kind) {
    case DrawCommand::Kind::Circle:
        return one.fillStyle == two.fillStyle && one.fillColor == two.fillColor;
    case DrawCommand::Kind::Polygon: {
        const auto mine = corners(one);
        const auto its = other.corners(two);
        return one.fillStyle == two.fillStyle && one.fillColor == two.fillColor &&
               std::equal(mine.begin(), mine.end(), its.begin());
    }
    case DrawCommand::Kind::Text:
        return text(one) == other.text(two) && font(one) == other.font(two);
    case DrawCommand::Kind::Copy:
    case DrawCommand::Kind::Stretch:
        return one.picture == two.picture && one.from == two.from && one.operation == two.operation;
    default:
        return true;
    }
}

QRectF DrawList::difference(const DrawList& shown) const {
    const std::size_t common = std::min(size(), shown.size());
    QRectF dirty;
    for (std::size_t i = 0; i < common; ++i) {
        if (!same(i, shown)) {
            dirty |= bounds(i) | shown.bounds(i);
        }
    }
    for (std::size_t i = common; i < size(); ++i) {
        dirty |= bounds(i);
    }
    for (std::size_t i = common; i < shown.size(); ++i) {
        dirty |= shown.bounds(i);
    }
    return dirty;
}

} // namespace quendal
