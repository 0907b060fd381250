// The pens, brushes and fonts that a metafile makes and selects. Lengths are units of its window.
#pragma once

#include "desktop/files/wmf_drawing.h"
#include "desktop/files/wmf_words.h"

#include <variant>
#include <vector>

namespace quendal {

struct WmfLogicalPen {
    WmfPen pen; // its width is set when it is used
    int width = 0;
};

struct WmfLogicalBrush {
    enum class Style { Solid, None, Hatched };

    Style style = Style::Solid;
    Color color = kWhite;
};

struct WmfLogicalFont {
    WmfFont font; // its height and width are set when it is used
    int height = 0;
    int width = 0;
};

// Each reads the words of a record that has at least as many as the constant says.
inline constexpr std::size_t kWmfPenWords = 5;
WmfLogicalPen readWmfPen(const WmfWords& words);
inline constexpr std::size_t kWmfBrushWords = 4;
WmfLogicalBrush readWmfBrush(const WmfWords& words);
inline constexpr std::size_t kWmfFontWords = 9;
WmfLogicalFont readWmfFont(const WmfWords& words);

// A free place, or a palette, region or pattern, which nothing is drawn with.
struct WmfNothing {};
struct WmfUnused {};
using WmfObject =
    std::variant<WmfNothing, WmfUnused, WmfLogicalPen, WmfLogicalBrush, WmfLogicalFont>;

class WmfObjectTable {
  public:
    // Takes the first free place, as the numbers in the file count on. False when the table is
    // full.
    bool add(WmfObject object);
    void remove(std::size_t index);
    // WmfNothing for a place that is free or that there isn't.
    const WmfObject& at(std::size_t index) const;

  private:
    std::vector<WmfObject> objects_;
};

} // namespace quendal
