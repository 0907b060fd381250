// How a particle looks.
#include "particles/cls_Molecule.h"

#include "host/clock.h"
#include "host/graphics.h"
#include "host/random_source.h"
#include "host/roots.h"
#include "host/surface.h"
#include "particles/species.h"
#include "shell/session/session.h"

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr int kLongestContact = 20; // frames
constexpr int kFlashPerFrame = 5;
constexpr double kBlinksPerSecond = 4; // halves of a blink: 250 ms on, 250 ms off
constexpr double kBlinkPercent = 50;
constexpr double kSmallestDrawn = 5; // px
constexpr double kHaloWidth = 2;     // px
constexpr double kHalfGap = 0.5;     // px from the middle to each of two touching halves
constexpr double kSignShare = 0.6;   // of the radius, half the length of a sign's bar

struct Paint {
    Color body;
    Color atoms;
    Color outline;
};

// Where a particle is drawn and how large, in px of the surface.
struct Figure {
    Point centre;
    double bodyRadius = 0;
    double atomRadius = 0;
};

void mixInto(Paint& paint, double percent, Color color) {
    const Graphics& graphics = CoreLib().Graphics;
    paint.body = graphics.Blend(paint.body, percent, color);
    paint.atoms = graphics.Blend(paint.atoms, percent, color);
}

void fadeInto(Paint& paint, double fade) {
    if (fade > 0) {
        const double percent = std::nearbyint(fade);
        const Color background = session().ParticleBackColor;
        mixInto(paint, percent, background);
        paint.outline = CoreLib().Graphics.Blend(paint.outline, percent, background);
    }
}

bool blinkIsOn() {
    const auto halves = static_cast<long long>(CoreLib().Clock.Now() * kBlinksPerSecond);
    return halves % 2 == 0;
}

// Centres of the two halves of Shape::TwinHalves.
Point rightHalf(const Figure& figure) {
    return {figure.centre.x + (figure.bodyRadius + kHalfGap), figure.centre.y};
}

Point leftHalf(const Figure& figure) {
    return {figure.centre.x - (figure.bodyRadius + kHalfGap), figure.centre.y};
}

void drawCircle(Surface& surface, Point centre, double radius, Color fill, Color outline) {
    surface.setFillColor(fill);
    surface.Circle(centre, radius, outline);
}

void drawLowerAtoms(Surface& surface, const Figure& figure, double radius, const Paint& paint) {
    const Point c = figure.centre;
    const double aside = figure.bodyRadius + figure.atomRadius / 3;
    const double y = c.y + figure.bodyRadius - figure.atomRadius;
    drawCircle(surface, {c.x - aside, y}, radius, paint.atoms, paint.outline);
    drawCircle(surface, {c.x + aside, y}, radius, paint.atoms, paint.outline);
}

// One pass over the circles of a shape; `grow` widens the radii only, the centres stay. Atoms come
// before the body, so that the body covers where they meet.
void drawCircles(Surface& surface, Shape shape, const Figure& figure, double grow,
                 const Paint& paint) {
    const Point c = figure.centre;
    const double large = figure.bodyRadius + grow;
    const double small = figure.atomRadius + grow;
    const double beside = figure.bodyRadius + figure.atomRadius / 2;
    switch (shape) {
    case Shape::TwinHalves:
        drawCircle(surface, rightHalf(figure), large, paint.body, paint.outline);
        drawCircle(surface, leftHalf(figure), large, paint.atoms, paint.outline);
        return;
    case Shape::AtomRight:
        drawCircle(surface, {c.x + beside, c.y}, small, paint.atoms, paint.outline);
        break;
    case Shape::ThreeAtoms:
        drawLowerAtoms(surface, figure, small, paint);
        drawCircle(surface, {c.x, c.y - beside}, small, paint.atoms, paint.outline);
        break;
    case Shape::TwoAtoms:
        drawLowerAtoms(surface, figure, small, paint);
        break;
    case Shape::NoRule:
    case Shape::OneCircle:
        break;
    }
    drawCircle(surface, c, large, paint.body, paint.outline);
}

void drawSign(Surface& surface, Point c, double bodyRadius, ChargeSign sign, Color color) {
    const double reach = kSignShare * bodyRadius;
    if (sign != ChargeSign::None) {
        surface.Box({c.x - reach, c.y - 1}, {c.x + reach, c.y + 1}, color);
    }
    if (sign == ChargeSign::Plus) {
        surface.Box({c.x - 1, c.y - reach}, {c.x + 1, c.y + reach}, color);
    }
}

void drawSigns(Surface& surface, Shape shape, const Figure& figure, SignRule rule) {
    if (shape == Shape::TwinHalves) {
        drawSign(surface, leftHalf(figure), figure.bodyRadius, ChargeSign::Minus, kWhite);
        drawSign(surface, rightHalf(figure), figure.bodyRadius, ChargeSign::Plus, kWhite);
    }
    drawSign(surface, figure.centre, figure.bodyRadius, rule.sign, palette(rule.color));
}

SignRule signOf(std::int32_t sort) {
    const Species& species = speciesOf(std::abs(sort));
    if (sort < 0) {
        return species.marked;
    }
    return sort == kChloride && session().PlainChloride ? SignRule{} : species.plain;
}

double drawnRadius(double fieldRadius, double scale) {
    const double radius = std::max(kSmallestDrawn, std::nearbyint(2 * fieldRadius));
    return scale != 0 ? std::nearbyint(radius * scale) : radius;
}

} // namespace

void cls_Molecule::DRAW(Surface& surface) {
    const Species& species = speciesOf(SORT());
    const Point centre = drawnPlace(surface);
    const double radius = drawnRadius(species.radius, Scale);
    const Figure figure{centre, radius, radius / 2};
    Fade = std::min(Fade, 100.0);

    Paint paint{palette(species.body), palette(species.atoms), kBlack};
    for (const bool bright : {countBlinkDown(), countFlashDown()}) {
        if (bright) {
            mixInto(paint, kBlinkPercent, kWhite);
        }
    }
    fadeInto(paint, Fade);
    if (species.shape == Shape::NoRule) {
        paint.body = COLOR();
    }

    surface.setFillStyle(FillStyle::Solid);
    if (species.halo != kNoHalo) {
        const Color halo = palette(species.halo);
        drawCircles(surface, species.shape, figure, kHaloWidth, {halo, halo, halo});
    }
    drawCircles(surface, species.shape, figure, 0, paint);
    drawSigns(surface, species.shape, figure, signOf(sort_));
}

Point cls_Molecule::drawnPlace(const Surface& surface) const {
    const double width = std::nearbyint(surface.ScaleWidth());
    const double height = std::nearbyint(surface.ScaleHeight());
    if (ContactCount == 0) {
        return {std::nearbyint(width * PosX / 100), std::nearbyint(height * PosY / 100)};
    }
    // Shivering in whole field units; X takes its random number before Y.
    RandomSource& random = CoreLib().Random;
    const double x = std::nearbyint(random.next() * 0.5 + PosX - 0.25);
    const double y = std::nearbyint(random.next() * 0.5 + PosY - 0.25);
    return {std::nearbyint(x * width / 100), std::nearbyint(y * height / 100)};
}

bool cls_Molecule::countBlinkDown() {
    if (ContactCount <= 0) {
        return false;
    }
    ContactCount = std::min(ContactCount, kLongestContact) - 1;
    return blinkIsOn();
}

bool cls_Molecule::countFlashDown() {
    if (ReactFlash <= 0) {
        return false;
    }
    ReactFlash = std::max(0, ReactFlash - kFlashPerFrame);
    return blinkIsOn();
}

} // namespace quendal
