// What the fuzzers share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace quendal {

inline std::string_view fuzzText(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// Stops the fuzzer with the present input when a property doesn't hold.
inline void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace quendal
