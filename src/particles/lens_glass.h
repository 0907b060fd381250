// Shapes in and around the big magnifying glass, told for the form's design size and given in px.
#pragma once

#include "host/geometry.h"
#include "particles/lens_drawing.h"

#include <array>

namespace quendal {

inline constexpr Size kGlassDesign{592, 444}; // of the form and of the pictures of the glass
inline constexpr double kCrystalRadius = 10;

inline constexpr std::size_t kGlassPoints = 120;
using GlassOutline = std::array<Point, kGlassPoints>;

// Middle line of the rim. `unit` is the px of one design unit across and down.
GlassOutline glassOutline(Size unit);

// A circle at `centre`, in px, lies wholly inside the middle line of the rim; with a negative
// radius: it reaches into it.
bool insideGlass(Point centre, double radius, Size unit);

// A circle of which what lies beyond the middle line of the rim is cut off.
std::array<Point, 32> ballInGlass(Point centre, double radius, Size unit);

struct CrystalIon {
    Point centre; // design units
    IonSign sign = IonSign::Minus;
};
inline constexpr std::size_t kCrystalRows = 5;
inline constexpr std::size_t kCrystalColumns = 20;

// The crystal that lies at the bottom of the glass, chloride and silver ions in turn.
std::array<CrystalIon, kCrystalRows * kCrystalColumns> crystalIons();

std::array<Point, 32> roundedBox(const Rect& box, double cornerRadius);

} // namespace quendal
