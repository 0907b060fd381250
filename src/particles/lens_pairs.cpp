#include "particles/lens_pairs.h"

#include "particles/lens_drawing.h"

#include <algorithm>
#include <cstdlib>

namespace quendal {

namespace {

enum State : std::int32_t {
    kApart = 0,
    kMeeting = 1,
    kLeavingAsIons = 2,
    kIons = 3,
    kMeetingAsIons = 4,
    kLeaving = 5
};

constexpr int kWidestGap = 5;
constexpr int kTouchFrames = 6; // that the parts of a pair stay together
constexpr int kIonFrames = 6;   // that ions stay ions at least
constexpr int kMargin = 20;     // of the part of the surface that pairs stand in
constexpr int kRoomAcross = 240;
constexpr int kRoomDown = 220;
constexpr int kReachAcross = 30; // a pair within both of another pair would touch it
constexpr int kReachDown = 15;

// Fifty pairs cover about a third of the room, and chance alone finds places for more than seventy,
// so a place is found after a few tries. A generator that repeats itself must not hang the program:
// beyond this number of tries the first free place of the rows is taken.
constexpr int kMostTries = 1000;

bool touches(const LensParticle& one, const LensParticle& other) {
    return std::abs(one.PX - other.PX) <= kReachAcross && std::abs(one.PY - other.PY) <= kReachDown;
}

bool isFree(const LensParticle& pair, std::span<const LensParticle> placed) {
    return std::none_of(placed.begin(), placed.end(),
                        [&](const LensParticle& other) { return touches(pair, other); });
}

// Leaves the pair where it is when no place is free.
void takeFirstFree(LensParticle& pair, std::span<const LensParticle> placed) {
    LensParticle at = pair;
    for (at.PY = kMargin; at.PY < kMargin + kRoomDown; ++at.PY) {
        for (at.PX = kMargin; at.PX < kMargin + kRoomAcross; ++at.PX) {
            if (isFree(at, placed)) {
                pair = at;
                return;
            }
        }
    }
}

} // namespace

void PairScene::place() {
    for (std::size_t number = 0; number < pairs_.size(); ++number) {
        placePair(number);
    }
}

void PairScene::placePair(std::size_t number) {
    LensParticle& pair = pairs_[number];
    const std::span<const LensParticle> placed(pairs_.data(), number);
    pair = {.State = kApart, .Gap = kWidestGap};
    for (int tries = 0; tries < kMostTries; ++tries) {
        pair.PX = static_cast<int>(random() * kRoomAcross) + kMargin;
        pair.PY = static_cast<int>(random() * kRoomDown) + kMargin;
        if (isFree(pair, placed)) {
            return;
        }
    }
    takeFirstFree(pair, placed);
}

int PairScene::mostActive() const {
    return kind_ == PairKind::AceticAcid ? 5 : 3;
}

// Some of the acid always stays dissociated.
bool PairScene::mayReturn(int active) const {
    return kind_ == PairKind::Water || active >= 3;
}

void PairScene::approach(LensParticle& pair, int next) {
    if (pair.Gap >= 1) {
        --pair.Gap;
        pair.Wait = 0;
    } else if (++pair.Wait >= kTouchFrames) {
        pair.State = next;
        play(LensSound::Burst);
    }
}

void PairScene::part(LensParticle& pair, int next) {
    if (pair.Gap < kWidestGap) {
        ++pair.Gap;
    } else {
        pair.Wait = 0;
        pair.State = next;
    }
}

void PairScene::stepParticle(LensParticle& pair, int active) {
    switch (pair.State) {
    case kApart:
        pair.Gap = kWidestGap;
        if (chanceToStart(active) && active < mostActive()) {
            pair.State = kMeeting;
            play(LensSound::Collide);
        }
        break;
    case kMeeting:
        approach(pair, kLeavingAsIons);
        break;
    case kLeavingAsIons:
        part(pair, kIons);
        break;
    case kIons:
        if (++pair.Wait >= kIonFrames && chance(10) && mayReturn(active)) {
            pair.State = kMeetingAsIons;
            play(LensSound::Collide);
        }
        break;
    case kMeetingAsIons:
        approach(pair, kLeaving);
        break;
    default:
        part(pair, kApart);
        break;
    }
}

namespace {

struct Part {
    Point place;
    double radius;
    Color color;
    Color halo;
};

constexpr int kTakenHalo = 12; // of the molecule that has taken the proton
constexpr int kGivenHalo = 9;  // of the one that has lost it

bool protonMoved(const LensParticle& pair) {
    return pair.State >= kLeavingAsIons && pair.State <= kMeetingAsIons;
}

// The proton last, so that it is seen wherever it sits.
std::array<Part, 5> partsOf(const LensParticle& pair) {
    constexpr double kAtom = 3;
    constexpr double kBody = 5;
    const bool calm = pair.State == kApart;
    const Color atoms = palette(calm ? 7 : 15);
    const double x = pair.PX;
    const double y = pair.PY;
    const double gap = pair.Gap;
    const Point proton{protonMoved(pair) ? x - 6 - gap : x + gap, y};
    return {{{{x - 7 - gap, y - 6}, kAtom, atoms, palette(kTakenHalo)},
             {{x - 7 - gap, y + 6}, kAtom, atoms, palette(kTakenHalo)},
             {{x - 6 - gap, y}, kBody, palette(1), palette(kTakenHalo)},
             {{x + 6 + gap, y}, kBody, palette(calm ? 4 : 12), palette(kGivenHalo)},
             {proton, kAtom, atoms, palette(kTakenHalo)}}};
}

} // namespace

void PairScene::draw(Surface& surface, Size /*unit*/) const {
    for (const LensParticle& pair : pairs_) {
        const auto parts = partsOf(pair);
        if (protonMoved(pair)) {
            // All halos first, so that none covers a neighbour.
            for (const Part& part : parts) {
                hDrawBall(surface, part.place.x, part.place.y, part.radius, part.color, true,
                          part.halo, false, false);
            }
        }
        for (const Part& part : parts) {
            drawPlainBall(surface, part.place.x, part.place.y, part.radius, part.color);
        }
    }
}

} // namespace quendal
