// Two colours mixed.
#pragma once

#include <cstdint>

namespace quendal {

inline constexpr unsigned kWholeWeight = 256; // of a pixel that stands alone

// `weight` of 256 of the second, the rest of the first. Two channels at once, each with the empty
// byte above it for the carry.
inline std::uint32_t mixedPixels(std::uint32_t first, std::uint32_t second, unsigned weight) {
    constexpr std::uint32_t kChannels = 0x00ff00ffU;
    constexpr std::uint32_t kHalf = 0x00800080U;
    const unsigned rest = kWholeWeight - weight;
    const std::uint32_t low =
        ((first & kChannels) * rest + (second & kChannels) * weight + kHalf) >> 8;
    const std::uint32_t high =
        ((first >> 8) & kChannels) * rest + ((second >> 8) & kChannels) * weight + kHalf;
    return (low & kChannels) | (high & ~kChannels);
}

} // namespace quendal
