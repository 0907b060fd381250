#include "desktop/files/table_grid.h"

#include <algorithm>
#include <cstdlib>

namespace quendal {

namespace {

constexpr int kSameEdge = 40; // twips; edges closer than that are one
constexpr std::size_t kMostEdges = 65;
constexpr int kMostPlaces = 3000; // of the grid; rows beyond are left out

} // namespace

TableGrid::TableGrid(const RtfTable& table) {
    findEdges(table);
    rows_ = std::min(static_cast<int>(table.rows.size()), kMostPlaces / columns());
    for (int i = 0; i < rows_; ++i) {
        addRow(table.rows[static_cast<std::size_t>(i)], i);
    }
}

void TableGrid::findEdges(const RtfTable& table) {
    std::vector<int> all;
    for (const RtfRow& row : table.rows) {
        all.push_back(row.leftEdge);
        for (const RtfCell& cell : row.cells) {
            all.push_back(cell.layout.rightEdge);
        }
    }
    std::sort(all.begin(), all.end());
    for (const int edge : all) {
        if (edges_.size() < kMostEdges && (edges_.empty() || edge - edges_.back() > kSameEdge)) {
            edges_.push_back(edge);
        }
    }
    if (edges_.size() < 2) {
        edges_.push_back(edges_.front() + kSameEdge);
    }
}

int TableGrid::width(int column) const {
    const auto at = static_cast<std::size_t>(column);
    return edges_[at + 1] - edges_[at];
}

// The column that begins at the edge nearest to `edge`.
int TableGrid::columnAt(int edge) const {
    const auto nearest = std::min_element(edges_.begin(), edges_.end(), [edge](int one, int other) {
        return std::abs(one - edge) < std::abs(other - edge);
    });
    return static_cast<int>(nearest - edges_.begin());
}

void TableGrid::addRow(const RtfRow& row, int index) {
    int column = columnAt(row.leftEdge);
    for (const RtfCell& cell : row.cells) {
        // A cell that ends before it begins still gets a column, as long as there is one.
        const int end = std::max(column + 1, columnAt(cell.layout.rightEdge));
        if (end > columns()) {
            return;
        }
        Span* above = cell.layout.joinsAbove ? spanAbove(index, column) : nullptr;
        if (above != nullptr && above->columns == end - column) {
            ++above->rows;
        } else {
            spans_.push_back(
                {.cell = &cell, .row = index, .column = column, .columns = end - column});
        }
        column = end;
    }
}

// The span that ends in the row above and begins in the same column.
TableGrid::Span* TableGrid::spanAbove(int row, int column) {
    const auto found = std::find_if(spans_.begin(), spans_.end(), [&](const Span& span) {
        return span.column == column && span.row + span.rows == row;
    });
    return found != spans_.end() ? &*found : nullptr;
}

} // namespace quendal
