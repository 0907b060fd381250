// The rows of a help text's table on one grid: cells of different rows may end at different places
// and may continue the cell above.
#pragma once

#include "desktop/files/rtf_document.h"

#include <vector>

namespace quendal {

class TableGrid {
  public:
    struct Span {
        const RtfCell* cell = nullptr;
        int row = 0;
        int column = 0;
        int rows = 1;
        int columns = 1;
    };

    // `table` has at least one row with a cell, as the reader makes it.
    explicit TableGrid(const RtfTable& table);

    int rows() const { return rows_; }
    int columns() const { return static_cast<int>(edges_.size()) - 1; }
    int leftEdge() const { return edges_.front(); } // twips
    int width(int column) const;                    // twips
    // Every place of the grid is in exactly one span; a span without a cell of its own is not
    // listed.
    const std::vector<Span>& spans() const { return spans_; }

  private:
    void findEdges(const RtfTable& table);
    void addRow(const RtfRow& row, int index);
    int columnAt(int edge) const;
    Span* spanAbove(int row, int column);

    std::vector<int> edges_;
    std::vector<Span> spans_;
    int rows_ = 0;
};

} // namespace quendal
