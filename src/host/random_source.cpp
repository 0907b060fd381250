#include "host/random_source.h"

#include <bit>

namespace quendal {

void RandomSource::seed(std::uint64_t value) {
    for (std::uint64_t& word : state_) {
        value += 0x9e3779b97f4a7c15U;
        std::uint64_t z = value;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9U;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebU;
        word = z ^ (z >> 31);
    }
}

double RandomSource::next() {
    const std::uint64_t result = std::rotl(state_[1] * 5, 7) * 9;
    const std::uint64_t shifted = state_[1] << 17;
    state_[2] ^= state_[0];
    state_[3] ^= state_[1];
    state_[1] ^= state_[2];
    state_[0] ^= state_[3];
    state_[2] ^= shifted;
    state_[3] = std::rotl(state_[3], 45);
    return static_cast<double>(result >> 11) * 0x1.0p-53;
}

} // namespace quendal
