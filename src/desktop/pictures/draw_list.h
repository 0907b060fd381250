// What was drawn on a surface since it was last cleared, in the surface's units. Kept so that a
// picture can be drawn again at another scale and so that a frame that shows nothing new costs
// nothing.
#pragma once

#include "host/surface.h"

#include <QRectF>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quendal {

struct DrawCommand {
    enum class Kind : std::uint8_t { Line, Box, Circle, Polygon, Text, Copy, Stretch };

    Kind kind = Kind::Line;
    FillStyle fillStyle = FillStyle::Solid;
    Color color{};
    Color fillColor{};
    Point a{};
    Point b{};
    double size = 0;       // radius, or width of a line
    std::size_t first = 0; // of the polygon's corners or of the text's bytes
    std::size_t count = 0;
    std::size_t font = 0;
    PicturePtr picture{};
    Rect from{}; // of the picture, for Stretch; a and b are two corners of the box it fills
    RasterOp operation = RasterOp::SrcCopy;
    bool opaque = false; // nothing of what lies under it is left
};

class DrawList {
  public:
    // Keeps the memory, so that the next frame needs none.
    void clear();
    bool empty() const { return commands_.empty(); }
    std::size_t size() const { return commands_.size(); }

    void add(const DrawCommand& command) { commands_.push_back(command); }
    void addPolygon(DrawCommand command, std::span<const Point> corners);
    void addText(DrawCommand command, std::string_view text, const FontSpec& font);
    // What a picture or a large box of `other` covers wholly goes, and with it lines that `other`
    // draws again, so that whoever draws whole frames without clearing doesn't pile them up.
    // `whole` is the surface.
    void append(const DrawList& other, const QRectF& whole);
    // Appending this one may drop something.
    bool hidesAny(const QRectF& whole) const;

    const std::vector<DrawCommand>& commands() const { return commands_; }
    std::span<const Point> corners(const DrawCommand& command) const;
    std::string_view text(const DrawCommand& command) const;
    const FontSpec& font(const DrawCommand& command) const { return fonts_[command.font]; }

    // Place that command `index` paints at most.
    QRectF bounds(std::size_t index) const;
    QRectF bounds() const;
    // What has to be painted anew when this list takes the place of `shown`; empty when both paint
    // the same.
    QRectF difference(const DrawList& shown) const;

  private:
    bool same(std::size_t index, const DrawList& other) const;
    bool hides(std::size_t index, const QRectF& whole) const;
    // Place that an opaque picture or a box fills for certain; empty for all else.
    static QRectF cover(const DrawCommand& command);
    void append(const DrawList& other, std::size_t index);
    void dropBeneath(const QRectF& box, const QRectF& whole);
    void dropSameLine(const DrawCommand& line);

    std::vector<DrawCommand> commands_;
    std::vector<Point> points_;
    std::string texts_;
    std::vector<FontSpec> fonts_;
};

} // namespace quendal
