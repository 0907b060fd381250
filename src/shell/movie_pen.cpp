#include "shell/movie_pen.h"

#include "host/number_service.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr double kLowered = 10; // of a subscript
constexpr double kDotRadius = 1.5;

// No text may depend on a font that isn't there, and the dot of most fonts is a square.
bool isDot(std::string_view text, const FontSpec& font) {
    return font.family == "Marlett" && text == "h";
}

Color greyOf(double fade) {
    const int channel = roundToInt(fade * 255 / MoviePen::kHidden);
    const auto byte = static_cast<std::uint8_t>(std::clamp(channel, 0, 255));
    return {byte, byte, byte};
}

} // namespace

double MoviePen::width(std::string_view text) const {
    return surface_.TextSize(text, font_).width;
}

void MoviePen::hXPrint(double x, double y, std::string_view text, std::optional<Color> color) {
    const Color before = color_;
    color_ = color.value_or(before);
    if (isDot(text, font_)) {
        dot({x, y});
    } else {
        const Size room = surface_.TextSize(text, font_);
        write({x - room.width / 2, y - room.height / 2}, text);
    }
    color_ = before;
}

void MoviePen::write(Point place, std::string_view text) {
    if (text != "VM") {
        surface_.Text(place, text, font_, color_);
        return;
    }
    surface_.Text(place, "V", font_, color_);
    surface_.Text({place.x + width("V"), place.y + kLowered}, "M", font_, color_);
}

void MoviePen::dot(Point centre) {
    surface_.setFillStyle(FillStyle::Solid);
    surface_.setFillColor(color_);
    surface_.Circle(centre, kDotRadius, color_);
}

void MoviePen::hFadePrint(double x, double y, double fade, std::string_view text) {
    if (fade == kHidden) {
        return;
    }
    color_ = greyOf(fade);
    hXPrint(x, y, text);
    color_ = kBlack;
}

void MoviePen::hFadeBox(double x1, double y1, double x2, double y2, double fade) {
    if (fade == kHidden) {
        return;
    }
    const Color grey = greyOf(fade);
    surface_.Line({x1, y1}, {x2, y1}, grey);
    surface_.Line({x2, y1}, {x2, y2}, grey);
    surface_.Line({x2, y2}, {x1, y2}, grey);
    surface_.Line({x1, y2}, {x1, y1}, grey);
}

void MoviePen::hMovePrint(double x1, double y1, double x2, double y2, double t,
                          std::string_view text, std::optional<Color> color) {
    const double x = roundToInt(x1 + (x2 - x1) * t / kArrived);
    const double y = roundToInt(y1 + (y2 - y1) * t / kArrived);
    hXPrint(x, y, text, color);
}

} // namespace quendal
