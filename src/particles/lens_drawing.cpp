#include "particles/lens_drawing.h"

#include "host/surface.h"

namespace quendal {

namespace {

constexpr double kHaloWidth = 2;
constexpr double kSignShare = 1.2; // of the radius, length of a sign's bar

void disc(Surface& surface, Point centre, double radius, Color fill, Color outline) {
    surface.setFillStyle(FillStyle::Solid);
    surface.setFillColor(fill);
    surface.Circle(centre, radius, outline);
    surface.setFillStyle(FillStyle::None);
}

// A box with these measures around a point; both corners of a box belong to it.
void bar(Surface& surface, Point centre, double width, double height, Color colour) {
    const double across = (width - 1) / 2;
    const double down = (height - 1) / 2;
    surface.Box({centre.x - across, centre.y - down}, {centre.x + across, centre.y + down}, colour);
}

} // namespace

void hDrawBall(Surface& surface, double x, double y, double r, Color colour, bool haloFlag,
               Color haloColour, bool minusFlag, bool plusFlag) {
    if (haloFlag) {
        disc(surface, {x, y}, r + kHaloWidth, haloColour, haloColour);
    }
    disc(surface, {x, y}, r, colour, kBlack);
    if (minusFlag || plusFlag) {
        drawSign(surface, {x, y}, r, plusFlag ? IonSign::Plus : IonSign::Minus, kWhite);
    }
}

void drawPlainBall(Surface& surface, double x, double y, double r, Color colour) {
    hDrawBall(surface, x, y, r, colour, false, colour, false, false);
}

Color ionColor(IonSign sign) {
    return palette(sign == IonSign::Minus ? 2 : 7);
}

Color signColor(IonSign sign) {
    return sign == IonSign::Minus ? kWhite : kBlack;
}

void drawSign(Surface& surface, Point centre, double r, IonSign sign, Color colour,
              double thickness, Size unit) {
    const double length = kSignShare * r;
    bar(surface, centre, length * unit.width, thickness * unit.height, colour);
    if (sign == IonSign::Plus) {
        bar(surface, centre, thickness * unit.width, length * unit.height, colour);
    }
}

} // namespace quendal
