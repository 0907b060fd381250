// What is in the beaker in words, for who doesn't see the particles.
#pragma once

#include <span>
#include <string>

namespace quendal {

// `counts` by particle kind: "Im Becher: 8 Oxonium-Ionen und 1 Chlorid-Ion." Water isn't counted.
std::string beakerWords(std::span<const int> counts);

} // namespace quendal
