#include "particles/target_exchange.h"

#include "particles/cls_Molecule.h"
#include "particles/distance.h"

#include <algorithm>
#include <utility>

namespace quendal {

void TargetExchange::run(std::span<cls_Molecule* const> particles) {
    load(particles);
    for (std::size_t row = 0; row < particles_.size();) {
        const std::size_t other = partnerOf(row);
        if (other == kNone) {
            seen_[row] = changed_.size();
            ++row;
        } else {
            exchange(row, other);
            row = 0;
        }
    }
    for (std::size_t i = 0; i < particles_.size(); ++i) {
        particles_[i]->TargetX = targetX_[i];
        particles_[i]->TargetY = targetY_[i];
    }
}

void TargetExchange::load(std::span<cls_Molecule* const> particles) {
    particles_.clear();
    for (auto* list : {&x_, &y_, &targetX_, &targetY_}) {
        list->clear();
    }
    for (cls_Molecule* particle : particles) {
        if (!particle->Reacting) {
            particles_.push_back(particle);
            x_.push_back(particle->PosX);
            y_.push_back(particle->PosY);
            targetX_.push_back(particle->TargetX);
            targetY_.push_back(particle->TargetY);
        }
    }
    way_.resize(particles_.size());
    longer_.resize(particles_.size());
    changed_.clear();
    seen_.assign(particles_.size(), kNone);
    for (std::size_t i = 0; i < particles_.size(); ++i) {
        measure(i);
    }
}

void TargetExchange::measure(std::size_t row) {
    way_[row] = distanceSquare(x_[row], y_[row], targetX_[row], targetY_[row]);
}

std::size_t TargetExchange::partnerOf(std::size_t row) {
    const bool worthList =
        seen_[row] != kNone && changed_.size() - seen_[row] < particles_.size() / 4;
    return worthList ? partnerAmongChanged(row) : partnerAmongAll(row);
}

std::size_t TargetExchange::partnerAmongAll(std::size_t row) {
    const std::size_t count = particles_.size();
    const double rowX = x_[row];
    const double rowY = y_[row];
    const double goalX = targetX_[row];
    const double goalY = targetY_[row];
    for (std::size_t i = 0; i < count; ++i) {
        const double others = distanceSquare(x_[i], y_[i], goalX, goalY);
        const double rows = distanceSquare(rowX, rowY, targetX_[i], targetY_[i]);
        longer_[i] = others > rows ? others : rows;
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (longer_[i] < way_[row] && bothGain(row, i)) {
            return i;
        }
    }
    return kNone;
}

std::size_t TargetExchange::partnerAmongChanged(std::size_t row) const {
    std::size_t first = kNone;
    for (std::size_t i = seen_[row]; i < changed_.size(); ++i) {
        const std::size_t other = changed_[i];
        if (other < first && other != row && bothGain(row, other)) {
            first = other;
        }
    }
    return first;
}

bool TargetExchange::bothGain(std::size_t row, std::size_t other) const {
    return isNearer(distanceSquare(x_[other], y_[other], targetX_[row], targetY_[row]),
                    way_[row]) &&
           isNearer(distanceSquare(x_[row], y_[row], targetX_[other], targetY_[other]), way_[row]);
}

void TargetExchange::exchange(std::size_t row, std::size_t other) {
    std::swap(targetX_[row], targetX_[other]);
    std::swap(targetY_[row], targetY_[other]);
    for (const std::size_t changed : {row, other}) {
        measure(changed);
        changed_.push_back(changed);
        seen_[changed] = kNone;
    }
}

} // namespace quendal
