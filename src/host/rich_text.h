// Texts with raised and lowered parts: the painter behind them and what it reads.
#pragma once

#include "host/color.h"
#include "host/font.h"
#include "host/geometry.h"
#include "host/term_markup.h"

#include <string>
#include <string_view>
#include <vector>

namespace quendal {

class Surface;

// "<SUB>", "</SUB>", "<SUP>" and "</SUP>" in any letter case; "->" becomes an arrow. Tags of one
// kind don't nest in the other: a new one takes over. Anything else stays as it stands, so that no
// text is ever lost.
std::vector<TermPiece> parseRichText(std::string_view text);

// What a screen reader says: the tags left out.
std::string plainRichText(std::string_view text);

// Paints such a text, on one line, in one font and colour.
class RichText {
  public:
    void setText(std::string text) { text_ = std::move(text); }
    const std::string& text() const { return text_; }
    void setFont(FontSpec font) { font_ = std::move(font); }
    const FontSpec& font() const { return font_; }
    void setColor(Color color) { color_ = color; }

    // In units of the surface; the height is that of a line without marks.
    Size measure(const Surface& surface) const;
    // `leftTop` is the corner of the box that measure() tells.
    void paint(Surface& surface, Point leftTop) const;

  private:
    FontSpec fontOf(TermStyle style) const;

    std::string text_;
    FontSpec font_;
    Color color_ = kWhite;
};

} // namespace quendal
