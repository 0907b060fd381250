#include "particles/nearest_pool.h"

#include "particles/cls_Molecule.h"
#include "particles/distance.h"

namespace quendal {

void NearestPool::fill(std::span<cls_Molecule* const> particles) {
    particles_.assign(particles.begin(), particles.end());
    x_.clear();
    y_.clear();
    for (const cls_Molecule* particle : particles_) {
        x_.push_back(particle->PosX);
        y_.push_back(particle->PosY);
    }
    squares_.resize(particles_.size());
}

cls_Molecule* NearestPool::takeNearest(Point place) {
    if (particles_.empty()) {
        return nullptr;
    }
    const auto index = static_cast<std::ptrdiff_t>(indexOfNearest(place));
    cls_Molecule* nearest = particles_[static_cast<std::size_t>(index)];
    x_.erase(x_.begin() + index);
    y_.erase(y_.begin() + index);
    particles_.erase(particles_.begin() + index);
    return nearest;
}

std::size_t NearestPool::indexOfNearest(Point place) {
    const std::size_t count = particles_.size();
    for (std::size_t i = 0; i < count; ++i) {
        squares_[i] = distanceSquare(x_[i], y_[i], place.x, place.y);
    }
    std::size_t best = 0;
    for (std::size_t i = 1; i < count; ++i) {
        if (isNearer(squares_[i], squares_[best])) {
            best = i;
        }
    }
    return best;
}

} // namespace quendal
