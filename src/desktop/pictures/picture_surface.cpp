#include "desktop/pictures/picture_surface.h"

#include "desktop/pictures/desktop_picture.h"
#include "desktop/pictures/stamp_cache.h"
#include "desktop/windows/look.h"
#include "host/pictures.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

// Whoever never clears its picture piles up commands; beyond this they are fixed as pixels.
constexpr std::size_t kMostCommands = 4096;

StampCache& stamps() {
    static StampCache cache;
    return cache;
}

// Paints commands at a scale. A point of the logic is the middle of a design px.
class CommandPainter {
  public:
    CommandPainter(QPainter& painter, const DrawList& list, double scale)
        : painter_(painter), list_(list), scale_(scale) {}

    void paint(const DrawCommand& command) {
        switch (command.kind) {
        case DrawCommand::Kind::Line:
            line(command);
            break;
        case DrawCommand::Kind::Box:
            box(command);
            break;
        case DrawCommand::Kind::Circle:
            stamps().circle(painter_, middle(command.a),
                            {command.size * scale_, std::max(1.0, scale_), command.color,
                             command.fillColor, command.fillStyle});
            break;
        case DrawCommand::Kind::Polygon:
            polygon(command);
            break;
        case DrawCommand::Kind::Text:
            stamps().text(painter_, {command.a.x * scale_, command.a.y * scale_},
                          list_.text(command), list_.font(command), scale_, command.color);
            break;
        case DrawCommand::Kind::Copy:
            copy(command);
            break;
        }
    }

  private:
    QPointF middle(Point point) const {
        return {(point.x + 0.5) * scale_, (point.y + 0.5) * scale_};
    }

    void line(const DrawCommand& command) {
        const QColor color = look::toQColor(command.color);
        const QPointF from = middle(command.a);
        const QPointF to = middle(command.b);
        const double width = std::max(1.0, std::round(command.size * scale_));
        // Upright and level lines on whole pixels, so that scales and grids stay sharp.
        if (command.a.y == command.b.y) {
            const double left = std::round(std::min(from.x(), to.x()));
            const double right = std::round(std::max(from.x(), to.x()));
            painter_.fillRect(QRectF(left, std::round(from.y() - width / 2), right - left, width),
                              color);
        } else if (command.a.x == command.b.x) {
            const double top = std::round(std::min(from.y(), to.y()));
            const double bottom = std::round(std::max(from.y(), to.y()));
            painter_.fillRect(QRectF(std::round(from.x() - width / 2), top, width, bottom - top),
                              color);
        } else {
            painter_.setRenderHint(QPainter::Antialiasing);
            painter_.setPen(QPen(color, std::max(1.0, command.size * scale_)));
            painter_.drawLine(from, to);
        }
    }

    void box(const DrawCommand& command) {
        const double left = std::round(std::min(command.a.x, command.b.x) * scale_);
        const double top = std::round(std::min(command.a.y, command.b.y) * scale_);
        const double right = std::round((std::max(command.a.x, command.b.x) + 1) * scale_);
        const double bottom = std::round((std::max(command.a.y, command.b.y) + 1) * scale_);
        painter_.fillRect(QRectF(left, top, right - left, bottom - top),
                          look::toQColor(command.color));
    }

    void polygon(const DrawCommand& command) {
        static std::vector<QPointF> corners; // kept, so that no frame needs memory for it
        corners.clear();
        for (const Point& corner : list_.corners(command)) {
            corners.push_back(middle(corner));
        }
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setPen(QPen(look::toQColor(command.color), std::max(1.0, scale_), Qt::SolidLine,
                             Qt::RoundCap, Qt::RoundJoin));
        painter_.setBrush(command.fillStyle == FillStyle::Solid
                              ? QBrush(look::toQColor(command.fillColor))
                              : QBrush(Qt::NoBrush));
        painter_.drawPolygon(corners.data(), static_cast<int>(corners.size()));
    }

    void copy(const DrawCommand& command) {
        const auto* picture = dynamic_cast<const DesktopPicture*>(command.picture.get());
        if (picture != nullptr) {
            painter_.drawImage(QPoint(static_cast<int>(std::lround(command.a.x * scale_)),
                                      static_cast<int>(std::lround(command.a.y * scale_))),
                               picture->prepared(scale_));
        }
    }

    QPainter& painter_;
    const DrawList& list_;
    double scale_;
};

QRect devicePixels(const QRectF& box, double scale) {
    return QRectF(box.left() * scale, box.top() * scale, box.width() * scale, box.height() * scale)
        .toAlignedRect()
        .adjusted(-1, -1, 1, 1);
}

} // namespace

double PictureSurface::ScaleWidth() const {
    return owner_->place().width;
}
double PictureSurface::ScaleHeight() const {
    return owner_->place().height;
}

void PictureSurface::Clear() {
    recording_.clear();
    cleared_ = true;
}

void PictureSurface::Line(Point from, Point to, Color color, double width) {
    recording_.add(
        {.kind = DrawCommand::Kind::Line, .color = color, .a = from, .b = to, .size = width});
}

void PictureSurface::Box(Point from, Point to, Color color) {
    recording_.add({.kind = DrawCommand::Kind::Box, .color = color, .a = from, .b = to});
}

void PictureSurface::Circle(Point centre, double radius, Color outline) {
    recording_.add({.kind = DrawCommand::Kind::Circle,
                    .fillStyle = fillStyle(),
                    .color = outline,
                    .fillColor = fillColor(),
                    .a = centre,
                    .size = radius});
}

void PictureSurface::Polygon(std::span<const Point> corners, Color outline) {
    recording_.addPolygon({.kind = DrawCommand::Kind::Polygon,
                           .fillStyle = fillStyle(),
                           .color = outline,
                           .fillColor = fillColor()},
                          corners);
}

void PictureSurface::Text(Point place, std::string_view text, const FontSpec& font, Color color) {
    recording_.addText({.kind = DrawCommand::Kind::Text, .color = color, .a = place}, text, font);
}

void PictureSurface::Copy(const PicturePtr& picture, Point place) {
    if (picture != nullptr) {
        recording_.add({.kind = DrawCommand::Kind::Copy, .a = place, .picture = picture});
    }
}

void PictureSurface::setBackdrop(Backdrop backdrop) {
    backdrop_ = std::move(backdrop);
    invalidate();
}

QRectF PictureSurface::whole() const {
    return {0, 0, ScaleWidth(), ScaleHeight()};
}

QRectF PictureSurface::finish() {
    QRectF changed;
    if (cleared_) {
        changed = baked_.isNull() ? recording_.difference(shown_) : whole();
        std::swap(recording_, shown_);
        baked_ = QImage();
    } else {
        changed = recording_.bounds();
        shown_.append(recording_);
    }
    recording_.clear();
    cleared_ = false;
    changed &= whole();
    dirty_ |= changed;
    if (shown_.size() > kMostCommands && !image_.isNull()) {
        bake();
    }
    return changed;
}

void PictureSurface::bake() {
    baked_ = image(image_.size(), scale_).copy();
    shown_.clear();
}

void PictureSurface::invalidate() {
    dirty_ = whole();
}

void PictureSurface::paintGround(QPainter& painter, double scale) {
    const QRectF box(QPointF(0, 0), QSizeF(image_.size()));
    if (!baked_.isNull()) {
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(box, baked_);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        return;
    }
    if (owner_->overlay()) {
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(box, Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    } else {
        painter.fillRect(box, look::toQColor(owner_->backcolor()));
    }
    if (const auto* picture = dynamic_cast<const DesktopPicture*>(owner_->picture().get())) {
        // In its own size, smaller where the box is, in the middle.
        const double fit = std::min({scale, box.width() / std::max(1, picture->width()),
                                     box.height() / std::max(1, picture->height())});
        const QImage& prepared = picture->prepared(fit);
        painter.drawImage(QPoint(static_cast<int>((box.width() - prepared.width()) / 2),
                                 static_cast<int>((box.height() - prepared.height()) / 2)),
                          prepared);
    }
    if (backdrop_) {
        painter.save();
        backdrop_(painter, box, scale);
        painter.restore();
    }
}

const QImage& PictureSurface::image(QSize size, double scale) {
    const QImage::Format format =
        owner_->overlay() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    if (image_.size() != size || image_.format() != format || scale_ != scale) {
        image_ = QImage(size.expandedTo({1, 1}), format);
        scale_ = scale;
        invalidate();
    }
    if (dirty_.isEmpty()) {
        return image_;
    }
    const QRect pixels = devicePixels(dirty_, scale) & image_.rect();
    QPainter painter(&image_);
    painter.setClipRect(pixels);
    paintGround(painter, scale);
    CommandPainter commands(painter, shown_, scale);
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        commands.paint(shown_.commands()[i]);
    }
    dirty_ = QRectF();
    return image_;
}

} // namespace quendal
