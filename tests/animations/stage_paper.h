// A surface that keeps what is drawn on it in its order, with a font that is easy to reckon with:
// every character is half as wide as the font is high, and a line is 1.25 times as high.
#pragma once

#include "host/surface.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace quendal::test {

struct Mark {
    enum class Kind { Line, Box, Text, Stretch };

    Kind kind = Kind::Line;
    Point from{}; // of a text its left upper corner
    Point to{};
    Color color{};
    double width = 0; // of a line
    std::string text{};
    FontSpec font{};
    PicturePtr picture{};
    Rect source{};
    RasterOp operation = RasterOp::SrcCopy;

    friend bool operator==(const Mark&, const Mark&) = default;
};

inline void PrintTo(const Mark& mark, std::ostream* out) {
    *out << "lbts"[static_cast<int>(mark.kind)] << " (" << mark.from.x << ", " << mark.from.y
         << ") to (" << mark.to.x << ", " << mark.to.y << ") " << colorText(mark.color) << " "
         << mark.width << " \"" << mark.text << "\" " << mark.font.size << " of ("
         << mark.source.left << ", " << mark.source.top << ", " << mark.source.width << ", "
         << mark.source.height << ")";
}

class StagePaper final : public Surface {
  public:
    static constexpr double kCharacter = 0.5; // width, of the font's size
    static constexpr double kLine = 1.25;     // height, of the font's size

    double ScaleWidth() const override { return 0; } // nobody may ask it: the form tells its size
    double ScaleHeight() const override { return 0; }
    Size TextSize(std::string_view text, const FontSpec& font) const override {
        const auto characters = std::count_if(text.begin(), text.end(), [](char byte) {
            return (static_cast<unsigned char>(byte) & 0xc0U) != 0x80U;
        });
        return {static_cast<double>(characters) * kCharacter * font.size, kLine * font.size};
    }
    void Clear() override {
        marks.clear();
        footer_.clear();
        ++cleared;
    }
    void Line(Point from, Point to, Color color, double width) override {
        marks.push_back({Mark::Kind::Line, from, to, color, width});
    }
    void Box(Point from, Point to, Color color) override {
        marks.push_back({Mark::Kind::Box, from, to, color});
        if (from == Point{20, 540}) {
            footer_.clear();
        }
    }
    void Circle(Point, double, Color) override { ++others; }
    void Polygon(std::span<const Point>, Color) override { ++others; }
    void Text(Point place, std::string_view text, const FontSpec& font, Color color) override {
        marks.push_back({Mark::Kind::Text, place, place, color, 0, std::string(text), font});
        if (place.x == 30 && place.y > 540) {
            footer_ = text;
        }
    }
    void Copy(const PicturePtr&, Point) override { ++others; }
    void StretchBlt(const Rect& to, const PicturePtr& picture, const Rect& from,
                    RasterOp operation) override {
        marks.push_back({.kind = Mark::Kind::Stretch,
                         .from = {to.left, to.top},
                         .to = {to.right(), to.bottom()},
                         .picture = picture,
                         .source = from,
                         .operation = operation});
    }

    std::vector<Mark> of(Mark::Kind kind) const {
        std::vector<Mark> found;
        std::copy_if(marks.begin(), marks.end(), std::back_inserter(found),
                     [kind](const Mark& mark) { return mark.kind == kind; });
        return found;
    }
    // One letter for each mark: line, box, text, stretched picture.
    std::string order() const {
        std::string letters;
        for (const Mark& mark : marks) {
            letters += "lbts"[static_cast<int>(mark.kind)];
        }
        return letters;
    }
    // What stands in the footer, at its left end.
    const std::string& footer() const { return footer_; }

    std::vector<Mark> marks; // since the last Clear
    int cleared = 0;
    int others = 0; // of what no script draws

  private:
    std::string footer_;
};

} // namespace quendal::test
