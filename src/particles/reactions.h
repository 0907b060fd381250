// Which kinds react with each other and what becomes of them.
#pragma once

#include "particles/species.h"

#include <array>
#include <cstdint>

namespace quendal {

// Sort numbers that the two partners of a reaction take.
struct Products {
    int self = 0;
    int other = 0;
};

struct Reaction {
    int self = 0;
    int other = 0;
    Products products;
};

inline constexpr std::array<Reaction, 8> kReactions{{
    {kWater, kHydrogenChloride, {kHydronium, kChloride}},
    {kHydrogenChloride, kWater, {kHydronium, kChloride}},
    {kChloride, kSilver, {kSilverChloride, kReactedAway}},
    {kSilver, kChloride, {kSilverChloride, kReactedAway}},
    {kHydronium, kHydroxide, {kWater, kWater}},
    {kHydroxide, kHydronium, {kWater, kWater}},
    {kHydroxide, kAceticAcid, {kAcetate, kWater}},
    {kAceticAcid, kHydroxide, {kAcetate, kWater}},
}};

// Kinds as a set, one bit each.
using KindSet = std::uint32_t;

// Kinds outside 1 to 31 stand in no set: they never react.
constexpr KindSet kindBit(int kind) {
    return kind > 0 && kind < 32 ? KindSet{1} << kind : 0;
}

inline constexpr std::array<KindSet, 32> kPartners = [] {
    std::array<KindSet, 32> partners{};
    for (const Reaction& reaction : kReactions) {
        partners[static_cast<std::size_t>(reaction.self)] |= kindBit(reaction.other);
    }
    return partners;
}();

// The kinds that `kind` (a sort number without sign) reacts with; empty for most.
constexpr KindSet partnersOf(int kind) {
    return kind > 0 && kind < 32 ? kPartners[static_cast<std::size_t>(kind)] : 0;
}

constexpr bool kindsReact(int self, int other) {
    return (partnersOf(self) & kindBit(other)) != 0;
}

// Null when the two don't react.
const Reaction* findReaction(int self, int other);

} // namespace quendal
