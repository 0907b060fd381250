#include "particles/grid_pattern.h"

#include "shell/session/session.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace quendal {

namespace {

constexpr double kVolumePerRow = 5; // mL

int roundHalfEven(double value) {
    return static_cast<int>(std::nearbyint(value));
}

} // namespace

Point gridPlace(int cell, int rows, int columns) {
    const int row = (cell - 1) / columns + 1;
    const int column = (cell - 1) % columns + 1;
    return {column * 100.0 / (columns + 1), row * 100.0 / (rows + 1)};
}

void GridPattern::plan(const Counts& counts, int total, int volume) {
    shape(total, volume);
    slots_.assign(static_cast<std::size_t>(total), 0);
    for (const Entry& entry : rarestFirst(counts, total)) {
        if (entry.step >= 1) {
            spread(entry);
        }
    }
    shuffle();
}

Point GridPattern::place(int cell) const {
    const SessionState& tables = session();
    const auto count = slots_.size();
    const auto index = static_cast<std::size_t>(cell);
    const Point middle = gridPlace(cell, rows_, columns_);
    return {middle.x + tables.GridJitterX[count][index],
            middle.y + tables.GridJitterY[count][index]};
}

void GridPattern::shape(int total, int volume) {
    const double ratio = volume == 0 ? 1.0 : volume / kVolumePerRow;
    rows_ = std::max(2, roundHalfEven(ratio));
    columns_ = std::max(1, roundHalfEven(static_cast<double>(total) / rows_));
    while (rows_ * columns_ < total) {
        ++rows_;
    }
}

// The exchanges are those of a plain sort that passes over empty entries; which of two equally rare
// kinds comes first hangs on their order, so it stays this very sort.
GridPattern::Entries GridPattern::rarestFirst(const Counts& counts, int total) {
    Entries entries;
    for (int i = 0; i < kKindsLaidOut; ++i) {
        entries[i] = {.kind = i + 1, .count = counts[i + 1]};
    }
    for (int k = 0; k < kKindsLaidOut; ++k) {
        for (int l = k + 1; l < kKindsLaidOut; ++l) {
            if (entries[l].count < entries[k].count && entries[l].count >= 1) {
                std::swap(entries[k], entries[l]);
            }
        }
    }
    int rest = total;
    for (Entry& entry : entries) {
        if (entry.count > 0) {
            entry.step = roundHalfEven(static_cast<double>(rest) / entry.count);
            rest -= entry.count;
        }
    }
    return entries;
}

// Every step-th free cell first; what is then left over takes the first free ones.
void GridPattern::spread(Entry entry) {
    int seen = 0;
    for (auto slot = slots_.begin(); slot != slots_.end() && entry.count > 0; ++slot) {
        if (*slot == 0 && ++seen % entry.step == 0) {
            *slot = entry.kind;
            --entry.count;
        }
    }
    for (auto slot = slots_.begin(); slot != slots_.end() && entry.count > 0; ++slot) {
        if (*slot == 0) {
            *slot = entry.kind;
            --entry.count;
        }
    }
}

void GridPattern::shuffle() {
    const int count = cells();
    if (count > kGridLimit) {
        throw std::out_of_range("more particles than the grid's random tables know");
    }
    const auto& order = session().GridShuffle[static_cast<std::size_t>(count)];
    for (int cell = 1; cell <= count; ++cell) {
        const int other = order[static_cast<std::size_t>(cell)];
        if (other >= 1 && other <= count) {
            std::swap(slots_[static_cast<std::size_t>(cell - 1)],
                      slots_[static_cast<std::size_t>(other - 1)]);
        }
    }
}

} // namespace quendal
