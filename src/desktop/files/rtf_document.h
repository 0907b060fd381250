// A help text as blocks and runs, read from RTF and not yet tied to any toolkit.
#pragma once

#include "host/color.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quendal {

enum class RtfScript { Normal, Super, Sub };
enum class RtfAlign { Left, Centre, Right, Justified };

struct RtfStyle {
    bool bold = false;
    bool italic = false;
    bool underline = false;
    RtfScript script = RtfScript::Normal;
    double points = 12;
    std::optional<Color> color;  // none: the program's ink
    std::optional<Color> ground; // behind the text

    friend bool operator==(const RtfStyle&, const RtfStyle&) = default;
};

// Text in UTF-8; "\n" is a line break inside the paragraph, "\t" a tabulator.
struct RtfRun {
    std::string text;
    RtfStyle style;
};

// Lengths in twips.
struct RtfLayout {
    RtfAlign align = RtfAlign::Left;
    int left = 0;
    int right = 0;
    int first = 0; // of the first line, added to `left`
    int before = 0;
    int after = 0;
    std::vector<int> tabs;
    bool ruleBelow = false; // a thin line under the paragraph
};

struct RtfParagraph {
    RtfLayout layout;
    bool bullet = false; // its sign is not part of the runs
    RtfStyle mark;       // style at its end: gives an empty paragraph its height
    std::vector<RtfRun> runs;
};

struct RtfEdges {
    bool top = false;
    bool bottom = false;
    bool left = false;
    bool right = false;
};

struct RtfCellLayout {
    int rightEdge = 0; // twips from the left edge of the page
    RtfEdges border;
    std::optional<Color> ground;
    bool centred = false;      // vertically
    bool joinsAbove = false;   // continues the cell above it
    bool startsJoined = false; // cells below may continue it
};

struct RtfCell {
    RtfCellLayout layout;
    std::vector<RtfParagraph> paragraphs;
};

struct RtfRow {
    int leftEdge = 0; // twips
    std::vector<RtfCell> cells;
};

struct RtfTable {
    std::vector<RtfRow> rows;
};

using RtfBlock = std::variant<RtfParagraph, RtfTable>;

inline constexpr std::size_t kRtfFileLimit = 4U << 20; // bytes
inline constexpr int kRtfNesting = 100;

struct RtfDocument {
    std::vector<RtfBlock> blocks;
    // Why the text isn't whole, in German; empty when it is. What was read up to there stands in
    // `blocks`.
    std::string fault;
};

// Never fails: bytes that are no RTF give a document without blocks and a fault.
RtfDocument readRtf(std::string_view bytes);

} // namespace quendal
