// Who meets whom, and where everyone stands.
#include "particles/cls_Molecules.h"

#include "particles/distance.h"
#include "particles/liquid_owner.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace quendal {

namespace {

constexpr double kFloor = 100;    // where precipitate comes to rest, in field units
constexpr double kMeetingGap = 1; // partners aim this far beside the middle between them

// Cut towards zero; never a negative zero.
double wholePart(double value) {
    return static_cast<int>(value);
}

void sendToMeet(cls_Molecule& left, cls_Molecule& right) {
    const Point middle{(left.PosX + right.PosX) / 2, (left.PosY + right.PosY) / 2};
    left.TargetX = middle.x - kMeetingGap;
    right.TargetX = middle.x + kMeetingGap;
    left.TargetY = right.TargetY = middle.y;
}

} // namespace

bool cls_Molecules::REACT() {
    for (const auto& particle : mol_) {
        particle->Placed = particle->Reacting = false;
    }
    if (!hasPairThatCanReact()) {
        return false;
    }
    bool found = false;
    for (const auto& particle : mol_) {
        cls_Molecule* partner = particle->Placed ? nullptr : nearestPartner(*particle);
        if (partner == nullptr) {
            continue;
        }
        // A helper water that is still fading in is bespoken, but nobody is sent.
        if (particle->Fade == 0 && partner->Fade == 0) {
            sendToMeet(*particle, *partner);
        }
        particle->Placed = partner->Placed = true;
        particle->Reacting = partner->Reacting = true;
        found = true;
    }
    return found;
}

cls_Molecule* cls_Molecules::nearestPartner(const cls_Molecule& particle) const {
    const KindSet wanted = partnersOf(particle.SORT());
    if (wanted == 0) {
        return nullptr;
    }
    cls_Molecule* nearest = nullptr;
    double nearestSquare = 0;
    for (const auto& other : mol_) {
        if (other->Placed || (kindBit(other->SORT()) & wanted) == 0) {
            continue;
        }
        const double square =
            distanceSquare(particle.PosX, particle.PosY, other->PosX, other->PosY);
        if (nearest == nullptr || isNearer(square, nearestSquare)) {
            nearest = other.get();
            nearestSquare = square;
        }
    }
    return nearest;
}

KindSet cls_Molecules::kindsPresent() const {
    KindSet kinds = 0;
    for (const auto& particle : mol_) {
        kinds |= kindBit(particle->SORT());
    }
    return kinds;
}

bool cls_Molecules::hasPairThatCanReact() const {
    const KindSet present = kindsPresent();
    return std::any_of(kReactions.begin(), kReactions.end(), [=](const Reaction& reaction) {
        return (kindBit(reaction.self) & present) != 0 && (kindBit(reaction.other) & present) != 0;
    });
}

void cls_Molecules::GRID() {
    if (mol_.empty()) {
        return;
    }
    solidsLast();
    sinkSolids();
    const int freeCount = groupByKind();
    GridPattern::Counts counts{};
    std::transform(byKind_.begin(), byKind_.end(), counts.begin(),
                   [](const Group& group) { return static_cast<int>(group.size()); });
    pattern_.plan(counts, freeCount, Parent == nullptr ? 0 : Parent->liquidVolume());
    // Kinds don't compete for cells, so one after the other gives what all at once would.
    for (int kind = 0; kind <= GridPattern::kKinds; ++kind) {
        layOutKind(kind, freeCount);
    }
}

// Each Solid particle changes places with the first one behind it that isn't, so that the free ones
// come to stand in front.
void cls_Molecules::solidsLast() {
    auto next = mol_.begin();
    for (auto place = mol_.begin(); place != mol_.end(); ++place) {
        if (!(*place)->Solid) {
            continue;
        }
        next = std::find_if(std::max(next, place + 1), mol_.end(),
                            [](const auto& particle) { return !particle->Solid; });
        if (next == mol_.end()) {
            return;
        }
        std::swap(*place, *next);
    }
}

void cls_Molecules::sinkSolids() {
    for (const auto& particle : mol_) {
        particle->Placed = false;
        if (particle->Solid) {
            particle->TargetY = kFloor;
        }
    }
}

int cls_Molecules::groupByKind() {
    for (Group& group : byKind_) {
        group.clear();
    }
    int freeCount = 0;
    for (const auto& particle : mol_) {
        if (particle->Solid) {
            continue;
        }
        const int kind = particle->SORT();
        if (kind < 0 || kind > GridPattern::kKinds) {
            throw std::out_of_range("a kind of particle that the grid can't count");
        }
        byKind_[static_cast<std::size_t>(kind)].push_back(particle.get());
        ++freeCount;
    }
    return freeCount;
}

void cls_Molecules::layOutKind(int kind, int freeCount) {
    const Group& group = byKind_[static_cast<std::size_t>(kind)];
    if (group.empty()) {
        return;
    }
    pool_.fill(group);
    for (int cell = 1; cell <= freeCount; ++cell) {
        if (pattern_.kindAt(cell) != kind) {
            continue;
        }
        const Point place = pattern_.place(cell);
        cls_Molecule* particle = pool_.takeNearest(place);
        if (particle == nullptr) {
            break;
        }
        if (!particle->Reacting) {
            particle->TargetX = wholePart(place.x);
            particle->TargetY = wholePart(place.y);
        }
        particle->Placed = true;
    }
    exchange_.run(group);
}

void cls_Molecules::SNAP() {
    if (mol_.empty()) {
        return;
    }
    const int count = COUNT();
    const int columns = static_cast<int>(std::nearbyint(std::sqrt(count)));
    const int rows = (count + columns - 1) / columns;
    Group& all = byKind_[0];
    all.clear();
    for (const auto& particle : mol_) {
        all.push_back(particle.get());
    }
    pool_.fill(all);
    for (int cell = 1; cell <= count; ++cell) {
        const Point place = gridPlace(cell, rows, columns);
        cls_Molecule* particle = pool_.takeNearest(place);
        if (!particle->Reacting) {
            particle->TargetX = place.x;
            particle->TargetY = place.y;
        }
        particle->Placed = true;
    }
    exchange_.run(all);
}

} // namespace quendal
