#include "particles/populations.h"

#include "host/random_source.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

namespace quendal::test {

namespace {

int whole(RandomSource& random, int below) {
    return static_cast<int>(random.next() * below);
}

bool chance(RandomSource& random, double probability) {
    return random.next() < probability;
}

// How the coordinates of one population are chosen.
enum class Places { Anywhere, Coarse, Lattice, NearlyLattice, Crowded, Count };

double coordinate(RandomSource& random, Places places) {
    switch (places) {
    case Places::Coarse:
        return whole(random, 101);
    case Places::Lattice:
        return whole(random, 11) * 10;
    case Places::NearlyLattice: {
        double value = whole(random, 11) * 10.0;
        for (int steps = whole(random, 4); steps > 0; --steps) {
            value = std::nextafter(value, 50.0);
        }
        return value;
    }
    case Places::Crowded:
        return 40 + random.next() * 15;
    default:
        return random.next() * 120 - 10;
    }
}

std::vector<int> someKinds(RandomSource& random) {
    static const std::vector<std::vector<int>> kMixes{
        {3, 5, 8, 9, 1},
        {3, 5},
        {7, 1, 3, 8},
        {10, 9, 11, 5, 1},
        {12, 3, 13, 5, 14},
        {-8, -9, 3, -10},
        {10, -9},
        {1},
        {2, 4, 6, 15, 20, 21, 40},
        {0, 1, 3, 12},
        {3, 3, 3, 5, 12, 1},
        {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14},
    };
    return kMixes[static_cast<std::size_t>(whole(random, static_cast<int>(kMixes.size())))];
}

struct Shares {
    double solid;
    double reacting;
    double placed;
    double fading;
    double touching;
};

Seedling randomSeedling(RandomSource& random, int sort, Places places, const Shares& shares) {
    Seedling seedling{
        .sort = sort, .x = coordinate(random, places), .y = coordinate(random, places)};
    const bool atTarget = chance(random, 0.3);
    seedling.targetX = atTarget ? seedling.x : coordinate(random, places);
    seedling.targetY = atTarget ? seedling.y : coordinate(random, places);
    seedling.solid = chance(random, shares.solid);
    seedling.reacting = chance(random, shares.reacting);
    seedling.placed = chance(random, shares.placed);
    seedling.fade = chance(random, shares.fading) ? whole(random, 120) - 10 : 0;
    seedling.contactCount = chance(random, shares.touching) ? whole(random, 25) : 0;
    seedling.reactFlash = chance(random, shares.touching) ? whole(random, 21) : 0;
    return seedling;
}

// What a particle is, bit for bit, in both forms.
struct Snapshot {
    int sort;
    double numbers[5];
    int counts[2];
    bool flags[3];
};

Snapshot snapshot(const cls_Molecule& p) {
    return {p.SORTREAL(),
            {p.PosX, p.PosY, p.TargetX, p.TargetY, p.Fade},
            {p.ContactCount, p.ReactFlash},
            {p.Solid, p.Reacting, p.Placed}};
}

Snapshot snapshot(const reference::Particle& p) {
    return {p.sortReal,
            {p.posX, p.posY, p.targetX, p.targetY, p.fade},
            {p.contactCount, p.reactFlash},
            {p.solid, p.reacting, p.placed}};
}

bool sameBits(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

bool same(const Snapshot& a, const Snapshot& b) {
    return a.sort == b.sort &&
           std::equal(std::begin(a.numbers), std::end(a.numbers), b.numbers, sameBits) &&
           std::equal(std::begin(a.counts), std::end(a.counts), b.counts) &&
           std::equal(std::begin(a.flags), std::end(a.flags), b.flags);
}

std::string describe(const Snapshot& s) {
    std::string text = "sort " + std::to_string(s.sort);
    for (const double number : s.numbers) {
        text += " " + std::to_string(number);
    }
    for (const int count : s.counts) {
        text += " " + std::to_string(count);
    }
    for (const bool flag : s.flags) {
        text += flag ? " yes" : " no";
    }
    return text;
}

} // namespace

Population randomPopulation(RandomSource& random, int limit) {
    Population population;
    population.volume = chance(random, 0.05) ? 1000 : whole(random, 45) - 5;
    const auto places = static_cast<Places>(whole(random, static_cast<int>(Places::Count)));
    const std::vector<int> kinds = someKinds(random);
    const bool rough = chance(random, 0.5);
    const Shares shares = rough ? Shares{random.next() * 0.3, random.next() * 0.2, random.next(),
                                         random.next() * 0.5, random.next() * 0.5}
                                : Shares{0, 0, 0, 0, 0};
    for (int left = whole(random, limit + 1); left > 0; --left) {
        const int sort =
            kinds[static_cast<std::size_t>(whole(random, static_cast<int>(kinds.size())))];
        population.seedlings.push_back(randomSeedling(random, sort, places, shares));
        if (left > 1 && chance(random, 0.05)) {
            population.seedlings.push_back(population.seedlings.back());
            --left;
        }
    }
    return population;
}

Twins::Twins(const Population& population) {
    shipped.Parent = &liquid;
    liquid.volume = plain.volume = population.volume;
    for (const Seedling& s : population.seedlings) {
        cls_Molecule& a = shipped.CREATE(s.sort, s.x, s.y);
        reference::Particle& b = plain.create(s.sort, s.x, s.y);
        a.TargetX = b.targetX = s.targetX;
        a.TargetY = b.targetY = s.targetY;
        a.Fade = b.fade = s.fade;
        a.ContactCount = b.contactCount = s.contactCount;
        a.ReactFlash = b.reactFlash = s.reactFlash;
        a.Solid = b.solid = s.solid;
        a.Reacting = b.reacting = s.reacting;
        a.Placed = b.placed = s.placed;
    }
}

std::string difference(const Twins& twins) {
    if (twins.shipped.COUNT() != twins.plain.count()) {
        return "counts " + std::to_string(twins.shipped.COUNT()) + " and " +
               std::to_string(twins.plain.count());
    }
    for (std::size_t i = 0; i < twins.plain.mol.size(); ++i) {
        const Snapshot shipped = snapshot(*twins.shipped.particles()[i]);
        const Snapshot plain = snapshot(*twins.plain.mol[i]);
        if (!same(shipped, plain)) {
            return "particle " + std::to_string(i + 1) + ": " + describe(shipped) + " but plain " +
                   describe(plain);
        }
    }
    return {};
}

} // namespace quendal::test
