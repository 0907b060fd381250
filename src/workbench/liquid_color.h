// The colour of a liquid by its pH.
#pragma once

#include "host/color.h"

namespace quendal {

inline constexpr Color kPlainLiquid{153, 204, 204};

// Reddish below 7, greenish at exactly 7, bluish above.
inline Color liquidColor(double pH) {
    if (pH < 7.0) {
        return blend(kPlainLiquid, 60, {255, 150, 150});
    }
    if (pH == 7.0) {
        return blend(kPlainLiquid, 30, {150, 255, 150});
    }
    return blend(kPlainLiquid, 50, {150, 150, 255});
}

} // namespace quendal
