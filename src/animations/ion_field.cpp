#include "animations/ion_field.h"

#include "host/number_service.h"

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr double kPlateEnd = IonField::kHeight * 0.5; // y; the electrodes end there
constexpr double kRestGain = 5;                       // a step
constexpr double kRestLoss = 4;
constexpr double kFastRestLoss = 8;
constexpr double kRestless = 0.2; // most that chance adds to the pull
constexpr double kUpright = -90;  // degrees

// Two neighbours on one axis, each by a length of its own, at most half a step.
void separate(double& one, double& other, double step, const IonField::Chance& chance) {
    double& lower = one < other ? one : other;
    double& upper = one < other ? other : one;
    lower -= chance() * step / 2;
    upper += chance() * step / 2;
}

} // namespace

void IonField::setUp(const Chance& chance) {
    *this = IonField{};
    LeftPlate = roundToInt(0.2 * kWidth);
    RightPlate = roundToInt(0.9 * kWidth);
    place(kHeight * 0.5 - 8 * kRadius, 4 * kRadius, chance);
}

void IonField::spread(const Chance& chance) {
    place(kHeight * 0.8 - 4 * kRadius, kRadius, chance);
}

void IonField::place(double room, double least, const Chance& chance) {
    for (int number = 1; number <= IonSlots; ++number) {
        const double x = chance() * (RightPlate - LeftPlate) + LeftPlate;
        const double y = chance() * room + least;
        ion(number) = {.X = x, .Y = y, .Negative = number % 2 == 0, .Active = true};
    }
}

void IonField::step(const Chance& chance) {
    for (int number = 1; number <= IonSlots; ++number) {
        if (ion(number).Active) {
            move(number, chance);
        }
    }
}

// Those with a low number are the slow ones.
double IonField::stepOf(int number) const {
    const double share = static_cast<double>(number) / IonCount;
    return FastIons ? share * 4 + 1.5 : share * 1.5 + 0.5;
}

IonField::Side IonField::drawnTo(const Ion& ion) const {
    if (Mode == Current::Off) {
        return Side::None;
    }
    const bool negativeToTheLeft = Mode == Current::Direct || Mode == Current::AlternatingA;
    return ion.Negative == negativeToTheLeft ? Side::Left : Side::Right;
}

void IonField::move(int number, const Chance& chance) {
    Ion& moved = ion(number);
    if (moved.Deposited) {
        rest(moved, number);
        return;
    }
    const double step = stepOf(number);
    moved.X += 2 * chance() - 1;
    moved.Y += 2 * chance() - 1;
    driveApart(number, step, chance);
    pull(moved, step, chance);
    moved.X = std::clamp(moved.X, kRadius, kWidth - kRadius);
    moved.Y = std::clamp(moved.Y, kRadius, kHeight - kRadius);
}

// The longer an ion has sat on an electrode, the longer it takes to come off.
void IonField::rest(Ion& ion, int number) const {
    const Side side = drawnTo(ion);
    if ((side == Side::Left && ion.AtLeft) || (side == Side::Right && ion.AtRight)) {
        ion.Rest = std::min(ion.Rest + kRestGain, number * kRestGain);
        return;
    }
    ion.Rest = std::max(0.0, ion.Rest - (FastIons ? kFastRestLoss : kRestLoss));
    if (ion.Rest == 0) {
        ion.Deposited = ion.AtLeft = ion.AtRight = false;
    }
}

// Not beside the walls, where there is no room to give way. Those on an electrode are pushed too.
void IonField::driveApart(int number, double step, const Chance& chance) {
    Ion& moved = ion(number);
    if (moved.X < 4 * kRadius || moved.X > kWidth - 4 * kRadius) {
        return;
    }
    for (int j = number + 1; j <= IonCount; ++j) {
        Ion& other = ion(j);
        if (other.Active && std::abs(other.X - moved.X) < 2 * kRadius &&
            std::abs(other.Y - moved.Y) < 2 * kRadius) {
            separate(moved.X, other.X, step, chance);
            separate(moved.Y, other.Y, step, chance);
        }
    }
}

void IonField::pull(Ion& ion, double step, const Chance& chance) const {
    const Side side = drawnTo(ion);
    if (side == Side::None) {
        return;
    }
    if (side == Side::Right && ion.X < RightPlate) {
        ion.X += step + chance() * kRestless;
    } else if (side == Side::Right && ion.X > RightPlate) {
        ion.X += -step + chance() * kRestless;
    } else if (side == Side::Left && ion.X > LeftPlate) {
        ion.X -= step + chance() * kRestless;
    } else if (side == Side::Left && ion.X < LeftPlate) {
        ion.X += step - chance() * kRestless;
    }
    const double plate = side == Side::Right ? RightPlate : LeftPlate;
    if (std::abs(ion.X - plate) < step && ion.Y <= kPlateEnd) {
        ion.Deposited = true;
        (side == Side::Right ? ion.AtRight : ion.AtLeft) = true;
    }
    if (ion.Y > kPlateEnd) {
        ion.Y -= step + chance() * kRestless; // up to where the electrodes are
    }
}

double IonField::current() const {
    if (Mode == Current::Off) {
        return 0;
    }
    const double plain = IonCount == 10 ? 0.125 : IonCount == 20 ? 0.25 : 0.5;
    return plain * (FastIons ? 2 : 1) * (DoubleCharge ? 2 : 1);
}

// A direct current dies away as the ions settle, an alternating one keeps three quarters.
double IonField::needleAngle() const {
    const double free = static_cast<double>(IonCount - DepositedCount) / IonCount;
    switch (Mode) {
    case Current::Direct:
        return 31.5 * (free * current()) + kUpright;
    case Current::Reversed:
        return -31.5 * (free * current()) + kUpright;
    case Current::AlternatingA:
    case Current::AlternatingB:
        // The scale of alternating currents begins at the left end of the dial.
        return 63 * ((free * current() + 3 * current()) / 4) + kUpright - 63;
    case Current::Off:
        break;
    }
    return kUpright;
}

} // namespace quendal
