// What stage and scripts put at the same place.
#pragma once

#include "host/geometry.h"

namespace quendal {

inline constexpr Rect kFooter{20, 540, 760, 40};
inline constexpr Rect kZoomPanel{20, 50, 480, 470}; // the powers of ten

inline constexpr const char* kNextStep =
    "Mit Mausklick weiter zum nächsten Schritt. Mit ESC beenden";

} // namespace quendal
