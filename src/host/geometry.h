// Places and sizes in design units. One unit is one pixel at scale 1, or 15 twips.
#pragma once

namespace quendal {

inline constexpr double kTwipsPerUnit = 15.0;

struct Point {
    double x = 0;
    double y = 0;

    friend constexpr bool operator==(const Point&, const Point&) = default;
};

struct Size {
    double width = 0;
    double height = 0;

    friend constexpr bool operator==(const Size&, const Size&) = default;
};

struct Rect {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    double right() const { return left + width; }
    double bottom() const { return top + height; }

    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

// Whole pixels of the screen; all four edges belong to it.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = -1;
    int bottom = -1;

    friend constexpr bool operator==(const PixelRect&, const PixelRect&) = default;
};

} // namespace quendal
