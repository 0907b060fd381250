// Paints what was drawn on a surface onto an image in device pixels.
#pragma once

#include "desktop/pictures/draw_list.h"
#include "desktop/pictures/stretch.h"

#include <QImage>
#include <QPainter>
#include <QRegion>

#include <utility>

namespace quendal {

class DesktopPicture;

// Device pixels for one unit of a surface, across and down.
struct Stretch {
    double x = 1;
    double y = 1;

    double smaller() const { return x < y ? x : y; }
    friend bool operator==(const Stretch&, const Stretch&) = default;
};

// A point of the logic is the middle of a unit.
class CommandPainter {
  public:
    // Both must outlive this.
    CommandPainter(QImage& target, const DrawList& list, const Stretch& stretch)
        : target_(target), painter_(&target), list_(list), stretch_(stretch) {}

    QPainter& painter() { return painter_; }
    // Nothing is painted outside.
    void clip(const QRegion& pixels);
    // The commands from `first` to before `end`.
    void paint(std::size_t first, std::size_t end);
    // The picture that hides most of `pixels`, and what it hides of it; command 0 and nothing when
    // there is none.
    std::pair<std::size_t, QRect> largestCover(const QRect& pixels) const;

  private:
    void paint(const DrawCommand& command);
    void line(const DrawCommand& command);
    void box(const DrawCommand& command);
    void polygon(const DrawCommand& command);
    void copy(const DrawCommand& command);
    void stretch(const DrawCommand& command);
    void stretch(const DesktopPicture& picture, const StretchBoxes& whole, RasterOp operation);
    void stretchCopy(const DesktopPicture& picture, const StretchBoxes& boxes);
    void join(const DesktopPicture& picture, const StretchBoxes& boxes, RasterOp operation);

    QPointF middle(Point point) const {
        return {(point.x + 0.5) * stretch_.x, (point.y + 0.5) * stretch_.y};
    }
    QPoint pixel(Point point) const;
    double width(double units) const;
    // That the picture of a Copy or Stretch fills.
    QRect place(const DrawCommand& command) const;

    QImage& target_;
    QPainter painter_;
    const DrawList& list_;
    Stretch stretch_;
    QRegion clip_;
};

} // namespace quendal
