#include "host/color.h"

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

std::uint8_t blendChannel(std::uint8_t base, double share, std::uint8_t mixed) {
    return static_cast<std::uint8_t>(std::nearbyint(base + (mixed - base) * share));
}

} // namespace

Color blend(Color base, double percent, Color mixed) {
    const double share = std::clamp(percent, 0.0, 100.0) / 100.0;
    return {blendChannel(base.r, share, mixed.r), blendChannel(base.g, share, mixed.g),
            blendChannel(base.b, share, mixed.b)};
}

std::string colorText(Color color) {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string text = "#";
    for (const std::uint8_t channel : {color.r, color.g, color.b}) {
        text += kDigits[channel >> 4];
        text += kDigits[channel & 15];
    }
    return text;
}

} // namespace quendal
