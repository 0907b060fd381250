// The surface of a picture box: takes down what the logic draws and paints it, antialiased, onto an
// image in device pixels when the window wants to show it.
#pragma once

#include "desktop/pictures/command_painter.h"
#include "desktop/pictures/draw_list.h"

#include <QImage>

#include <functional>

namespace quendal {

class PictureBox;

class PictureSurface final : public Surface {
  public:
    explicit PictureSurface(const PictureBox& owner) : owner_(&owner) {}

    double ScaleWidth() const override;
    double ScaleHeight() const override;
    Size TextSize(std::string_view text, const FontSpec& font) const override;
    void Clear() override;
    void Line(Point from, Point to, Color color, double width) override;
    void Box(Point from, Point to, Color color) override;
    void Circle(Point centre, double radius, Color outline) override;
    void Polygon(std::span<const Point> corners, Color outline) override;
    void Text(Point place, std::string_view text, const FontSpec& font, Color color) override;
    void Copy(const PicturePtr& picture, Point place) override;
    void StretchBlt(const Rect& to, const PicturePtr& picture, const Rect& from,
                    RasterOp operation) override;

    // Draws something of the host's own, a chart say, behind what the logic draws. `painter` works
    // in device pixels, `box` is the whole picture and `scale` the device pixels for a design px.
    using Backdrop = std::function<void(QPainter& painter, const QRectF& box, double scale)>;
    void setBackdrop(Backdrop backdrop);

    // The drawing is complete: gives the part, in design px of the box, that a window must show
    // anew; empty when it shows all of it already.
    QRectF finish();
    // Commands that are kept for painting again.
    std::size_t kept() const { return shown_.size(); }
    // Everything is to be painted anew: back colour or picture have changed.
    void invalidate();
    // The picture in `size` device pixels, `scale` of them for a design px. Paints only what
    // changed since the last call.
    const QImage& image(QSize size, double scale);

  private:
    QRectF whole() const;
    QRectF inDesignPx(const QRectF& box) const;
    Stretch stretchTo(QSize size, double scale) const;
    void prepareImage(QSize size, double scale);
    void paintGround(QPainter& painter, double scale);
    void paintDirty();
    void bake();

    const PictureBox* owner_;
    DrawList recording_;
    DrawList shown_;
    DrawList before_; // what shown_ was, for as long as both are compared
    QImage image_;
    QImage baked_; // what was drawn before shown_, when that grew too long
    Backdrop backdrop_;
    QRectF dirty_; // not yet in image_, units
    double scale_ = 1;
    Stretch stretch_;
    bool cleared_ = false; // recording_ takes the place of shown_
};

} // namespace quendal
