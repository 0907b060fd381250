// How the ions of the crystal look: a silver ion whose outline breathes while it is free, and the
// chloride ion beside it.
#include "particles/lens_crystal.h"

#include "host/surface.h"
#include "particles/lens_drawing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quendal {

namespace {

constexpr double kRadius = 10; // of both ions, as of the balls of the crystal beneath
constexpr double kAside = 10;  // from the particle's place to the middle of each ion
// Drawn are only these wobbles; the value itself may wander farther.
constexpr int kFullest = 4;
constexpr int kFlattest = -3; // the sign stays inside
constexpr double kSignWidth = 3;
constexpr int kCorners = 4;
constexpr int kPointsPerCorner = 12;

double cornerRadius(std::int32_t wobble) {
    return kRadius + std::clamp<std::int32_t>(wobble, kFlattest, kFullest);
}

// A closed curve through the four corners of a square, each moved outwards by its wobble.
void drawBreathingIon(Surface& surface, Point centre, const LensParticle& ion, Size unit) {
    const std::array<double, kCorners> radius = {
        cornerRadius(ion.Wobble1), cornerRadius(ion.Wobble2), cornerRadius(ion.Wobble3),
        cornerRadius(ion.Wobble4)};
    std::array<Point, kCorners * kPointsPerCorner> outline;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const std::size_t corner = i / kPointsPerCorner;
        const double share = static_cast<double>(i % kPointsPerCorner) / kPointsPerCorner;
        // Level at the corners, so that the outline has no edge there.
        const double blend = (1 - std::cos(share * std::numbers::pi)) / 2;
        const double r =
            radius[corner] + (radius[(corner + 1) % kCorners] - radius[corner]) * blend;
        const double angle = (static_cast<double>(corner) + share + 0.5) * std::numbers::pi / 2;
        outline[i] = {centre.x + r * std::cos(angle) * unit.width,
                      centre.y - r * std::sin(angle) * unit.height};
    }
    surface.setFillStyle(FillStyle::Solid);
    surface.setFillColor(ionColor(IonSign::Plus));
    surface.Polygon(outline, kBlack);
    surface.setFillStyle(FillStyle::None);
}

} // namespace

void CrystalScene::draw(Surface& surface, Size unit) const {
    for (const LensParticle& ion : ions_) {
        const double y = ion.PY;
        const Point silver{ion.PX + kAside + ion.Gap, y};
        const Point chloride{ion.PX - kAside, y};
        drawBreathingIon(surface, silver, ion, unit);
        drawSign(surface, silver, kRadius, IonSign::Plus, signColor(IonSign::Plus), kSignWidth,
                 unit);
        drawPlainBall(surface, chloride.x, chloride.y, kRadius, ionColor(IonSign::Minus));
        drawSign(surface, chloride, kRadius, IonSign::Minus, signColor(IonSign::Minus), kSignWidth,
                 unit);
    }
}

} // namespace quendal
