// Puts paragraphs, cells and rows together while an RTF text is read, within bounds.
#pragma once

#include "desktop/files/rtf_document.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quendal {

class RtfBuilder {
  public:
    void put(std::string_view utf8, const RtfStyle& style);
    void put(char32_t character, const RtfStyle& style);

    void endParagraph(const RtfLayout& layout, const RtfStyle& mark, bool inTable);
    void beginRow();
    void setRowLeft(int twips) { rowLeft_ = twips; }
    void addCellLayout(const RtfCellLayout& layout);
    void endCell(const RtfLayout& layout, const RtfStyle& mark);
    void endRow();
    // What is still open becomes a paragraph or a row.
    std::vector<RtfBlock> finish(const RtfLayout& layout, const RtfStyle& mark);

    // More text than any help text has; the reader stops there.
    bool full() const;

  private:
    void addParagraph(RtfParagraph paragraph);

    std::vector<RtfBlock> blocks_;
    RtfParagraph paragraph_;
    std::vector<RtfCellLayout> cellLayouts_;
    RtfCell cell_;
    RtfRow row_;
    int rowLeft_ = 0;
    std::size_t textBytes_ = 0;
    std::size_t paragraphBytes_ = 0; // of the paragraph in work
    std::size_t runs_ = 0;
    std::size_t parts_ = 0; // paragraphs and cells
};

} // namespace quendal
