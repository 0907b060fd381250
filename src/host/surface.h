// What the logic draws on. Coordinates are units of the surface's scale, by default design px, y
// downward; what lies outside is cut off. Where a scale stretches the axes differently, circles
// stay round and take the smaller stretch. No operation fails; none may allocate in a frame that
// draws what it drew before.
#pragma once

#include "host/color.h"
#include "host/font.h"
#include "host/geometry.h"
#include "host/picture.h"

#include <span>
#include <string_view>

namespace quendal {

enum class FillStyle { Solid = 0, None = 1 };

// How the pixels of a copy meet those that are there.
enum class RasterOp {
    SrcCopy,  // the copy takes their place
    SrcAnd,   // bit by bit and: white keeps, black blackens
    SrcInvert // bit by bit exclusive or: onto black it puts the copy
};

class Surface {
  public:
    virtual ~Surface() = default;

    virtual double ScaleWidth() const = 0;
    virtual double ScaleHeight() const = 0;
    // Room that Text takes for `text`, without any margin; the height is that of a line of the
    // font, whatever the text.
    virtual Size TextSize(std::string_view text, const FontSpec& font) const = 0;

    // Fills all with the back colour of the picture box that the surface belongs to.
    virtual void Clear() = 0;
    virtual void Line(Point from, Point to, Color color, double width = 1) = 0;
    // A filled box with the two points as opposite corners, both belonging to it.
    virtual void Box(Point from, Point to, Color color) = 0;
    // Filled with FillColor where FillStyle is solid; the outline is 1 px wide.
    virtual void Circle(Point centre, double radius, Color outline) = 0;
    virtual void Polygon(std::span<const Point> corners, Color outline) = 0;
    // `place` is the left upper corner of the text.
    virtual void Text(Point place, std::string_view text, const FontSpec& font, Color color) = 0;
    // A plain copy with the left upper corner at `place`; a null picture draws nothing. Parts of
    // the picture that are transparent stay untouched.
    virtual void Copy(const PicturePtr& picture, Point place) = 0;
    // Stretches the part `from` of a picture, in its px, over the box `to`. What `from` has beyond
    // the picture stays undrawn; a null picture and a box without width or height draw nothing.
    // Parts of the picture that are transparent stay untouched.
    virtual void StretchBlt(const Rect& to, const PicturePtr& picture, const Rect& from,
                            RasterOp operation) = 0;

    void setFillStyle(FillStyle style) { fillStyle_ = style; }
    FillStyle fillStyle() const { return fillStyle_; }
    void setFillColor(Color color) { fillColor_ = color; }
    Color fillColor() const { return fillColor_; }

  private:
    FillStyle fillStyle_ = FillStyle::Solid;
    Color fillColor_ = kBlack;
};

} // namespace quendal
