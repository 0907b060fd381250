// A sprite's drawing, read from a placeable metafile (WMF) and not yet tied to any toolkit.
//
// Understood: window, pens, brushes, fonts, polygon, polypolygon, polyline, lines, ellipse,
// rectangle, round rectangle, arc, pie, chord, pixel, both kinds of text, clip rectangle, saved
// states. All else is skipped: the viewport is always the picture's natural size, every raster
// operation counts as the plain copy, bitmaps and regions aren't drawn, and a text isn't
// underlined.
#pragma once

#include "host/color.h"
#include "host/geometry.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quendal {

// What a file may have; one that has more counts as broken.
inline constexpr std::size_t kWmfFileLimit = 2U << 20; // bytes
inline constexpr std::size_t kWmfRecordLimit = 50000;
inline constexpr std::size_t kWmfShapeLimit = 10000;
inline constexpr std::size_t kWmfPointLimit = 40000;
inline constexpr std::size_t kWmfTextLimit = 5000; // characters of all texts together
inline constexpr std::size_t kWmfObjectLimit = 1024;
inline constexpr std::size_t kWmfStateLimit = 64;
// What a drawing may have, in design px; whatever lies or reaches beyond it is pulled in.
inline constexpr double kWmfFarthest = 100000; // from the corner of the picture
inline constexpr double kWmfWidestPen = 512;
inline constexpr double kWmfTallestText = 2048;

enum class WmfFillRule { Alternate, Winding };

struct WmfPen {
    enum class Style { Solid, Dash, Dot, DashDot, DashDotDot, None };
    enum class Cap { Round, Square, Flat };
    enum class Join { Round, Bevel, Miter };

    Style style = Style::Solid;
    Cap cap = Cap::Round;
    Join join = Join::Round;
    double width = 1; // design px
    Color color = kBlack;
};

// Places in a drawing are design px of its natural size, y downward.

struct WmfPolygon {
    WmfFillRule rule = WmfFillRule::Alternate;
    std::vector<std::vector<Point>> rings; // each closes itself
};

struct WmfPolyline {
    std::vector<Point> points;
};

struct WmfEllipse {
    Rect box;
};

struct WmfRectangle {
    Rect box;
    Size corner; // of the ellipse that rounds the corners; none for a plain rectangle
};

// A part of the outline of an ellipse. Angles in degrees, counterclockwise from three o'clock, as
// they are on the circle that was stretched to the ellipse.
struct WmfArc {
    enum class Kind { Open, Pie, Chord };

    Kind kind = Kind::Open;
    Rect box;
    double start = 0;
    double sweep = 360; // more than 0
};

struct WmfFont {
    enum class Height { Em, Cell };

    std::string family = "Arial";
    double height = 12; // design px
    Height meaning = Height::Em;
    double width = 0; // design px of an average letter; 0: as the font has it
    bool bold = false;
    bool italic = false;
    double angle = 0; // degrees, counterclockwise
};

struct WmfText {
    enum class Across { Left, Centre, Right };
    enum class Down { Top, Baseline, Bottom };

    std::string text; // UTF-8; bytes of the symbol fonts are read as those of all others
    Point place;      // of the point that the two alignments name
    Across across = Across::Left;
    Down down = Down::Top;
    WmfFont font;
    Color color = kBlack;
    std::optional<Color> ground;  // behind the text
    std::vector<double> advances; // design px, one for each character; empty for those of the font
};

struct WmfShape {
    std::variant<WmfPolygon, WmfPolyline, WmfEllipse, WmfRectangle, WmfArc, WmfText> form;
    WmfPen pen;                // of the outline; not for texts
    std::optional<Color> fill; // not for polylines, open arcs and texts
    std::optional<Rect> clip;  // nothing is drawn outside
};

struct WmfDrawing {
    Size size; // design px, more than 0 and no more than a picture may have
    std::vector<WmfShape> shapes;
};

struct WmfReading {
    std::optional<WmfDrawing> drawing;
    std::string_view fault; // why there is none, in English
};

// Reads any bytes. Nothing of a file that isn't whole is given: no drawing for one that is cut
// short, that tells of more than it has, or that is beyond the limits above.
WmfReading readWmf(std::string_view bytes);

} // namespace quendal
