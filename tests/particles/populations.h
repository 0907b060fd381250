// Random populations for both forms of the particles, and where the two differ.
#pragma once

#include "particles/cls_Molecules.h"
#include "particles/liquid_owner.h"
#include "particles/reference_particle.h"

#include <string>
#include <vector>

namespace quendal {
class RandomSource;
}

namespace quendal::test {

class Liquid final : public LiquidOwner {
  public:
    int liquidVolume() const override { return volume; }
    int volume = 0; // mL
};

struct Seedling {
    int sort = 0;
    double x = 0;
    double y = 0;
    double targetX = 0;
    double targetY = 0;
    double fade = 0;
    int contactCount = 0;
    int reactFlash = 0;
    bool solid = false;
    bool reacting = false;
    bool placed = false;
};

struct Population {
    int volume = 0; // mL
    std::vector<Seedling> seedlings = {};
};

// Up to `limit` particles of mixed kinds, with everything that makes the rules branch: equal and
// nearly equal places, precipitate, particles on their way to a partner, targets off the field.
Population randomPopulation(RandomSource& random, int limit);

// The same population in both forms.
struct Twins {
    explicit Twins(const Population& population);
    Twins(const Twins&) = delete;
    Twins& operator=(const Twins&) = delete;

    Liquid liquid;
    cls_Molecules shipped;
    reference::Collection plain;
};

// The first difference in any bit of any particle, or in their order; empty when there is none.
std::string difference(const Twins& twins);

} // namespace quendal::test
