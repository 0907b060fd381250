#include "particles/lens_crystal.h"

#include "host/surface.h"
#include "particles/lens_drawing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quendal {

namespace {

// There is no state 3.
enum State : std::int32_t { kInCrystal = 0, kRising = 1, kFree = 2, kSettling = 4, kSinking = 5 };

constexpr int kMostActive = 3;
constexpr int kLoose = 5;       // Gap that rising reaches at most
constexpr int kFarthest = 15;   // Gap that a free ion reaches at most
constexpr int kFreeFrames = 40; // that an ion is free at least

constexpr std::int32_t LensParticle::*kWobbles[] = {&LensParticle::Wobble1, &LensParticle::Wobble2,
                                                    &LensParticle::Wobble3, &LensParticle::Wobble4};

// One step towards `goal`.
void moveTo(std::int32_t& value, std::int32_t goal) {
    value += value < goal ? 1 : value > goal ? -1 : 0;
}

} // namespace

void CrystalScene::place() {
    constexpr int kFreeFromTheStart = 2;
    ColumnOpen = {};
    for (int k = 1; k <= kColumns; ++k) {
        ions_[static_cast<std::size_t>(k - 1)] = {
            .PX = columnPlace(k), .PY = kRestHeight, .State = kInCrystal, .Column = k};
    }
    LensParticle& first = ions_[kFreeFromTheStart - 1];
    first.PY = 80;
    first.State = kFree;
    ColumnOpen[kFreeFromTheStart] = true;
}

bool CrystalScene::isOpen(int column) const {
    return column >= 1 && column <= kColumns && ColumnOpen[static_cast<std::size_t>(column)];
}

void CrystalScene::stepParticle(LensParticle& ion, int active) {
    switch (ion.State) {
    case kInCrystal:
        rest(ion, active);
        break;
    case kRising:
        rise(ion);
        break;
    case kFree:
        drift(ion, active);
        break;
    case kSettling:
        settle(ion);
        break;
    default:
        sink(ion);
        break;
    }
}

void CrystalScene::rest(LensParticle& ion, int active) {
    if (active >= kMostActive || !chanceToStart(active)) {
        return;
    }
    ColumnOpen[static_cast<std::size_t>(ion.Column)] = true;
    ion.Goal = static_cast<std::int32_t>(std::nearbyint(random() * 100 + 20));
    ion.Wait = 0;
    ion.Fast = static_cast<int>(random() * 100) < 30 ? 1 : 0;
    ion.State = kRising;
    play(LensSound::Burst);
}

void CrystalScene::rise(LensParticle& ion) {
    if (ion.Gap < kLoose && chance(10)) {
        ++ion.Gap;
    }
    ion.PY -= ion.Fast != 0 ? 2 : 1;
    if (ion.PY <= ion.Goal) { // two units at a time may pass it
        ion.State = kFree;
    }
}

void CrystalScene::drift(LensParticle& ion, int active) {
    if (ion.Gap < kFarthest && chance(15)) {
        ++ion.Gap;
    }
    for (const auto wobble : kWobbles) {
        if (chance(15)) {
            ion.*wobble += chance(50) ? 1 : -1;
        }
    }
    ++ion.Wait;
    if (ion.Wait > kFreeFrames && active > 1 && chance(10)) {
        play(LensSound::Collide);
        ion.Column = chooseColumn(ion);
        ColumnOpen[static_cast<std::size_t>(ion.Column)] = false;
        ion.State = kSettling;
    }
}

int CrystalScene::chooseColumn(const LensParticle& ion) {
    for (const int aside : {-1, 1, -2, 2}) {
        const bool wanted = chance(50);
        if (wanted && isOpen(ion.Column + aside)) {
            return ion.Column + aside;
        }
    }
    const auto hole = std::find(ColumnOpen.begin(), ColumnOpen.end(), true);
    const bool noOther = isOpen(ion.Column) || hole == ColumnOpen.end();
    return noOther ? ion.Column : static_cast<int>(hole - ColumnOpen.begin());
}

void CrystalScene::settle(LensParticle& ion) {
    moveTo(ion.PX, columnPlace(ion.Column));
    ion.Gap = std::max(0, ion.Gap - 1);
    for (const auto wobble : kWobbles) {
        moveTo(ion.*wobble, 0);
    }
    if (ion.Gap < 1) {
        for (const auto wobble : kWobbles) {
            ion.*wobble = 0;
        }
        ion.State = kSinking;
    }
}

void CrystalScene::sink(LensParticle& ion) {
    const std::int32_t column = columnPlace(ion.Column);
    moveTo(ion.PX, column);
    moveTo(ion.PY, kRestHeight);
    // An ion may be down before it is over its hole, or the other way round.
    if (ion.PY == kRestHeight && ion.PX == column) {
        ion.State = kInCrystal;
    }
}

} // namespace quendal
