// The word that a mistyped one was meant to be.
#pragma once

#include <span>
#include <string_view>

namespace quendal {

// The word of `known` that takes the fewest letters added, left out or replaced, the first of equal
// ones; empty when more than two fifths of its letters would differ.
std::string_view nearestWord(std::string_view word, std::span<const std::string_view> known);

} // namespace quendal
