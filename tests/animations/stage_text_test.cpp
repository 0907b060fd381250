// Texts on the stage: where they stand, how large they are, what their marks do.
#include "stage_fixture.h"

#include <cmath>
#include <iterator>

namespace quendal::test {
namespace {

using Marks = std::vector<Mark>;

constexpr Size kSmallStage{640, 480};

// On a stage of 800 by 600 a text of 20 points is 13.5 points high, which are 18 px: a character is
// 9 px wide and a line 22.5 px high.
class StageText : public StageTest {
  protected:
    Marks texts() const { return paper.of(Mark::Kind::Text); }
    std::string written() const {
        std::string all;
        for (const Mark& mark : texts()) {
            all += mark.text + "/";
        }
        return all;
    }
};

struct AnchorRow {
    int number;
    double left;
    double top;
};

constexpr AnchorRow kAnchors[] = {
    {0, 100, 188.75}, {1, 82, 188.75}, {2, 64, 188.75}, {3, 100, 188.75},
    {4, 100, 200},    {5, 82, 200},    {6, 64, 200},    {7, 100, 200},
    {8, 100, 177.5},  {9, 82, 177.5},  {10, 64, 177.5}, {11, 100, 177.5},
};

TEST_F(StageText, StandsAtItsAnchor) {
    open();
    for (const AnchorRow& row : kAnchors) {
        paper.Clear();
        stage.hPrint(100, 200, "abcd", {.anchor = static_cast<Anchor>(row.number)});
        ASSERT_EQ(texts().size(), 1U) << row.number;
        EXPECT_EQ(texts()[0].text, "abcd");
        EXPECT_EQ(texts()[0].from, (Point{row.left, row.top})) << row.number;
    }
}

TEST_F(StageText, CountsCharactersAndNotBytes) {
    open();
    stage.hPrint(100, 200, "äöüß", {.anchor = Anchor::Right});
    EXPECT_EQ(texts()[0].from.x, 64);
}

struct HeightRow {
    Size stage;
    double size;
    double points;
};

// The smaller of both stretches counts, but always divided by 800.
constexpr HeightRow kHeights[] = {
    {{800, 600}, 20, 13.5},     {{640, 480}, 20, 10.8},   {{1366, 768}, 20, 17.28},
    {{1366, 768}, 30, 25.92},   {{768, 1024}, 20, 17.28}, {{1024, 768}, 20, 17.28},
    {{1920, 1080}, 25, 30.375}, {{600, 1200}, 16, 10.8},
};

TEST_F(StageText, HasASizeThatFollowsTheStage) {
    open();
    for (const HeightRow& row : kHeights) {
        resize(stage, row.stage);
        EXPECT_NEAR(stage.hH(row.size), row.points, 1e-9) << row.stage.width;
        paper.Clear();
        stage.hPrint(0, 0, "a", {.size = row.size});
        EXPECT_EQ(texts()[0].font.family, "Arial");
        EXPECT_NEAR(texts()[0].font.size, row.points * 96 / 72, 1e-9);
    }
}

TEST_F(StageText, IsTwentyPointsHighByDefault) {
    open();
    stage.hPrint(0, 0, "a");
    stage.hPrint(0, 0, "a", {.size = 20});
    stage.hPrint(0, 0, "a", {.size = 40});
    EXPECT_EQ(texts()[0], texts()[1]);
    EXPECT_DOUBLE_EQ(texts()[0].font.size, 18);
    EXPECT_DOUBLE_EQ(texts()[2].font.size, 36);
}

TEST_F(StageText, StandsInPixelsOfTheRealStage) {
    open({1600, 900});
    stage.hPrint(100, 200, "a", {.anchor = Anchor::BelowLeft});
    EXPECT_EQ(texts()[0].from, (Point{200, 300}));
}

TEST_F(StageText, KeepsItsColourUntilAnotherIsGiven) {
    open();
    stage.hPrint(0, 0, "a", {.color = palette(4)});
    stage.hPrint(0, 0, "b");
    stage.hPrint(0, 0, "xµy", {.color = kBlack});
    stage.hPrint(0, 0, "c^d");
    const Color expected[] = {palette(4), palette(4), kBlack, kBlack, kBlack, kBlack};
    ASSERT_EQ(texts().size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(texts()[i].color, expected[i]) << i;
    }
}

TEST_F(StageText, OfRichKindLeavesTheColourOfTheOthers) {
    open();
    stage.hPrint(0, 0, "a", {.color = palette(4)});
    stage.hPrint(0, 0, "b", {.color = palette(2), .rich = true});
    stage.hPrint(0, 0, "c", {.rich = true});
    stage.hPrint(0, 0, "d");
    EXPECT_EQ(texts()[1].color, palette(2));
    EXPECT_EQ(texts()[2].color, palette(15));
    EXPECT_EQ(texts()[3].color, palette(4));
}

TEST_F(StageText, BeginsANewLineAtEachReturn) {
    open();
    stage.hPrint(100, 200, "one\r\ntwo\r\n\rfour", {.anchor = Anchor::BelowLeft});
    const Marks marks = texts();
    ASSERT_EQ(marks.size(), 4U);
    const char* lines[] = {"one", "two", "", "four"};
    // The places are rounded to pixels: 222.5 and 267.5 go to the even number.
    const double tops[] = {200, 222, 245, 268};
    for (std::size_t i = 0; i < marks.size(); ++i) {
        EXPECT_EQ(marks[i].text, lines[i]);
        EXPECT_EQ(marks[i].from, (Point{100, tops[i]})) << i;
    }
}

// A line of 23 points is 25.875 px high on a stage of 800 by 600, and 27.6 px on one of 1280 by
// 640, which are 25.875 of its 600 units as well.
TEST_F(StageText, KeepsItsLinesApartOnAnyStage) {
    open({1280, 640});
    stage.hPrint(0, 0, "a\rb\rc", {.size = 23, .anchor = Anchor::BelowLeft});
    const double line = 640 * 23.0 / 800 * 0.9 * 96 / 72 * 1.25; // px
    ASSERT_EQ(texts().size(), 3U);
    EXPECT_EQ(texts()[1].from.y, std::round(line));
    EXPECT_EQ(texts()[2].from.y, std::round(2 * line));
}

TEST_F(StageText, AnchorsEachLineByItself) {
    open();
    stage.hPrint(100, 200, "ab\rabcd", {.anchor = Anchor::Centre});
    EXPECT_EQ(texts()[0].from.x, 91);
    EXPECT_EQ(texts()[1].from.x, 82);
}

TEST_F(StageText, RaisesAndLowersByAQuarterOfALetter) {
    open();
    stage.hPrint(100, 200, "Hµ3|O^+|!", {.color = kBlack, .anchor = Anchor::BelowLeft});
    const FontSpec plain{.family = "Arial", .size = 18};
    const FontSpec small{.family = "Arial", .size = 18 * 0.9};
    const double quarter = 22.5 / 4;
    const double narrow = 9 * 0.9;
    struct Run {
        const char* text;
        Point place;
        FontSpec font;
    };
    const Run runs[] = {{"H", {100, 200}, plain},
                        {"3", {109, 200 + quarter}, small},
                        {"O", {109 + narrow, 200}, plain},
                        {"+", {118 + narrow, 200 - quarter}, small},
                        {"!", {118 + 2 * narrow, 200}, plain}};
    const Marks marks = texts();
    ASSERT_EQ(marks.size(), std::size(runs));
    for (std::size_t i = 0; i < marks.size(); ++i) {
        EXPECT_EQ(marks[i].text, runs[i].text);
        EXPECT_NEAR(marks[i].from.x, runs[i].place.x, 1e-9) << i;
        EXPECT_NEAR(marks[i].from.y, runs[i].place.y, 1e-9) << i;
        EXPECT_NEAR(marks[i].font.size, runs[i].font.size, 1e-9) << i;
        EXPECT_EQ(marks[i].color, kBlack);
    }
}

TEST_F(StageText, StaysRaisedOrLoweredUpToTheNextMark) {
    open();
    stage.hPrint(0, 0, "10^-7 mol µa^b", {.anchor = Anchor::BelowLeft});
    EXPECT_EQ(written(), "10/-7 mol /a/b/");
    EXPECT_LT(texts()[1].from.y, 0);
    EXPECT_GT(texts()[2].from.y, 0);
    EXPECT_EQ(texts()[3].from.y, texts()[1].from.y); // from the base line, not from below it
    EXPECT_EQ(texts()[3].font.size, texts()[1].font.size);
}

TEST_F(StageText, NeedsNoMoreThanMarks) {
    open();
    stage.hPrint(0, 0, "|");
    stage.hPrint(0, 0, "µ^|µ");
    EXPECT_EQ(written(), "");
}

TEST_F(StageText, WithMarksStandsByItsWholeLength) {
    open();
    stage.hPrint(400, 0, "xµ2|", {.anchor = Anchor::Centre}); // four characters
    EXPECT_EQ(texts()[0].from.x, 400 - 18);
}

TEST_F(StageText, IsRichByItsFlagOrItsArrow) {
    open();
    stage.hPrint(0, 0, "H<SUB>2</SUB>O");
    EXPECT_EQ(written(), "H<SUB>2</SUB>O/");
    EXPECT_EQ(stage.LastText.text, "");
    paper.Clear();
    stage.hPrint(0, 0, "H<SUB>2</SUB>O", {.rich = true});
    EXPECT_EQ(written(), "H/2/O/");
    EXPECT_EQ(stage.LastText.text, "H<SUB>2</SUB>O");
    paper.Clear();
    stage.hPrint(0, 0, "A -> B<SUP>+</SUP>");
    EXPECT_EQ(written(), "A → B/+/");
    EXPECT_EQ(stage.LastText.text, "A -> B<SUP>+</SUP>");
    paper.Clear();
    stage.hPrint(0, 0, "1 > 2 - 3");
    EXPECT_EQ(written(), "1 > 2 - 3/");
}

TEST_F(StageText, OfRichKindTakesReturnsAndMarksAsTheyAre) {
    open();
    stage.hPrint(0, 0, "a\r^b", {.rich = true});
    EXPECT_EQ(written(), "a\r^b/");
}

TEST_F(StageText, OfRichKindIsNotConvertedByDefault) {
    for (const Size size : {Size{800, 600}, kSmallStage, Size{1366, 768}}) {
        open(size);
        paper.Clear();
        stage.hPrint(0, 0, "a", {.rich = true});
        stage.hPrint(0, 0, "a", {.size = 20, .rich = true});
        EXPECT_NEAR(texts()[0].font.size, 20 * 96 / 72.0, 1e-9);
        EXPECT_NEAR(texts()[1].font.size, stage.hH(20) * 96 / 72, 1e-9);
        EXPECT_EQ(texts()[0].font.family, "Arial");
    }
}

// Of 30 points: 27 px, so that a plain character is 13.5 px wide, a line 33.75 px high, and a
// raised or lowered character 0.7 as wide.
TEST_F(StageText, OfRichKindKeepsItsRectangle) {
    open();
    stage.hPrint(400, 500, "abc<SUP>+</SUP>", {.size = 30, .anchor = Anchor::Left, .rich = true});
    const double width = 13.5 * 3.7;
    EXPECT_NEAR(stage.LastText.Left, 400 - width / 2, 1e-9);
    EXPECT_NEAR(stage.LastText.Right, 400 + width / 2, 1e-9);
    EXPECT_NEAR(stage.LastText.Top, 500 - 33.75 / 2, 1e-9);
    EXPECT_NEAR(stage.LastText.Bottom, 500 + 33.75 / 2, 1e-9);
    EXPECT_EQ(texts()[0].from, (Point{stage.LastText.Left, stage.LastText.Top}));
}

TEST_F(StageText, OfRichKindIsCentredOnTheScaledPlace) {
    open(kSmallStage);
    stage.hPrint(401, 503, "a", {.size = 20, .anchor = Anchor::BelowRight, .rich = true});
    EXPECT_NEAR((stage.LastText.Left + stage.LastText.Right) / 2, 321, 1e-9); // 320.8
    EXPECT_NEAR((stage.LastText.Top + stage.LastText.Bottom) / 2, 402, 1e-9); // 402.4
}

TEST_F(StageText, OfRichKindIsRepeatedUntilItIsEmptied) {
    open();
    stage.hPrint(400, 500, "a -> b", {.color = palette(10)});
    const Mark first = texts().back();
    stage.RichText.setText("something else"); // LastText has a painter of its own
    stage.hTextRepeat();
    stage.hRender();
    EXPECT_EQ(texts(), (Marks{first, first, first}));
    stage.hPrint(400, 500, "", {.rich = true});
    EXPECT_EQ(stage.LastText.text, "");
    EXPECT_EQ(stage.LastText.Right, 0);
    stage.hTextRepeat();
    stage.hRender();
    EXPECT_EQ(texts().size(), 3U);
}

TEST_F(StageText, OfPlainKindLeavesTheRichOne) {
    open();
    stage.hPrint(400, 500, "rich", {.rich = true});
    stage.hPrint(400, 500, "");
    stage.hPrint(400, 500, "plain");
    EXPECT_EQ(stage.LastText.text, "rich");
}

TEST_F(StageText, OfACaptionStandsAtTheFootOfThePanel) {
    open();
    stage.subtitle("Keine Rückreaktion!");
    EXPECT_EQ((stage.LastText.Left + stage.LastText.Right) / 2, 400);
    EXPECT_EQ((stage.LastText.Top + stage.LastText.Bottom) / 2, 500);
    EXPECT_NEAR(texts()[0].font.size, 20 * 96 / 72.0, 1e-9);
    stage.subtitle("A", 30);
    EXPECT_NEAR(texts()[1].font.size, 27, 1e-9);
    EXPECT_EQ(texts()[1].color, palette(15));
}

TEST_F(StageText, OfATitleStandsOnTop) {
    open();
    stage.title(432, "abcd", 20, Anchor::Centre);
    EXPECT_EQ(texts()[0].from, (Point{432 - 18, 24 - 11.25}));
    EXPECT_EQ(texts()[0].color, palette(15));
}

TEST_F(StageText, OfTheFooterTakesThePlaceOfTheOneBefore) {
    open();
    stage.footer("abcd");
    EXPECT_EQ(paper.order(), "bllllt");
    EXPECT_EQ(paper.marks[0], (Mark{Mark::Kind::Box, {20, 540}, {780, 580}, palette(7)}));
    EXPECT_EQ(paper.marks[1].color, kWhite);
    EXPECT_EQ(texts()[0].from, (Point{30, 560 - 11.25}));
    EXPECT_EQ(texts()[0].color, kBlack);
    EXPECT_EQ(texts()[0].font.size, 18);
    stage.hClearText();
    EXPECT_EQ(paper.footer(), "");
}

TEST_F(StageText, IsReadOut) {
    open();
    stage.title(432, "wie: pH=-log c(Hµ3|O^+|)", 20, Anchor::Centre);
    stage.hRender();
    EXPECT_EQ(stage.pic_Stage.accessibleName(), "wie: pH=-log c(H3O+)");
    stage.subtitle("H<SUB>2</SUB>O -> H<SUP>+</SUP>");
    stage.hRender();
    EXPECT_EQ(stage.pic_Stage.accessibleName(), "wie: pH=-log c(H3O+) H2O → H+");
}

} // namespace
} // namespace quendal::test
