// Chance. The only source of it for all logic.
#pragma once

#include <cstdint>

namespace quendal {

// xoshiro256** with splitmix64 seeding: the same seed gives the same run on every machine.
class RandomSource {
  public:
    explicit RandomSource(std::uint64_t seedValue = 1) { seed(seedValue); }
    virtual ~RandomSource() = default;

    // Uniform in [0, 1), with 53 random bits.
    double next();
    void seed(std::uint64_t value);
    // Seeds anew from the host's clock; a host with a clock of its own uses the seed it was given.
    virtual void Randomize() = 0;

  private:
    std::uint64_t state_[4] = {};
};

} // namespace quendal
