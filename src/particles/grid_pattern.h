// Which kind of particle stands where: the pattern that a population makes in the liquid. Cells are
// counted from 1, row by row.
#pragma once

#include "host/geometry.h"

#include <array>
#include <span>
#include <vector>

namespace quendal {

class GridPattern {
  public:
    static constexpr int kKinds = 100;       // kinds that can be counted
    static constexpr int kKindsLaidOut = 20; // kinds that get cells

    using Counts = std::array<int, kKinds + 1>; // particles by kind

    // Plans one cell for each of `total` particles that aren't Solid. `volume` in mL decides the
    // number of rows. Throws std::out_of_range above 200 particles: the random tables end there.
    void plan(const Counts& counts, int total, int volume);

    int rows() const { return rows_; }
    int columns() const { return columns_; }
    // Cells that take a particle.
    int cells() const { return static_cast<int>(slots_.size()); }
    // The kind that belongs in a cell; 0 where no kind does.
    int kindAt(int cell) const { return slots_[static_cast<std::size_t>(cell - 1)]; }
    // Middle of a cell with its jitter, in field units.
    Point place(int cell) const;

  private:
    struct Entry {
        int kind = 0;
        int count = 0;
        int step = 0; // every step-th free cell takes this kind
    };
    using Entries = std::array<Entry, kKindsLaidOut>;

    void shape(int total, int volume);
    static Entries rarestFirst(const Counts& counts, int total);
    void spread(Entry entry);
    void shuffle();

    int rows_ = 0;
    int columns_ = 0;
    std::vector<int> slots_;
};

// Cell `cell`, counted from 1, of a plain grid of `rows` by `columns` cells.
Point gridPlace(int cell, int rows, int columns);

} // namespace quendal
