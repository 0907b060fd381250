#include "particles/lens_glass.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quendal {

namespace {

// The frame of the lens on the form; all four edges belong to it.
constexpr double kFrameLeft = 85;
constexpr double kFrameTop = 20;
constexpr double kFrameRight = 480;
constexpr double kFrameBottom = 420;

constexpr double kHalfRim = 7; // of the glass in the pictures, about
constexpr Point kCentre{(kFrameLeft + kFrameRight) / 2, (kFrameTop + kFrameBottom) / 2};
constexpr Size kReach{(kFrameRight - kFrameLeft + 1) / 2 - kHalfRim,
                      (kFrameBottom - kFrameTop + 1) / 2 - kHalfRim};

constexpr double kTurn = 2 * std::numbers::pi;

Point onCircle(double share) {
    return {std::cos(share * kTurn), std::sin(share * kTurn)};
}

// Distance from the middle of the glass as a share of the way to its outline; `reserve` px closer.
double shareOfWay(Point at, double reserve, Size unit) {
    const double x = (at.x - kCentre.x * unit.width) / (kReach.width * unit.width - reserve);
    const double y = (at.y - kCentre.y * unit.height) / (kReach.height * unit.height - reserve);
    return std::hypot(x, y);
}

} // namespace

GlassOutline glassOutline(Size unit) {
    GlassOutline outline;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const Point at = onCircle(static_cast<double>(i) / outline.size());
        outline[i] = {(kCentre.x + at.x * kReach.width) * unit.width,
                      (kCentre.y + at.y * kReach.height) * unit.height};
    }
    return outline;
}

bool insideGlass(Point centre, double radius, Size unit) {
    return shareOfWay(centre, radius, unit) < 1;
}

std::array<Point, 32> ballInGlass(Point centre, double radius, Size unit) {
    const Point middle{kCentre.x * unit.width, kCentre.y * unit.height};
    std::array<Point, 32> outline;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const Point at = onCircle(static_cast<double>(i) / outline.size());
        const Point point{centre.x + radius * at.x, centre.y + radius * at.y};
        const double way = std::max(1.0, shareOfWay(point, 0, unit));
        outline[i] = {middle.x + (point.x - middle.x) / way, middle.y + (point.y - middle.y) / way};
    }
    return outline;
}

std::array<CrystalIon, kCrystalRows * kCrystalColumns> crystalIons() {
    constexpr double kStep = 20;
    // From the corner of the lens frame. Told from the corner of the form, the crystal would end
    // before the right rim and hang above the bottom of the glass.
    constexpr double kFirstLeft = kFrameLeft + 10;
    constexpr double kFirstTop = kFrameTop + 300;
    std::array<CrystalIon, kCrystalRows * kCrystalColumns> ions;
    for (std::size_t i = 0; i < ions.size(); ++i) {
        const std::size_t row = i / kCrystalColumns + 1;
        const std::size_t column = i % kCrystalColumns + 1;
        const Point place{kFirstLeft + kStep * static_cast<double>(column - 1),
                          kFirstTop + kStep * static_cast<double>(row - 1)};
        ions[i] = {place, (row + column) % 2 == 0 ? IonSign::Minus : IonSign::Plus};
    }
    return ions;
}

std::array<Point, 32> roundedBox(const Rect& box, double cornerRadius) {
    std::array<Point, 32> outline;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const std::size_t quarter = i * 4 / outline.size(); // from bottom right, clockwise
        const double inQuarter = static_cast<double>(i % (outline.size() / 4));
        const Point at =
            onCircle((static_cast<double>(quarter) + inQuarter / (outline.size() / 4 - 1)) / 4);
        const bool right = quarter == 0 || quarter == 3;
        const bool low = quarter < 2;
        outline[i] = {
            (right ? box.right() - cornerRadius : box.left + cornerRadius) + cornerRadius * at.x,
            (low ? box.bottom() - cornerRadius : box.top + cornerRadius) + cornerRadius * at.y};
    }
    return outline;
}

} // namespace quendal
