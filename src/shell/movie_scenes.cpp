#include "shell/movie_scenes.h"

#include <array>

namespace quendal {

namespace {

using enum MovieTerm;
using enum MovieSign;

// Twice from the product to a quotient, which is first written in one line and then as the fraction
// that learners write by hand.
constexpr std::array<MovieRow, kMovieScenes> kRows{{
    {.sought = Amount, .first = Concentration, .sign = Dot, .second = Volume},
    {.sought = Concentration, .first = Amount, .sign = Slash, .second = Volume},
    {.sought = Concentration, .first = Amount, .sign = Bar, .second = Volume},
    {.sought = Amount, .first = Concentration, .sign = Dot, .second = Volume},
    {.sought = Volume, .first = Amount, .sign = Slash, .second = Concentration},
    {.sought = Volume, .first = Amount, .sign = Bar, .second = Concentration},
}};

} // namespace

const MovieRow* movieRow(std::int32_t scene) {
    return scene >= 1 && scene <= kMovieScenes ? &kRows[static_cast<std::size_t>(scene) - 1]
                                               : nullptr;
}

} // namespace quendal
