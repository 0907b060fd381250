#include "particles/cls_Molecule.h"

#include "particles/cls_Molecules.h"
#include "particles/distance.h"
#include "particles/reactions.h"
#include "particles/species.h"

#include <cmath>

namespace quendal {

namespace {

constexpr double kContactFactor = 1.2; // on the distance, against the sum of the radii
constexpr int kContactFrames = 20;     // of touching before partners react
constexpr int kFlash = 20;             // after-glow of a reaction
constexpr double kPushShare = 4;       // of the distance goes into the repulsion
constexpr double kStepShare = 5;       // of the way to the target is a step, at most 1 unit
constexpr double kAtGoal = 0.1;        // nearer than this a particle rests

// Nothing farther than this touches: two largest particles do so below 10 / 1.2, whose square is
// 69.4, and the rest of the way to 70 is far more than any rounding.
constexpr double kBeyondContact = 70;
static_assert(4 * kLargestRadius * kLargestRadius / (kContactFactor * kContactFactor) < 69.5);

} // namespace

cls_Molecule::cls_Molecule() : tmp_Data("cls_Molecule") {}

void cls_Molecule::THINK() {
    Encounter encounter;
    std::shared_ptr<cls_Molecule> alive;
    if (Parent != nullptr) {
        encounter = meetOthers();
        if (encounter.someGone) {
            alive = Parent->removeReacted(*this);
        }
    }
    keepTargetOffWalls();
    if (!Placed) {
        TargetX += encounter.push.x;
        TargetY += encounter.push.y;
        encounter.push = {};
    }
    stepToTarget(encounter.push);
}

cls_Molecule::Encounter cls_Molecule::meetOthers() {
    Encounter encounter;
    for (const auto& held : Parent->particles()) {
        cls_Molecule& other = *held;
        encounter.someGone |= other.sort_ == kReactedAway;
        if (distanceSquare(other.PosX, other.PosY, PosX, PosY) > kBeyondContact || &other == this ||
            !other.COLL(*this)) {
            continue;
        }
        if (other.CANREACT(*this)) {
            touch(other);
            encounter.someGone |= sort_ == kReactedAway || other.sort_ == kReactedAway;
        }
        encounter.push.x -= (other.PosX - PosX) / kPushShare;
        encounter.push.y -= (other.PosY - PosY) / kPushShare;
    }
    return encounter;
}

void cls_Molecule::touch(cls_Molecule& partner) {
    if (partner.ContactCount < kContactFrames || ContactCount < kContactFrames) {
        ++partner.ContactCount;
        ++ContactCount;
        return;
    }
    partner.REACT(*this);
    partner.ContactCount = ContactCount = 0;
    partner.ReactFlash = ReactFlash = kFlash;
}

void cls_Molecule::keepTargetOffWalls() {
    const double r = RADIUS();
    if (TargetX - r < 0) {
        TargetX = r;
    }
    if (TargetX + r > 100) {
        TargetX = 100 - r;
    }
    // Twice the radius at the top, so that a particle never looks out of the liquid: meant.
    if (TargetY - 2 * r < 0) {
        TargetY = 2 * r;
    }
    if (TargetY + r > 100) {
        TargetY = 100 - r;
    }
}

void cls_Molecule::stepToTarget(Point push) {
    const double dx = TargetX - PosX + push.x;
    const double dy = TargetY - PosY + push.y;
    const double way = std::sqrt(dx * dx + dy * dy);
    if (way > kAtGoal) {
        const double step = way / kStepShare > 1 ? 1 : way / kStepShare;
        PosX += step * dx / way;
        PosY += step * dy / way;
    }
}

bool cls_Molecule::COLL(const cls_Molecule& other) const {
    return RADIUS() + other.RADIUS() > kContactFactor * DIST(other);
}

double cls_Molecule::RADIUS() const {
    return speciesOf(SORT()).radius;
}

Color cls_Molecule::COLOR() const {
    return speciesOf(SORT()).plainColor;
}

double cls_Molecule::DIST(const cls_Molecule& other) const {
    return DISTCORD(other.PosX, other.PosY);
}

double cls_Molecule::DISTCORD(double x, double y) const {
    return std::sqrt(distanceSquare(PosX, PosY, x, y));
}

double cls_Molecule::DISTTARGET() const {
    return DISTCORD(TargetX, TargetY);
}

bool cls_Molecule::CANREACT(const cls_Molecule& other) const {
    return kindsReact(SORT(), other.SORT());
}

void cls_Molecule::REACT(cls_Molecule& other) {
    const Reaction* reaction = findReaction(SORT(), other.SORT());
    if (reaction == nullptr) {
        return;
    }
    // Only an acetic acid hands the sign of the hydroxide on: the other way round it is lost.
    // Meant.
    const bool signGoesOn = SORT() == kAceticAcid && other.sort_ == -kHydroxide;
    sort_ = signGoesOn ? -reaction->products.self : reaction->products.self;
    other.sort_ = reaction->products.other;
    if (sort_ == kSilverChloride) {
        Solid = true;
    }
}

} // namespace quendal
