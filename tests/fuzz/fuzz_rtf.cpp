#include "desktop/files/rtf_document.h"
#include "desktop/files/table_grid.h"
#include "desktop/files/text_bytes.h"
#include "fuzz_input.h"

namespace quendal {
namespace {

void check(const RtfParagraph& paragraph) {
    for (const RtfRun& run : paragraph.runs) {
        require(isUtf8(run.text));
        require(run.style.points >= 4 && run.style.points <= 72);
    }
}

// Every place of the grid belongs to at most one span, and every span lies inside.
void check(const RtfTable& table) {
    const TableGrid grid(table);
    require(grid.columns() >= 1 && grid.rows() >= 1);
    std::vector<int> taken(static_cast<std::size_t>(grid.columns() * grid.rows()));
    for (const TableGrid::Span& span : grid.spans()) {
        require(span.column + span.columns <= grid.columns());
        require(span.row + span.rows <= grid.rows());
        for (int row = span.row; row < span.row + span.rows; ++row) {
            for (int column = span.column; column < span.column + span.columns; ++column) {
                require(++taken[static_cast<std::size_t>(row * grid.columns() + column)] == 1);
            }
        }
        for (const RtfParagraph& paragraph : span.cell->paragraphs) {
            check(paragraph);
        }
    }
    for (int column = 0; column < grid.columns(); ++column) {
        require(grid.width(column) > 0);
    }
}

} // namespace
} // namespace quendal

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    const RtfDocument document = readRtf(fuzzText(data, size));
    for (const RtfBlock& block : document.blocks) {
        std::visit([](const auto& part) { check(part); }, block);
    }
    return 0;
}
