// What the movie of the start dialog tells: each scene solves the triangle of amount of substance,
// concentration and volume for one of the three.
#pragma once

#include <cstdint>

namespace quendal {

// Also the order of the names in a pass.
enum class MovieTerm { Amount = 0, Concentration = 1, Volume = 2 };

enum class MovieSign {
    Dot,   // first · second
    Slash, // first / second
    Bar    // first above second, with the bar of a fraction between them
};

struct MovieRow {
    MovieTerm sought; // alone before the equals sign
    MovieTerm first;
    MovieSign sign;
    MovieTerm second;
};

inline constexpr std::int32_t kMovieScenes = 6;

// Scenes count from 1; null for any other number, the triangle alone.
const MovieRow* movieRow(std::int32_t scene);

} // namespace quendal
