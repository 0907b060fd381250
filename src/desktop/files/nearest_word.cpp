#include "desktop/files/nearest_word.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

namespace quendal {

namespace {

std::size_t letterChanges(std::string_view from, std::string_view to) {
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= from.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= to.size(); ++j) {
            const std::size_t replaced = diagonal + (from[i - 1] == to[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, replaced});
        }
    }
    return row.back();
}

} // namespace

std::string_view nearestWord(std::string_view word, std::span<const std::string_view> known) {
    std::string_view nearest;
    std::size_t fewest = 0;
    for (const std::string_view candidate : known) {
        const std::size_t allowed = candidate.size() * 2 / 5;
        // Words whose lengths differ by more can't be near, and may be very long.
        if (word.size() > candidate.size() + allowed) {
            continue;
        }
        const std::size_t changes = letterChanges(word, candidate);
        if (changes <= allowed && (nearest.empty() || changes < fewest)) {
            nearest = candidate;
            fewest = changes;
        }
    }
    return nearest;
}

} // namespace quendal
