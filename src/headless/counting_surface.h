// A surface that nobody sees: it knows its size and counts what is drawn.
#pragma once

#include "host/pictures.h"

namespace quendal {

struct DrawingCounts {
    long clears = 0;
    long lines = 0;
    long boxes = 0;
    long circles = 0;
    long polygons = 0;
    long texts = 0;
    long copies = 0; // of pictures that are there
};

class CountingSurface final : public Surface {
  public:
    // Both must outlive the surface's use.
    CountingSurface(const PictureBox& owner, DrawingCounts& counts)
        : owner_(owner), counts_(counts) {}

    double ScaleWidth() const override { return surfaceScale(owner_).width; }
    double ScaleHeight() const override { return surfaceScale(owner_).height; }
    Size TextSize(std::string_view text, const FontSpec& font) const override {
        return estimatedTextSize(text, font);
    }
    void Clear() override { ++counts_.clears; }
    void Line(Point, Point, Color, double) override { ++counts_.lines; }
    void Box(Point, Point, Color) override { ++counts_.boxes; }
    void Circle(Point, double, Color) override { ++counts_.circles; }
    void Polygon(std::span<const Point>, Color) override { ++counts_.polygons; }
    void Text(Point, std::string_view, const FontSpec&, Color) override { ++counts_.texts; }
    void Copy(const PicturePtr& picture, Point) override {
        counts_.copies += picture != nullptr ? 1 : 0;
    }
    void StretchBlt(const Rect&, const PicturePtr& picture, const Rect&, RasterOp) override {
        counts_.copies += picture != nullptr ? 1 : 0;
    }

  private:
    const PictureBox& owner_;
    DrawingCounts& counts_;
};

} // namespace quendal
