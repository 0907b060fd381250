#include "host/rich_text.h"

#include "host/surface.h"

#include <array>
#include <optional>

namespace quendal {

namespace {

constexpr double kSmall = 0.7; // size of raised and lowered parts, of the font's
constexpr double kUp = -0.05;  // of the line's height: upper edge of a raised part
constexpr double kDown = 0.42; // upper edge of a lowered part

struct Tag {
    std::string_view text;
    TermStyle style; // of what follows
};

constexpr std::array<Tag, 4> kTags = {{{"<SUB>", TermStyle::Subscript},
                                       {"</SUB>", TermStyle::Plain},
                                       {"<SUP>", TermStyle::Superscript},
                                       {"</SUP>", TermStyle::Plain}}};

char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool startsWith(std::string_view text, std::string_view tag) {
    if (text.size() < tag.size()) {
        return false;
    }
    for (std::size_t i = 0; i < tag.size(); ++i) {
        if (upper(text[i]) != tag[i]) {
            return false;
        }
    }
    return true;
}

std::optional<Tag> tagAt(std::string_view text) {
    for (const Tag& tag : kTags) {
        if (startsWith(text, tag.text)) {
            return tag;
        }
    }
    return std::nullopt;
}

} // namespace

std::vector<TermPiece> parseRichText(std::string_view text) {
    constexpr std::string_view kArrow = "->";
    std::vector<TermPiece> pieces;
    TermPiece piece;
    const auto finish = [&](TermStyle next) {
        if (!piece.text.empty()) {
            pieces.push_back(piece);
        }
        piece = {.text = {}, .style = next};
    };
    while (!text.empty()) {
        if (const auto tag = tagAt(text)) {
            finish(tag->style);
            text.remove_prefix(tag->text.size());
        } else if (text.starts_with(kArrow)) {
            piece.text += "→";
            text.remove_prefix(kArrow.size());
        } else {
            piece.text += text.front();
            text.remove_prefix(1);
        }
    }
    finish(TermStyle::Plain);
    return pieces;
}

std::string plainRichText(std::string_view text) {
    std::string plain;
    for (const TermPiece& piece : parseRichText(text)) {
        plain += piece.text;
    }
    return plain;
}

FontSpec RichText::fontOf(TermStyle style) const {
    FontSpec font = font_;
    font.size *= style == TermStyle::Plain ? 1 : kSmall;
    return font;
}

Size RichText::measure(const Surface& surface) const {
    Size size{0, surface.TextSize({}, font_).height};
    for (const TermPiece& piece : parseRichText(text_)) {
        size.width += surface.TextSize(piece.text, fontOf(piece.style)).width;
    }
    return size;
}

void RichText::paint(Surface& surface, Point leftTop) const {
    const double height = surface.TextSize({}, font_).height;
    for (const TermPiece& piece : parseRichText(text_)) {
        const FontSpec font = fontOf(piece.style);
        const double shift = piece.style == TermStyle::Superscript ? kUp * height
                             : piece.style == TermStyle::Subscript ? kDown * height
                                                                   : 0;
        surface.Text({leftTop.x, leftTop.y + shift}, piece.text, font, color_);
        leftTop.x += surface.TextSize(piece.text, font).width;
    }
}

} // namespace quendal
