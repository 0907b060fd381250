// A surface that keeps what is drawn on it, shape by shape.
#pragma once

#include "host/surface.h"
#include "host/text_size.h"

#include <string>
#include <vector>

namespace quendal::test {

class RecordingSurface final : public Surface {
  public:
    struct CircleMark {
        Point centre;
        double radius = 0;
        Color fill;
        Color outline;
        friend bool operator==(const CircleMark&, const CircleMark&) = default;
    };
    struct BoxMark {
        Point from;
        Point to;
        Color color;
        friend bool operator==(const BoxMark&, const BoxMark&) = default;
    };

    struct LineMark {
        Point from;
        Point to;
        Color color;
        friend bool operator==(const LineMark&, const LineMark&) = default;
    };
    struct PolygonMark {
        std::vector<Point> corners;
        Color fill;
        Color outline;
        friend bool operator==(const PolygonMark&, const PolygonMark&) = default;
    };
    struct TextMark {
        Point place;
        std::string text;
        FontSpec font;
        Color color;
        friend bool operator==(const TextMark&, const TextMark&) = default;
    };

    struct StretchMark {
        Rect to;
        PicturePtr picture;
        Rect from;
        RasterOp operation = RasterOp::SrcCopy;
        friend bool operator==(const StretchMark&, const StretchMark&) = default;
    };

    RecordingSurface(double width, double height) : width_(width), height_(height) {}

    double ScaleWidth() const override { return width_; }
    double ScaleHeight() const override { return height_; }
    Size TextSize(std::string_view text, const FontSpec& font) const override {
        return estimatedTextSize(text, font);
    }
    void Clear() override {
        circles.clear();
        boxes.clear();
        stretches.clear();
        copies.clear();
        lines.clear();
        polygons.clear();
        texts.clear();
        order.clear();
    }
    void Line(Point from, Point to, Color color, double) override {
        lines.push_back({from, to, color});
        order += 'l';
    }
    void Box(Point from, Point to, Color color) override {
        boxes.push_back({from, to, color});
        order += 'b';
    }
    void Circle(Point centre, double radius, Color outline) override {
        circles.push_back({centre, radius, fillColor(), outline});
        order += 'c';
    }
    void Polygon(std::span<const Point> corners, Color outline) override {
        polygons.push_back({{corners.begin(), corners.end()}, fillColor(), outline});
        order += 'p';
    }
    void Text(Point place, std::string_view text, const FontSpec& font, Color color) override {
        texts.push_back({place, std::string(text), font, color});
        order += 't';
    }
    void Copy(const PicturePtr& picture, Point) override {
        copies.push_back(picture);
        order += 'i';
    }
    void StretchBlt(const Rect& to, const PicturePtr& picture, const Rect& from,
                    RasterOp operation) override {
        stretches.push_back({to, picture, from, operation});
        order += 's';
    }

    std::vector<CircleMark> circles;
    std::vector<BoxMark> boxes;
    std::vector<StretchMark> stretches;
    std::vector<PicturePtr> copies;
    std::vector<LineMark> lines;
    std::vector<PolygonMark> polygons;
    std::vector<TextMark> texts;
    // One letter for each operation: line, box, circle, polygon, text, image, stretched image.
    std::string order;

  private:
    double width_;
    double height_;
};

} // namespace quendal::test
