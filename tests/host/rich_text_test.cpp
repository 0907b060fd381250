#include "host/rich_text.h"

#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <iterator>

namespace quendal {
namespace {

// A text in one line: "_{...}" lowered, "^{...}" raised.
std::string outline(std::string_view text) {
    std::string line;
    for (const TermPiece& piece : parseRichText(text)) {
        EXPECT_FALSE(piece.text.empty());
        EXPECT_EQ(piece.fraction, nullptr);
        const bool plain = piece.style == TermStyle::Plain;
        const char* mark = piece.style == TermStyle::Subscript ? "_{" : "^{";
        line += plain ? piece.text : mark + piece.text + "}";
    }
    return line;
}

struct TextRow {
    const char* text;
    const char* outline;
    const char* plain;
};

const TextRow kTexts[] = {
    {"", "", ""},
    {"Wasser", "Wasser", "Wasser"},
    {"H<SUB>3</SUB>O<SUP>+</SUP>", "H_{3}O^{+}", "H3O+"},
    {"HCl + H<SUB>2</SUB>O -> Cl<SUP>-</SUP>", "HCl + H_{2}O → Cl^{-}", "HCl + H2O → Cl-"},
    {"NO<SUB>3</SUB><SUP>-</SUP>", "NO_{3}^{-}", "NO3-"},
    {"a<sub>b</Sub>c<sUP>d</sup>e", "a_{b}c^{d}e", "abcde"},
    {"a<SUB>b<SUP>c</SUB>d", "a_{b}^{c}d", "abcd"}, // a new tag takes over
    {"a<SUB>b</SUP>c", "a_{b}c", "abc"},            // each end tag ends both
    {"a<SUB>b", "a_{b}", "ab"},
    {"a</SUB>b", "ab", "ab"},
    {"<SUB></SUB>a<SUP></SUP>", "a", "a"},
    {"<SUB><SUP></SUP>", "", ""},
    {"->", "→", "→"},
    {"a->b->c", "a→b→c", "a→b→c"},
    {"a<SUP>-></SUP>", "a^{→}", "a→"},
    {"-> - >", "→ - >", "→ - >"},
    {"-->", "-→", "-→"},
    {"->>", "→>", "→>"},
    // What is no tag stays.
    {"a < b > c", "a < b > c", "a < b > c"},
    {"<B>a</B>", "<B>a</B>", "<B>a</B>"},
    {"<SUB", "<SUB", "<SUB"},
    {"< SUB>", "< SUB>", "< SUB>"},
    {"<<SUB>a", "<_{a}", "<a"},
    {"<SUBX>a", "<SUBX>a", "<SUBX>a"},
    {"a^2|µ", "a^2|µ", "a^2|µ"},
    {"\xFF<SUB>\xC3</SUB>", "\xFF_{\xC3}", "\xFF\xC3"},
};

TEST(RichTexts, AreReadIntoPieces) {
    for (const TextRow& row : kTexts) {
        EXPECT_EQ(outline(row.text), row.outline) << row.text;
        EXPECT_EQ(plainRichText(row.text), row.plain) << row.text;
    }
}

TEST(RichTexts, NeedNoPieceWherePlainTextGoesOn) {
    EXPECT_EQ(parseRichText("a -> b").size(), 1U);
    EXPECT_EQ(parseRichText("a<SUB>b</SUB>").size(), 2U);
}

TEST(RichTexts, MayBeOfAnyLength) {
    const std::string many(200'000, '<');
    EXPECT_EQ(plainRichText(many), many);
    std::string tags;
    for (int i = 0; i < 20'000; ++i) {
        tags += "<SUB>x";
    }
    EXPECT_EQ(parseRichText(tags).size(), 20'000U);
    EXPECT_EQ(plainRichText(std::string_view("a\0b", 3)), std::string("a\0b", 3));
}

class RichTextPainter : public testing::Test {
  protected:
    RichTextPainter() {
        rich.setFont({.family = "Arial", .size = 20, .bold = true});
        rich.setColor(palette(12));
    }
    // Of a text in the estimate of the surface.
    static double widthOf(std::string_view text, double size) {
        return estimatedTextSize(text, {.size = size}).width;
    }

    test::RecordingSurface surface{800, 600};
    RichText rich;
};

TEST_F(RichTextPainter, MeasuresWhatItPaints) {
    rich.setText("ab<SUB>2</SUB>c");
    const Size size = rich.measure(surface);
    const double small = 20 * 0.7;
    EXPECT_DOUBLE_EQ(size.width, widthOf("ab", 20) + widthOf("2", small) + widthOf("c", 20));
    EXPECT_DOUBLE_EQ(size.height, estimatedTextSize({}, {.size = 20}).height);
    rich.setText("");
    EXPECT_EQ(rich.measure(surface).width, 0);
    EXPECT_DOUBLE_EQ(rich.measure(surface).height, size.height);
    EXPECT_TRUE(surface.order.empty());
}

TEST_F(RichTextPainter, PutsOnePieceBehindTheOther) {
    rich.setText("ab<SUB>2</SUB>c<SUP>+</SUP>");
    rich.paint(surface, {100, 50});
    const FontSpec plain{.family = "Arial", .size = 20, .bold = true};
    const FontSpec small{.family = "Arial", .size = 20 * 0.7, .bold = true};
    ASSERT_EQ(surface.texts.size(), 4U);
    double x = 100;
    const char* texts[] = {"ab", "2", "c", "+"};
    const FontSpec fonts[] = {plain, small, plain, small};
    for (std::size_t i = 0; i < std::size(texts); ++i) {
        EXPECT_EQ(surface.texts[i].text, texts[i]);
        EXPECT_EQ(surface.texts[i].font, fonts[i]);
        EXPECT_EQ(surface.texts[i].color, palette(12));
        EXPECT_DOUBLE_EQ(surface.texts[i].place.x, x);
        x += widthOf(texts[i], fonts[i].size);
    }
    EXPECT_DOUBLE_EQ(x, 100 + rich.measure(surface).width);
}

TEST_F(RichTextPainter, RaisesAndLowersWithinAWellSetLine) {
    rich.setText("a<SUB>2</SUB><SUP>+</SUP>");
    rich.paint(surface, {0, 50});
    const double line = rich.measure(surface).height;
    const double small = 0.7 * line;
    const double lowered = surface.texts[1].place.y;
    const double raised = surface.texts[2].place.y;
    EXPECT_EQ(surface.texts[0].place.y, 50);
    // The middle of a lowered part lies below that of the line, of a raised one above it, and
    // neither leaves the line by more than a quarter of its height.
    EXPECT_GT(lowered + small / 2, 50 + line * 0.6);
    EXPECT_LT(raised + small / 2, 50 + line * 0.4);
    EXPECT_LT(lowered + small, 50 + line * 1.25);
    EXPECT_GT(raised, 50 - line * 0.25);
}

TEST_F(RichTextPainter, PaintsNothingOfAnEmptyText) {
    rich.paint(surface, {0, 0});
    EXPECT_TRUE(surface.order.empty());
}

} // namespace
} // namespace quendal
