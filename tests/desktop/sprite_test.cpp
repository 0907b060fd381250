// Sprites: every kind of record as pixels, and the key colour.
#include "desktop/wmf_drawings.h"

#include "desktop/pictures/desktop_picture.h"
#include "desktop/pictures/sprite_renderer.h"
#include "host/picture_bytes.h"

#include <QImage>

namespace quendal::test {

namespace {

const QColor kWhitePixel(255, 255, 255);
const QColor kRedPixel(200, 0, 0);
const QColor kBluePixel(0, 0, 200);
constexpr Color kRed{200, 0, 0};
constexpr Color kBlue{0, 0, 200};

// 100 x 100 px, drawn with a red brush and a blue pen of 4 px.
class Drawn {
  public:
    Drawn() {
        writer.pen(0, 4, kBlue);
        writer.brush(kRed);
    }
    QColor at(int x, int y) {
        if (image_.isNull()) {
            image_ = renderSprite(drawingOf(writer), {100, 100});
        }
        return image_.pixelColor(x, y);
    }
    // Pixels that aren't white.
    int painted() {
        int count = 0;
        for (int y = 0; y < 100; ++y) {
            for (int x = 0; x < 100; ++x) {
                count += at(x, y) != kWhitePixel ? 1 : 0;
            }
        }
        return count;
    }

    WmfWriter writer{100, 100};

  private:
    QImage image_;
};

TEST(Sprite, Rectangles) {
    Drawn drawn;
    drawn.writer.rectangle({20, 30, 80, 70});
    EXPECT_EQ(drawn.at(50, 50), kRedPixel);
    EXPECT_EQ(drawn.at(19, 50), kBluePixel);
    EXPECT_EQ(drawn.at(20, 50), kBluePixel);
    EXPECT_EQ(drawn.at(50, 71), kBluePixel);
    EXPECT_EQ(drawn.at(22, 50), kRedPixel);
    EXPECT_EQ(drawn.at(17, 50), kWhitePixel);
    EXPECT_NE(drawn.at(18, 28), kBluePixel); // corners of pens are round
}

TEST(Sprite, RoundRectanglesAndEllipses) {
    Drawn round;
    round.writer.noPen();
    round.writer.roundRectangle({10, 10, 90, 90}, 40, 40);
    EXPECT_EQ(round.at(50, 11), kRedPixel);
    EXPECT_EQ(round.at(11, 50), kRedPixel);
    EXPECT_EQ(round.at(12, 12), kWhitePixel);
    EXPECT_EQ(round.at(18, 18), kRedPixel);

    Drawn ellipse;
    ellipse.writer.ellipse({10, 30, 90, 70});
    EXPECT_EQ(ellipse.at(50, 50), kRedPixel);
    EXPECT_EQ(ellipse.at(50, 30), kBluePixel);
    EXPECT_EQ(ellipse.at(10, 50), kBluePixel);
    EXPECT_EQ(ellipse.at(14, 34), kWhitePixel);
}

TEST(Sprite, PolygonsByBothRules) {
    for (const int rule : {1, 2}) {
        Drawn drawn;
        drawn.writer.noPen();
        drawn.writer.fillRule(rule);
        drawn.writer.polyPolygon(
            {{{10, 10}, {90, 10}, {90, 90}, {10, 90}}, {{40, 40}, {60, 40}, {60, 60}, {40, 60}}});
        EXPECT_EQ(drawn.at(20, 20), kRedPixel);
        EXPECT_EQ(drawn.at(50, 50), rule == 1 ? kWhitePixel : kRedPixel);
        EXPECT_EQ(drawn.painted(), rule == 1 ? 80 * 80 - 20 * 20 : 80 * 80);
    }
    Drawn triangle;
    triangle.writer.noPen();
    triangle.writer.polygon({{0, 0}, {100, 0}, {0, 100}});
    EXPECT_EQ(triangle.at(30, 30), kRedPixel);
    EXPECT_EQ(triangle.at(70, 70), kWhitePixel);
    EXPECT_EQ(triangle.at(50, 49).red(), 234); // six of sixteen fine pixels are inside
}

TEST(Sprite, LinesArentFilled) {
    Drawn drawn;
    drawn.writer.polyline({{10, 10}, {90, 10}, {90, 90}});
    drawn.writer.moveTo({10, 50});
    drawn.writer.lineTo({50, 50});
    drawn.writer.lineTo({50, 90});
    EXPECT_EQ(drawn.at(50, 10), kBluePixel);
    EXPECT_EQ(drawn.at(90, 50), kBluePixel);
    EXPECT_EQ(drawn.at(80, 20), kWhitePixel);
    EXPECT_EQ(drawn.at(30, 50), kBluePixel);
    EXPECT_EQ(drawn.at(50, 70), kBluePixel);
    EXPECT_EQ(drawn.at(45, 55), kWhitePixel);
}

TEST(Sprite, ThinLinesAreOnePixelAtLeast) {
    WmfWriter writer(400, 400);
    writer.pen(0, 1, kBlue);
    writer.polyline({{0, 202}, {400, 202}});
    const QImage small = renderSprite(drawingOf(writer), {100, 100});
    int ink = 0; // in all of a column
    for (int y = 0; y < 100; ++y) {
        ink += 255 - small.pixelColor(50, y).red();
    }
    EXPECT_EQ(ink, 255);
}

TEST(Sprite, DashedLinesHaveGaps) {
    Drawn solid;
    solid.writer.polyline({{0, 50}, {100, 50}});
    Drawn dashed;
    dashed.writer.pen(1 | 0x0200, 4, kBlue);
    dashed.writer.polyline({{0, 50}, {100, 50}});
    EXPECT_EQ(solid.painted(), 400);
    EXPECT_LT(dashed.painted(), 380);
    EXPECT_GT(dashed.painted(), 200);
}

TEST(Sprite, ArcsPiesAndChords) {
    const WmfWriter::Box box{10, 10, 90, 90};
    // The quarter from three o'clock up to twelve.
    Drawn arc;
    arc.writer.arc(0x0817, box, {90, 50}, {50, 10});
    EXPECT_EQ(arc.at(78, 21), kBluePixel);
    EXPECT_EQ(arc.at(21, 78), kWhitePixel);
    EXPECT_EQ(arc.at(60, 40), kWhitePixel);
    EXPECT_EQ(arc.at(70, 30), kWhitePixel);
    Drawn pie;
    pie.writer.arc(0x081A, box, {90, 50}, {50, 10});
    EXPECT_EQ(pie.at(60, 40), kRedPixel);
    EXPECT_EQ(pie.at(70, 30), kRedPixel);
    EXPECT_EQ(pie.at(50, 30), kBluePixel);
    EXPECT_EQ(pie.at(40, 60), kWhitePixel);
    Drawn chord;
    chord.writer.arc(0x0830, box, {90, 50}, {50, 10});
    EXPECT_EQ(chord.at(60, 45), kWhitePixel);
    EXPECT_EQ(chord.at(75, 25), kRedPixel);
    EXPECT_EQ(chord.at(70, 30), kBluePixel);
}

TEST(Sprite, ClipsAndStates) {
    Drawn drawn;
    drawn.writer.noPen();
    drawn.writer.save();
    drawn.writer.clip({20, 20, 60, 100});
    drawn.writer.rectangle({0, 0, 100, 40});
    drawn.writer.restore(-1);
    drawn.writer.rectangle({0, 90, 100, 100});
    EXPECT_EQ(drawn.painted(), 40 * 20 + 100 * 10);
    EXPECT_EQ(drawn.at(20, 20), kRedPixel);
    EXPECT_EQ(drawn.at(19, 20), kWhitePixel);
}

// Rows and columns that a text's letters reach.
QRect inkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != kWhitePixel) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

QRect inkOfText(const std::string& text, const WmfWriter::Font& font, int align) {
    WmfWriter writer(200, 200);
    writer.font(font);
    writer.groundMode(1);
    writer.align(align);
    writer.text({100, 100}, text);
    return inkOf(renderSprite(drawingOf(writer), {200, 200}));
}

TEST(Sprite, TextsStandWhereTheirAlignmentSays) {
    constexpr int kBaseline = 24;
    const QRect left = inkOfText("HH", {.height = -40}, kBaseline);
    EXPECT_NEAR(left.bottom(), 99, 1);
    EXPECT_NEAR(left.height(), 29, 2); // of a capital: 0.72 of the size
    EXPECT_NEAR(left.left(), 103, 2);
    const QRect right = inkOfText("HH", {.height = -40}, kBaseline | 2);
    EXPECT_NEAR(right.right(), 96, 2);
    const QRect middle = inkOfText("HH", {.height = -40}, kBaseline | 6);
    EXPECT_NEAR(middle.center().x(), 100, 1);
    EXPECT_NEAR(middle.width(), left.width(), 1);
    EXPECT_GT(inkOfText("HH", {.height = -40}, 0).top(), 103);
    EXPECT_LT(inkOfText("HH", {.height = -40}, 8).bottom(), 95);
    // A positive height is that of the cell, which is larger than the size.
    EXPECT_LT(inkOfText("HH", {.height = 40}, kBaseline).height(), left.height());
    EXPECT_GT(inkOfText("HH", {.height = -40, .weight = 700}, kBaseline).width(), left.width());
    // A quarter turn to the left: upward.
    const QRect upright = inkOfText("HH", {.height = -40, .tenths = 900}, kBaseline);
    EXPECT_NEAR(upright.right(), 99, 1);
    EXPECT_NEAR(upright.bottom(), 96, 2);
    EXPECT_NEAR(upright.height(), left.width(), 2);
}

TEST(Sprite, UmlautsHaveTheirDots) {
    constexpr int kBaseline = 24;
    const auto top = [](const char* text) {
        return inkOfText(text, {.height = -60}, kBaseline).top();
    };
    EXPECT_LT(top("\xC4"), top("A") - 5);
    EXPECT_LT(top("\xFC"), top("u") - 5);
    EXPECT_NE(inkOfText("\xDF", {.height = -60}, kBaseline),
              inkOfText("?", {.height = -60}, kBaseline));
    EXPECT_FALSE(inkOfText("abc", {.height = -60, .family = "Symbol", .charset = 2}, 0).isEmpty());
}

TEST(Sprite, TextsKeepTheirProportionsAtAnySize) {
    WmfWriter writer(100, 100);
    writer.font({.height = -13});
    writer.groundMode(1);
    writer.text({5, 5}, "Leitf\xE4higkeit");
    const WmfDrawing drawing = drawingOf(writer);
    const QRect large = inkOf(renderSprite(drawing, {1000, 1000}));
    for (const int size : {65, 100, 137, 240}) {
        const QRect ink = inkOf(renderSprite(drawing, {size, size}));
        EXPECT_NEAR(ink.right(), large.right() * size / 1000.0, 1) << size;
        EXPECT_NEAR(ink.bottom(), large.bottom() * size / 1000.0, 1) << size;
    }
}

// Arial's average letter is 904 of 2048 parts of its size wide, 9 px at 20 px.
TEST(Sprite, LettersAreAsWideAsTheFontAsks) {
    const auto ink = [](int letterWidth) {
        WmfWriter writer(400, 100);
        writer.font({.height = -20, .width = letterWidth});
        writer.groundMode(1);
        writer.text({0, 5}, "Wasserstoffion");
        return inkOf(renderSprite(drawingOf(writer), {400, 100}));
    };
    const QRect usual = ink(0);
    EXPECT_NEAR(ink(9).right(), usual.right() * 9 / 8.83, 2);
    EXPECT_NEAR(ink(6).right(), usual.right() * 6 / 8.83, 2);
    EXPECT_NEAR(ink(18).right(), usual.right() * 18 / 8.83, 3);
    EXPECT_NEAR(ink(-6).right(), ink(6).right(), 1);
    EXPECT_EQ(ink(6).height(), usual.height());
    EXPECT_LT(ink(30000).left(), 400); // held within what can be read
}

TEST(Sprite, TextsHaveTheirGroundAndAdvances) {
    Drawn drawn;
    drawn.writer.font({.height = -20});
    drawn.writer.ground(kRed);
    drawn.writer.text({10, 10}, "   ");
    EXPECT_EQ(drawn.at(20, 20), kRedPixel);
    EXPECT_EQ(drawn.at(8, 20), kWhitePixel);
    EXPECT_EQ(drawn.at(20, 40), kWhitePixel);

    WmfWriter wide(200, 100);
    wide.font({.height = -20});
    wide.groundMode(1);
    wide.textWithAdvances({10, 10}, "II", {100, 10});
    const QImage image = renderSprite(drawingOf(wide), {200, 100});
    EXPECT_GT(inkOf(image).right(), 110);
    EXPECT_LT(inkOf(image.copy(0, 0, 100, 100)).right(), 20);
}

TEST(Sprite, TheGroundIsWhiteAndTheKeyColourTransparent) {
    Drawn drawn;
    drawn.writer.noPen();
    drawn.writer.brush(kKeyColor);
    drawn.writer.rectangle({0, 0, 50, 100});
    drawn.writer.brush({254, 0, 255}); // nearly
    drawn.writer.rectangle({0, 0, 20, 20});
    drawn.writer.brush(kRed);
    drawn.writer.rectangle({20, 20, 80, 80});
    drawn.writer.brush(kKeyColor);
    drawn.writer.rectangle({60, 60, 70, 70}); // clears again
    EXPECT_EQ(drawn.at(10, 50).alpha(), 0);
    EXPECT_EQ(drawn.at(90, 50), kWhitePixel);
    EXPECT_EQ(drawn.at(10, 10), QColor(254, 0, 255));
    EXPECT_EQ(drawn.at(50, 50), kRedPixel);
    EXPECT_EQ(drawn.at(65, 65).alpha(), 0);
}

// A green ball and a green letter on the key colour: whatever is mixed with it shows red and blue.
WmfDrawing greenOnKey() {
    WmfWriter writer(200, 200);
    writer.noPen();
    writer.brush(kKeyColor);
    writer.rectangle({0, 0, 200, 200});
    writer.pen(0, 3, {0, 90, 0});
    writer.brush({0, 200, 0});
    writer.ellipse({13, 17, 151, 133});
    writer.polyline({{5, 190}, {77, 141}, {190, 177}});
    writer.textColor({0, 120, 0});
    writer.groundMode(1);
    writer.font({.height = -50});
    writer.text({150, 20}, "S");
    return drawingOf(writer);
}

// Pixels that aren't wholly there or gone; none may have red or blue in it.
int softPixels(const QImage& image) {
    int soft = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            EXPECT_EQ(qRed(pixel), 0);
            EXPECT_EQ(qBlue(pixel), 0);
            soft += qAlpha(pixel) != 0 && qAlpha(pixel) != 255 ? 1 : 0;
        }
    }
    return soft;
}

TEST(Sprite, NoTraceOfTheKeyColourIsLeftAtTheEdges) {
    const WmfDrawing drawing = greenOnKey();
    for (const int size : {37, 130, 200, 333}) {
        const QImage image = renderSprite(drawing, {size, size});
        EXPECT_GT(softPixels(image), size) << size;
        const DesktopPicture picture(image);
        const QRectF whole(QPointF(0, 0), QSizeF(image.size()));
        for (const int other : {size * 65 / 100, size / 5 + 1, size * 3 / 2}) {
            EXPECT_GT(softPixels(picture.cut(whole, {other, other})), 0);
        }
    }
}

TEST(Sprite, OddSizesGiveNoImage) {
    const WmfDrawing drawing = drawingOf(richWmf());
    EXPECT_TRUE(renderSprite(drawing, {0, 10}).isNull());
    EXPECT_TRUE(renderSprite(drawing, {10, -1}).isNull());
    EXPECT_TRUE(renderSprite(drawing, {kLargestPictureSide + 1, 10}).isNull());
    EXPECT_EQ(renderSprite(drawing, {1, 1}).size(), QSize(1, 1));
    EXPECT_EQ(renderSprite(drawing, {kLargestPictureSide, 3}).width(), kLargestPictureSide);
    EXPECT_EQ(renderSprite(WmfDrawing{.size = {10, 10}}, {10, 10}).pixelColor(5, 5), kWhitePixel);
}

} // namespace

} // namespace quendal::test
