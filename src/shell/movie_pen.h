// The pen that the movie of the start dialog is written with. Coordinates are units of the surface.
// A fade runs from 10, nothing to be seen, down to 0, black.
#pragma once

#include "host/surface.h"

#include <optional>
#include <string_view>

namespace quendal {

class MoviePen {
  public:
    static constexpr double kHidden = 10;  // fade
    static constexpr double kArrived = 10; // t of hMovePrint

    // The surface must outlive the pen. Begins with black Arial, 10 pt, bold.
    explicit MoviePen(Surface& surface) : surface_(surface) {}

    Surface& surface() { return surface_; }
    // The symbol font Marlett needn't be there; the one character of it that the movie writes, "h",
    // is painted as a multiplication dot.
    void setFont(const FontSpec& font) { font_ = font; }
    const FontSpec& font() const { return font_; }
    Color color() const { return color_; }
    double width(std::string_view text) const;

    // Centred on (x, y), in `color` or else in the present one, which it keeps either way. "VM" is
    // a V with a lowered M.
    void hXPrint(double x, double y, std::string_view text, std::optional<Color> color = {});
    // In the grey of the fade; black is the present colour afterwards.
    void hFadePrint(double x, double y, double fade, std::string_view text);
    // The outline of a box with the two points as opposite corners.
    void hFadeBox(double x1, double y1, double x2, double y2, double fade);
    // On the way from one point at t = 0 to the other at t = 10, on whole units.
    void hMovePrint(double x1, double y1, double x2, double y2, double t, std::string_view text,
                    std::optional<Color> color = {});

  private:
    void write(Point place, std::string_view text);
    void dot(Point centre);

    Surface& surface_;
    FontSpec font_{.size = points(10), .bold = true};
    Color color_ = kBlack;
};

} // namespace quendal
