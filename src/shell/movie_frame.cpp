#include "shell/movie_frame.h"

#include "host/number_service.h"
#include "shell/movie_pen.h"
#include "shell/movie_scenes.h"

#include <algorithm>
#include <array>

namespace quendal {

namespace {

constexpr double kGridStep = 8;
constexpr double kEdge = 10;         // above and below the triangle
constexpr double kBarBelow = 10;     // the triangle's bar, below the middle of the picture
constexpr double kHalfLine = 11;     // from the bar of a fraction to the middle of its terms
constexpr double kOverhang = 3;      // of that bar on both sides
constexpr double kLineTwelfth = 5.5; // of the width, midway between both triangles
constexpr int kRed = 12;

// The triangle in letters or in words. Places count from the middle of its bar.
struct Pass {
    std::array<std::string_view, 3> names; // by MovieTerm
    std::array<Point, 3> places;
    double centreTwelfth; // of the width
    double line;          // middle of the line with the formula
    Color fill;
    Color outline;
};

// Side by side, concentration and volume are wider than the triangle: as words they stand below
// each other. The line of words needs all the room between both triangles, which is widest at the
// top.
constexpr std::array<Pass, 2> kPasses{{
    {.names = {"n", "c", "V"},
     .places = {{{-2, -17}, {-24, 46}, {15, 46}}},
     .centreTwelfth = 2,
     .line = 0,
     .fill = {220, 220, 220},
     .outline = palette(8)},
    {.names = {"Stoffmenge", "Konzentration", "Volumen"},
     .places = {{{-2, -14}, {-5, 72}, {-2, 36}}},
     .centreTwelfth = 9,
     .line = -86,
     .fill = {200, 200, 250},
     .outline = palette(1)},
}};

const FontSpec& passFont() {
    static const FontSpec kFont{.family = "Arial", .size = points(10), .bold = true};
    return kFont;
}

const FontSpec& signFont() {
    static const FontSpec kFont{.family = "Marlett", .size = points(10), .bold = true};
    return kFont;
}

Point middleOfBar(double width, double height, const Pass& pass) {
    const int x = roundToInt(width / 12 * pass.centreTwelfth);
    return {static_cast<double>(x), height / 2 + kBarBelow};
}

// Where the parts of a formula stand.
struct FormulaLine {
    Point sought;
    Point equals;
    Point first;
    Point sign; // for a bar its middle
    Point second;
    double barHalf = 0; // half the width of the bar
};

class PassPainter {
  public:
    PassPainter(MoviePen& pen, const Pass& pass)
        : pen_(pen), pass_(pass), width_(pen.surface().ScaleWidth()),
          height_(pen.surface().ScaleHeight()), centre_(middleOfBar(width_, height_, pass)) {
        pen_.setFont(passFont());
    }

    void triangle();
    // `x` runs from 0, all in the triangle, to 10, the finished formula.
    void scene(const MovieRow& row, double x);
    void terms();

  private:
    std::string_view name(MovieTerm term) const {
        return pass_.names[static_cast<std::size_t>(term)];
    }
    Point home(MovieTerm term) const {
        const Point place = pass_.places[static_cast<std::size_t>(term)];
        return {centre_.x + place.x, centre_.y + place.y};
    }
    FormulaLine layOut(const MovieRow& row) const;
    void move(MovieTerm term, Point to, double x);
    void sign(const MovieRow& row, const FormulaLine& line, double fade);

    MoviePen& pen_;
    const Pass& pass_;
    double width_;
    double height_;
    Point centre_; // of the triangle's bar
};

void PassPainter::triangle() {
    Surface& surface = pen_.surface();
    const double bottom = height_ - kEdge;
    const std::array<Point, 3> corners{
        {{centre_.x, kEdge}, {centre_.x - 58, bottom}, {centre_.x + 48, bottom}}};
    surface.setFillStyle(FillStyle::Solid);
    surface.setFillColor(pass_.fill);
    surface.Polygon(corners, pass_.outline);
    surface.Line({centre_.x - 28, centre_.y}, {centre_.x + 29, centre_.y}, kBlack);
}

FormulaLine PassPainter::layOut(const MovieRow& row) const {
    const bool fraction = row.sign == MovieSign::Bar;
    const double sought = pen_.width(name(row.sought));
    const double equals = pen_.width("====");
    const double first = pen_.width(name(row.first));
    const double between = pen_.width("==");
    const double second = pen_.width(name(row.second));
    const double solved = fraction ? std::max(first, second) : first + between + second;

    // Terms arrive on whole units, so all of the line stands on one.
    const double y = roundToInt(centre_.y + pass_.line);
    const double left = width_ / 12 * kLineTwelfth - (sought + equals + solved) / 2;
    const double after = left + sought + equals; // where the right hand side begins
    const double middle = after + solved / 2;
    FormulaLine line{.sought = {left + sought / 2, y},
                     .equals = {left + sought + equals / 2, y},
                     .first = {after + first / 2, y},
                     .sign = {after + first + between / 2, y},
                     .second = {after + solved - second / 2, y}};
    if (fraction) {
        line.first = {middle, y - kHalfLine};
        line.sign = {middle, y};
        line.second = {middle, y + kHalfLine};
        line.barHalf = solved / 2 + kOverhang;
    }
    return line;
}

void PassPainter::scene(const MovieRow& row, double x) {
    const FormulaLine line = layOut(row);
    move(row.first, line.first, x);
    move(row.second, line.second, x);
    const double fade = MoviePen::kHidden - x;
    pen_.hFadePrint(line.equals.x, line.equals.y, fade, "=");
    sign(row, line, fade);
    pen_.hXPrint(line.sought.x, line.sought.y, name(row.sought), palette(kRed));
}

void PassPainter::move(MovieTerm term, Point to, double x) {
    const Point from = home(term);
    pen_.hMovePrint(from.x, from.y, to.x, to.y, x, name(term));
}

void PassPainter::sign(const MovieRow& row, const FormulaLine& line, double fade) {
    const Point at = line.sign;
    switch (row.sign) {
    case MovieSign::Dot:
        pen_.setFont(signFont());
        pen_.hFadePrint(at.x, at.y, fade, "h");
        pen_.setFont(passFont());
        break;
    case MovieSign::Slash:
        pen_.hFadePrint(at.x, at.y, fade, "/");
        break;
    case MovieSign::Bar:
        pen_.hFadeBox(at.x - line.barHalf, at.y, at.x + line.barHalf, at.y + 1, fade);
        break;
    }
}

void PassPainter::terms() {
    for (const MovieTerm term : {MovieTerm::Amount, MovieTerm::Concentration, MovieTerm::Volume}) {
        pen_.hXPrint(home(term).x, home(term).y, name(term));
    }
}

void drawGrid(Surface& surface, Color color) {
    const double width = surface.ScaleWidth();
    const double height = surface.ScaleHeight();
    for (double x = 0; x < width; x += kGridStep) {
        surface.Line({x, 0}, {x, height}, color);
    }
    for (double y = 0; y < height; y += kGridStep) {
        surface.Line({0, y}, {width, y}, color);
    }
}

} // namespace

void drawMovieFrame(Surface& surface, const MovieMoment& moment) {
    const double x = std::min(moment.time, MoviePen::kArrived);
    const MovieRow* row = movieRow(moment.scene);
    surface.Clear();
    drawGrid(surface, moment.gridColor);
    MoviePen pen(surface);
    for (const Pass& pass : kPasses) {
        PassPainter painter(pen, pass);
        painter.triangle();
        if (row != nullptr) {
            painter.scene(*row, x);
        }
        painter.terms();
    }
}

} // namespace quendal
