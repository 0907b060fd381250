#include "desktop/pictures/picture_surface.h"

#include "desktop/pictures/desktop_picture.h"
#include "desktop/windows/look.h"
#include "host/pictures.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

// Whoever never clears its picture piles up commands; beyond this they are fixed as pixels.
constexpr std::size_t kMostCommands = 4096;

QRect devicePixels(const QRectF& box, const Stretch& stretch) {
    return QRectF(box.left() * stretch.x, box.top() * stretch.y, box.width() * stretch.x,
                  box.height() * stretch.y)
        .toAlignedRect()
        .adjusted(-1, -1, 1, 1);
}

bool isOpaque(const PicturePtr& picture) {
    const auto* known = dynamic_cast<const DesktopPicture*>(picture.get());
    return known != nullptr && known->opaque();
}

} // namespace

double PictureSurface::ScaleWidth() const {
    return surfaceScale(*owner_).width;
}
double PictureSurface::ScaleHeight() const {
    return surfaceScale(*owner_).height;
}

Size PictureSurface::TextSize(std::string_view text, const FontSpec& font) const {
    const double scale = stretch_.smaller();
    const QFontMetricsF metrics(look::font(font, scale));
    const QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return {metrics.horizontalAdvance(shown) / scale, metrics.height() / scale};
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
    recording_.add(
        {.kind = DrawCommand::Kind::Box, .color = color, .a = from, .b = to, .opaque = true});
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
        recording_.add({.kind = DrawCommand::Kind::Copy,
                        .a = place,
                        .picture = picture,
                        .opaque = isOpaque(picture)});
    }
}

void PictureSurface::StretchBlt(const Rect& to, const PicturePtr& picture, const Rect& from,
                                RasterOp operation) {
    const bool empty = !(to.width > 0 && to.height > 0 && from.width > 0 && from.height > 0);
    if (picture == nullptr || empty) {
        return;
    }
    const bool whole = from.left >= 0 && from.top >= 0 && from.right() <= picture->width() &&
                       from.bottom() <= picture->height();
    recording_.add({.kind = DrawCommand::Kind::Stretch,
                    .a = {to.left, to.top},
                    .b = {to.right(), to.bottom()},
                    .picture = picture,
                    .from = from,
                    .operation = operation,
                    .opaque = whole && operation == RasterOp::SrcCopy && isOpaque(picture)});
}

void PictureSurface::setBackdrop(Backdrop backdrop) {
    backdrop_ = std::move(backdrop);
    invalidate();
}

QRectF PictureSurface::whole() const {
    return {0, 0, ScaleWidth(), ScaleHeight()};
}

QRectF PictureSurface::inDesignPx(const QRectF& box) const {
    if (box.isEmpty()) {
        return {};
    }
    const double x = owner_->place().width / ScaleWidth();
    const double y = owner_->place().height / ScaleHeight();
    return {box.left() * x, box.top() * y, box.width() * x, box.height() * y};
}

QRectF PictureSurface::finish() {
    QRectF changed;
    if (cleared_) {
        changed = baked_.isNull() ? recording_.difference(shown_) : whole();
        std::swap(recording_, shown_);
        baked_ = QImage();
    } else if (recording_.hidesAny(whole())) {
        before_ = shown_;
        shown_.append(recording_, whole());
        changed = shown_.difference(before_);
    } else {
        changed = recording_.bounds();
        shown_.append(recording_, whole());
    }
    recording_.clear();
    cleared_ = false;
    changed &= whole();
    dirty_ |= changed;
    if (shown_.size() > kMostCommands && !image_.isNull()) {
        bake();
    }
    return inDesignPx(changed);
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

Stretch PictureSurface::stretchTo(QSize size, double scale) const {
    const Size units = owner_->scaleSize();
    if (!(units.width > 0 && units.height > 0)) {
        return {scale, scale};
    }
    return {size.width() / units.width, size.height() / units.height};
}

void PictureSurface::prepareImage(QSize size, double scale) {
    const QImage::Format format =
        owner_->overlay() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    const Stretch stretch = stretchTo(size, scale);
    if (image_.size() != size || image_.format() != format || scale_ != scale ||
        !(stretch_ == stretch)) {
        image_ = QImage(size.expandedTo({1, 1}), format);
        scale_ = scale;
        stretch_ = stretch;
        invalidate();
    }
}

void PictureSurface::paintDirty() {
    const QRect pixels = devicePixels(dirty_, stretch_) & image_.rect();
    CommandPainter commands(image_, shown_, stretch_);
    // What a picture hides needn't be painted; with a picture over all, not even the ground.
    const auto [cover, covered] = commands.largestCover(pixels);
    const QRegion beneath = QRegion(pixels) - covered;
    if (!beneath.isEmpty()) {
        commands.clip(beneath);
        paintGround(commands.painter(), scale_);
        commands.paint(0, cover);
    }
    commands.clip(pixels);
    commands.paint(cover, shown_.size());
}

const QImage& PictureSurface::image(QSize size, double scale) {
    prepareImage(size, scale);
    if (!dirty_.isEmpty()) {
        paintDirty();
        dirty_ = QRectF();
    }
    return image_;
}

} // namespace quendal
