#include "particles/species.h"

#include <array>

namespace quendal {

namespace {

constexpr SignRule kWhiteMinus{ChargeSign::Minus, 15};
constexpr SignRule kWhitePlus{ChargeSign::Plus, 15};
constexpr SignRule kBlackMinus{ChargeSign::Minus, 0};
constexpr SignRule kBlackPlus{ChargeSign::Plus, 0};

constexpr std::array<Species, 15> kSpecies{{
    {},
    {.shape = Shape::TwoAtoms, .body = 1, .atoms = 15, .plainColor = {255, 0, 0}},
    {.radius = 4, .plainColor = {0, 255, 0}},
    {.radius = 4,
     .shape = Shape::OneCircle,
     .body = 2,
     .plain = kWhiteMinus,
     .marked = kWhiteMinus,
     .plainColor = {0, 0, 255}},
    {.radius = 3, .plainColor = {255, 255, 0}},
    {.radius = 4,
     .shape = Shape::OneCircle,
     .body = 9,
     .marked = kWhitePlus,
     .plainColor = {255, 0, 255}},
    {},
    {.shape = Shape::AtomRight, .body = 2, .atoms = 15},
    {.shape = Shape::ThreeAtoms, .body = 1, .atoms = 15, .halo = 12, .marked = kWhitePlus},
    {.shape = Shape::AtomRight, .body = 1, .atoms = 15, .halo = 9, .marked = kWhiteMinus},
    {.shape = Shape::AtomRight, .body = 12, .atoms = 15},
    {.radius = 4,
     .shape = Shape::OneCircle,
     .body = 12,
     .halo = 9,
     .marked = kWhiteMinus,
     .plainColor = palette(12)},
    {.shape = Shape::OneCircle,
     .body = 7,
     .plain = kBlackPlus,
     .marked = kBlackPlus,
     .plainColor = palette(7)},
    {.shape = Shape::OneCircle, .body = 14, .marked = kBlackMinus, .plainColor = palette(14)},
    {.shape = Shape::TwinHalves, .body = 7, .atoms = 2, .plainColor = palette(7)},
}};

} // namespace

const Species& speciesOf(int kind) {
    const bool known = kind > 0 && kind < static_cast<int>(kSpecies.size());
    return kSpecies[known ? static_cast<std::size_t>(kind) : 0];
}

} // namespace quendal
