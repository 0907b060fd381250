// Paints areas of one colour each, one over the other, without antialiasing at four times the size
// of a picture, and filters them down: each pixel is the mean of four by four. A fine pixel belongs
// to an area when its middle does.
//
// Nothing is ever painted at the large size: along each line of fine pixels the picture is a few
// runs of one colour, and only their ends need a look at single pixels.
#pragma once

#include "desktop/files/wmf_drawing.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quendal {

inline constexpr int kFineness = 4; // fine pixels across and down for one of the picture

// An area's outline is one or more rings of points in fine pixels.
class SpriteArea {
  public:
    // `pixel` has premultiplied alpha; 0 clears what is there. Nothing outside `clip`, in fine
    // pixels, is painted.
    SpriteArea(std::uint32_t pixel, WmfFillRule rule, const Rect& clip);
    // A ring closes itself.
    void addRing(std::span<const Point> points);
    std::size_t edges() const { return edges_.size(); }

  private:
    friend class SpriteAreaRows;

    // A side of the outline that crosses the middles of some lines.
    struct Edge {
        int first = 0; // line
        int end = 0;   // line behind the last
        double x = 0;  // in the middle of the first line
        double step = 0;
        int turn = 0; // 1 down, -1 up
    };
    void addEdge(Point from, Point to);

    std::uint32_t pixel_;
    WmfFillRule rule_;
    int left_;
    int right_;
    int top_;
    int bottom_;
    std::vector<Edge> edges_;
};

// Fills `width` x `height` pixels, `stride` of them from one line to the next, with the areas on a
// white ground. False when the areas are so intricate that it would take seconds; the pixels are
// then unfinished.
bool paintSpriteAreas(std::span<const SpriteArea> areas, int width, int height,
                      std::uint32_t* pixels, std::size_t stride);

} // namespace quendal
