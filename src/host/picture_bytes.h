// What can be told of a picture file without reading its pixels.
#pragma once

#include "host/geometry.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>

namespace quendal {

inline constexpr int kLargestPictureSide = 8192; // px; a picture beyond it is taken for broken

constexpr bool isPictureSide(int px) {
    return px > 0 && px <= kLargestPictureSide;
}

// A picture beyond it is taken for broken too: more than any screen shows, 48 MB in memory.
inline constexpr double kLargestPictureArea = 12e6; // px

constexpr bool isPictureSize(int width, int height) {
    return isPictureSide(width) && isPictureSide(height) &&
           static_cast<double>(width) * height <= kLargestPictureArea;
}

// Whole px of a drawing's side; even the smallest has one.
inline int wholePx(double side) {
    return std::max(1, static_cast<int>(std::lround(side)));
}

// A GIF ends with its trailer, whatever zeros follow. Readers take one that is cut short and show
// black where something is missing; it counts as broken. False for other formats.
inline bool isGifCutShort(std::string_view bytes) {
    constexpr char kTrailer = ';';
    const auto last = bytes.find_last_not_of('\0');
    return bytes.starts_with("GIF8") && bytes[last] != kTrailer;
}

// The logical screen of a GIF, on which its images lie; it is as large as the picture, in px.
// Nullopt for other formats, for a file that is cut short, and for a screen that is empty or larger
// than a picture may be.
std::optional<Size> gifScreen(std::string_view bytes);

// Begins as a GIF does.
inline bool isGif(std::string_view bytes) {
    return bytes.starts_with("GIF87a") || bytes.starts_with("GIF89a");
}

// The head of a placeable metafile: the box that the drawing fills, and its units for one inch.
// How the box lies is left as it stands: right may be less than left.
struct PlaceableHead {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    int unitsPerInch = 0;

    // In design px, 96 to an inch.
    Size size() const;
};

inline constexpr std::size_t kPlaceableHeadSize = 22; // bytes
inline constexpr std::size_t kMetafileHeadSize = 18;  // bytes, of the plain head behind it

// Begins as a placeable metafile does.
bool isPlaceable(std::string_view bytes);

// Nullopt for other formats, for a box that is empty, larger than a picture may be or without
// units, and for a file that is cut short: its records, one behind the other, don't lead to the one
// that ends a metafile. What stands in the records isn't looked at, nor what follows the last, nor
// the checksum, which many writers get wrong.
std::optional<PlaceableHead> placeableHead(std::string_view bytes);

} // namespace quendal
