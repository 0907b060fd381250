// The product's name, version and licence, for the places that are needed before the program has
// told them to its host.
#pragma once

namespace quendal {

inline constexpr const char* kProductName = "Quendal";
inline constexpr const char* kProductVersion = "3.0";
inline constexpr const char* kProductLicence = "GPL-3.0-or-later";

} // namespace quendal
