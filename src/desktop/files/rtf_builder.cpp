#include "desktop/files/rtf_builder.h"

#include "desktop/files/text_bytes.h"

#include <utility>

namespace quendal {

namespace {

// Bounds that no help text comes near; beyond them laying the text out would take seconds.
constexpr std::size_t kMostTextBytes = 400000;
constexpr std::size_t kMostParts = 5000;
constexpr std::size_t kMostRuns = 20000;
constexpr std::size_t kLongestParagraph = 20000; // bytes
constexpr std::size_t kMostRunsInParagraph = 1000;
constexpr std::size_t kMostCells = 64;  // of a row
constexpr int kDefaultCellWidth = 1440; // twips, of a cell that no \cellx describes

constexpr std::string_view kListSigns[] = {"\u2022", "\u00B7"};

// Takes a list sign and the blanks behind it off the paragraph; false when it has none.
bool takeListSign(RtfParagraph& paragraph) {
    if (paragraph.runs.empty()) {
        return false;
    }
    std::string& text = paragraph.runs.front().text;
    for (const std::string_view sign : kListSigns) {
        const std::size_t behind = text.find_first_not_of("\t ", sign.size());
        const bool blankBehind = behind != sign.size() && text.size() > sign.size();
        if (text.compare(0, sign.size(), sign) == 0 && blankBehind) {
            text.erase(0, behind);
            return true;
        }
    }
    return false;
}

} // namespace

void RtfBuilder::put(std::string_view utf8, const RtfStyle& style) {
    textBytes_ += utf8.size();
    paragraphBytes_ += utf8.size();
    std::vector<RtfRun>& runs = paragraph_.runs;
    if (runs.empty() || !(runs.back().style == style)) {
        runs.push_back({.text = std::string(utf8), .style = style});
        ++runs_;
    } else {
        runs.back().text += utf8;
    }
}

void RtfBuilder::put(char32_t character, const RtfStyle& style) {
    std::string utf8;
    appendUtf8(utf8, character);
    put(utf8, style);
}

void RtfBuilder::addParagraph(RtfParagraph paragraph) {
    ++parts_;
    paragraph.bullet = takeListSign(paragraph);
    blocks_.emplace_back(std::move(paragraph));
}

void RtfBuilder::endParagraph(const RtfLayout& layout, const RtfStyle& mark, bool inTable) {
    RtfParagraph paragraph = std::exchange(paragraph_, {});
    paragraphBytes_ = 0;
    paragraph.layout = layout;
    paragraph.mark = mark;
    if (inTable) {
        ++parts_;
        paragraph.bullet = takeListSign(paragraph);
        cell_.paragraphs.push_back(std::move(paragraph));
        return;
    }
    endRow();
    addParagraph(std::move(paragraph));
}

void RtfBuilder::beginRow() {
    cellLayouts_.clear();
    rowLeft_ = 0;
}

void RtfBuilder::addCellLayout(const RtfCellLayout& layout) {
    if (cellLayouts_.size() < kMostCells) {
        cellLayouts_.push_back(layout);
    }
}

void RtfBuilder::endCell(const RtfLayout& layout, const RtfStyle& mark) {
    endParagraph(layout, mark, true);
    RtfCell cell = std::exchange(cell_, {});
    if (row_.cells.size() >= kMostCells) {
        return;
    }
    const std::size_t index = row_.cells.size();
    if (index < cellLayouts_.size()) {
        cell.layout = cellLayouts_[index];
    } else {
        const int before = row_.cells.empty() ? rowLeft_ : row_.cells.back().layout.rightEdge;
        cell.layout.rightEdge = before + kDefaultCellWidth;
    }
    row_.cells.push_back(std::move(cell));
}

void RtfBuilder::endRow() {
    if (!cell_.paragraphs.empty()) {
        paragraph_ = std::move(cell_.paragraphs.back());
        cell_.paragraphs.pop_back();
        const RtfLayout layout = paragraph_.layout;
        const RtfStyle mark = paragraph_.mark;
        endCell(layout, mark);
    }
    if (row_.cells.empty()) {
        return;
    }
    RtfRow row = std::exchange(row_, {});
    row.leftEdge = rowLeft_;
    if (blocks_.empty() || !std::holds_alternative<RtfTable>(blocks_.back())) {
        blocks_.emplace_back(RtfTable{});
    }
    std::get<RtfTable>(blocks_.back()).rows.push_back(std::move(row));
}

std::vector<RtfBlock> RtfBuilder::finish(const RtfLayout& layout, const RtfStyle& mark) {
    if (!paragraph_.runs.empty()) {
        endParagraph(layout, mark, !row_.cells.empty() || !cell_.paragraphs.empty());
    }
    endRow();
    return std::move(blocks_);
}

bool RtfBuilder::full() const {
    return textBytes_ > kMostTextBytes || parts_ > kMostParts || runs_ > kMostRuns ||
           paragraphBytes_ > kLongestParagraph || paragraph_.runs.size() > kMostRunsInParagraph;
}

} // namespace quendal
