// The kinds of particles as data: how large they are and how they are drawn.
#pragma once

#include "host/color.h"

namespace quendal {

// Whole numbers that the system knows its particles by.
inline constexpr int kReactedAway = 0; // waits for its removal
inline constexpr int kWater = 1;
inline constexpr int kChloride = 3;
inline constexpr int kSodium = 5;
inline constexpr int kHydrogenChloride = 7;
inline constexpr int kHydronium = 8;
inline constexpr int kHydroxide = 9;
inline constexpr int kAceticAcid = 10;
inline constexpr int kAcetate = 11;
inline constexpr int kSilver = 12;
inline constexpr int kNitrate = 13;
inline constexpr int kSilverChloride = 14;

enum class Shape {
    NoRule,     // one circle filled with `plainColor`, which neither blinks nor fades
    OneCircle,  // the body alone
    AtomRight,  // one small atom at the right
    TwoAtoms,   // small atoms below left and below right
    ThreeAtoms, // as TwoAtoms, and one on top
    TwinHalves  // two touching circles: the body's colour at the right, the atoms' at the left
};

enum class ChargeSign { None, Minus, Plus };

struct SignRule {
    ChargeSign sign = ChargeSign::None;
    int color = 15; // palette number
};

inline constexpr int kNoHalo = -1;

struct Species {
    double radius = 5; // field units
    Shape shape = Shape::NoRule;
    int body = 0;          // palette number
    int atoms = 0;         // palette number of the small atoms
    int halo = kNoHalo;    // palette number
    SignRule plain = {};   // at a sort number above 0
    SignRule marked = {};  // at a sort number below 0
    Color plainColor = {}; // what COLOR gives
};

inline constexpr double kLargestRadius = 5;

// `kind` is a sort number without its sign. Kinds without a row of their own look like kind 0.
const Species& speciesOf(int kind);

} // namespace quendal
