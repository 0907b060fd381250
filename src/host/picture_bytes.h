// What can be told of a picture file without reading its pixels.
#pragma once

#include <string_view>

namespace quendal {

// A GIF ends with its trailer, whatever zeros follow. Readers take one that is cut short and show
// black where something is missing; it counts as broken. False for other formats.
inline bool isGifCutShort(std::string_view bytes) {
    constexpr char kTrailer = ';';
    const auto last = bytes.find_last_not_of('\0');
    return bytes.starts_with("GIF8") && bytes[last] != kTrailer;
}

} // namespace quendal
