// Colours as the logic speaks of them: 8 bits a channel, no alpha.
#pragma once

#include <cstdint>
#include <string>

namespace quendal {

struct Color {
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;

    friend constexpr bool operator==(const Color&, const Color&) = default;
};

inline constexpr Color kBlack{0, 0, 0};
inline constexpr Color kWhite{255, 255, 255};

// The classic palette of sixteen colours; n from 0 to 15, anything else gives black.
constexpr Color palette(int n) {
    constexpr Color kPalette[16] = {{0, 0, 0},       {0, 0, 128},   {0, 128, 0},   {0, 128, 128},
                                    {128, 0, 0},     {128, 0, 128}, {128, 128, 0}, {192, 192, 192},
                                    {128, 128, 128}, {0, 0, 255},   {0, 255, 0},   {0, 255, 255},
                                    {255, 0, 0},     {255, 0, 255}, {255, 255, 0}, {255, 255, 255}};
    return n >= 0 && n < 16 ? kPalette[n] : kBlack;
}

// Colour `base` with `percent` (0 to 100, cut to that range) of `mixed` in it; each channel is
// rounded half to even.
Color blend(Color base, double percent, Color mixed);

// "#rrggbb" in lower case.
std::string colorText(Color color);

} // namespace quendal
