// Room for texts where no fonts are at hand.
#pragma once

#include "host/font.h"
#include "host/geometry.h"
#include "host/utf8.h"

#include <string_view>

namespace quendal {

// About what a text takes in a sans serif font: every character is as wide as an average one.
inline Size estimatedTextSize(std::string_view text, const FontSpec& font) {
    constexpr double kWidth = 0.55;      // of the font's size, for a character
    constexpr double kLineHeight = 1.15; // of the font's size
    std::size_t characters = 0;
    for (const char byte : text) {
        characters += continuesCharacter(byte) ? 0 : 1;
    }
    return {static_cast<double>(characters) * kWidth * font.size, kLineHeight * font.size};
}

} // namespace quendal
