// Particles that still wait for a cell, and which of them stands nearest to one.
#pragma once

#include "host/geometry.h"

#include <span>
#include <vector>

namespace quendal {

class cls_Molecule;

class NearestPool {
  public:
    void fill(std::span<cls_Molecule* const> particles);
    // Takes the particle nearest to `place` out of the pool, of equally near ones the first; null
    // when none is left.
    cls_Molecule* takeNearest(Point place);

  private:
    std::size_t indexOfNearest(Point place);

    // Side by side rather than in the particles, so that one search runs through plain memory.
    std::vector<double> x_;
    std::vector<double> y_;
    std::vector<cls_Molecule*> particles_;
    std::vector<double> squares_; // of the distances of the present search
};

} // namespace quendal
