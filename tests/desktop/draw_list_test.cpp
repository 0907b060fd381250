// What a list of drawing commands keeps, and how much room texts take.
#include "desktop/box_form.h"
#include "desktop/window_rig.h"

#include "desktop/pictures/desktop_picture.h"
#include "desktop/pictures/draw_list.h"
#include "desktop/pictures/picture_surface.h"

namespace quendal::test {

namespace {

using Kind = DrawCommand::Kind;

const QRectF kWhole(0, 0, 200, 100);

DrawCommand box(Point a, Point b, Color color = kBlack) {
    return {.kind = Kind::Box, .color = color, .a = a, .b = b, .opaque = true};
}

class DrawListTest : public testing::Test {
  protected:
    // What is left of `under` once `over` was appended.
    std::size_t leftUnder(const DrawCommand& over, const DrawCommand& under) {
        DrawList list;
        list.add(under);
        append(list, over);
        return list.size() - 1;
    }
    static void append(DrawList& list, const DrawCommand& command) {
        DrawList frame;
        frame.add(command);
        list.append(frame, kWhole);
    }
    static bool hidesAny(const DrawCommand& command) {
        DrawList frame;
        frame.add(command);
        return frame.hidesAny(kWhole);
    }
};

TEST_F(DrawListTest, ALargeBoxHidesWhatLiesWhollyBeneath) {
    const DrawCommand panel = box({20, 10}, {119, 89});
    EXPECT_EQ(leftUnder(panel, box({20, 10}, {119, 89})), 0U);
    EXPECT_EQ(leftUnder(panel, box({60, 50}, {60, 50})), 0U);
    EXPECT_EQ(leftUnder(panel, box({19, 10}, {119, 89})), 1U);
    EXPECT_EQ(leftUnder(panel, box({20, 10}, {120, 89})), 1U);
    EXPECT_EQ(leftUnder(panel, box({20, 9}, {119, 89})), 1U);
    EXPECT_EQ(leftUnder(panel, box({20, 10}, {119, 90})), 1U);
    EXPECT_EQ(leftUnder(box({119, 89}, {20, 10}), box({119, 89}, {20, 10})), 0U); // either corner
}

TEST_F(DrawListTest, SoftEdgesBeneathABoxAreKept) {
    const DrawCommand panel = box({20, 10}, {119, 89});
    const auto line = [](Point a, Point b) {
        return DrawCommand{.kind = Kind::Line, .a = a, .b = b, .size = 2};
    };
    const auto circle = [](Point centre, double radius) {
        return DrawCommand{.kind = Kind::Circle, .a = centre, .size = radius};
    };
    EXPECT_EQ(leftUnder(panel, line({30, 20}, {100, 80})), 0U);
    EXPECT_EQ(leftUnder(panel, line({21, 20}, {100, 80})), 1U);
    EXPECT_EQ(leftUnder(panel, circle({60, 50}, 30)), 0U);
    EXPECT_EQ(leftUnder(panel, circle({60, 50}, 40)), 1U);
    EXPECT_EQ(leftUnder(panel, line({-500, -500}, {-400, -400})), 0U); // never seen anyway
}

TEST_F(DrawListTest, ABoxHidesOnlyFromASixteenthOfTheSurface) {
    EXPECT_TRUE(hidesAny(box({0, 0}, {49, 24})));
    EXPECT_FALSE(hidesAny(box({0, 0}, {48, 24})));
    EXPECT_FALSE(hidesAny(box({0, 0}, {49, 23})));
    EXPECT_TRUE(hidesAny(box({0, 0}, {199, 99})));
    EXPECT_EQ(leftUnder(box({0, 0}, {48, 24}), box({10, 10}, {11, 11})), 1U);
    EXPECT_EQ(leftUnder(box({0, 0}, {49, 24}), box({10, 10}, {11, 11})), 0U);
}

TEST_F(DrawListTest, OnlyWhatIsOpaqueHides) {
    DrawCommand open = box({0, 0}, {199, 99});
    open.opaque = false;
    EXPECT_FALSE(hidesAny(open));
    EXPECT_FALSE(hidesAny({.kind = Kind::Line, .b = {199, 99}, .size = 300}));
    EXPECT_FALSE(hidesAny({.kind = Kind::Circle, .a = {100, 50}, .size = 300}));
    EXPECT_FALSE(DrawList().hidesAny(kWhole));
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    const auto picture = std::make_shared<DesktopPicture>(image);
    // A picture hides however small it is.
    EXPECT_TRUE(hidesAny({.kind = Kind::Stretch,
                          .a = {5, 5},
                          .b = {8, 8},
                          .picture = picture,
                          .from = {0, 0, 4, 4},
                          .opaque = true}));
}

TEST_F(DrawListTest, ALineDrawnAgainWithAWholeFrameIsKeptOnce) {
    const DrawCommand line{
        .kind = Kind::Line, .color = kWhite, .a = {9, 10}, .b = {190, 10}, .size = 2};
    DrawCommand others[] = {line, line, line, line};
    others[0].color = kBlack;
    others[1].size = 3;
    others[2].a.x = 8;
    others[3].b.y = 11;
    DrawList list;
    list.add(line);
    for (const DrawCommand& other : others) {
        list.add(other);
    }
    append(list, line); // by itself it is no frame
    EXPECT_EQ(list.size(), 6U);
    DrawList frame;
    frame.add(box({10, 10}, {189, 89}));
    frame.add(line);
    list.append(frame, kWhole);
    EXPECT_EQ(list.size(), 6U);
    EXPECT_EQ(list.commands().back().a, line.a);
    EXPECT_EQ(list.commands().front().color, kBlack);
}

TEST_F(DrawListTest, WhatIsKeptStaysInItsOrder) {
    DrawList list;
    append(list, box({0, 0}, {199, 99}, {1, 1, 1}));
    append(list, box({10, 10}, {20, 20}, {2, 2, 2}));
    append(list, box({30, 30}, {180, 90}, {3, 3, 3}));
    append(list, box({5, 5}, {90, 60}, {4, 4, 4})); // hides the second
    ASSERT_EQ(list.size(), 3U);
    const int reds[] = {1, 3, 4};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(list.commands()[i].color.r, reds[i]);
    }
}

class PanelTest : public testing::Test {
  protected:
    // A frame of a stage that is never cleared: a panel with its outline, and on it a mover.
    void drawFrame(PictureSurface& onto, double x) {
        onto.Box({10, 10}, {189, 89}, {128, 128, 128});
        for (const double y : {10.0, 89.0}) {
            onto.Line({9, y}, {190, y}, kWhite, 2);
        }
        for (const double edge : {10.0, 189.0}) {
            onto.Line({edge, 9}, {edge, 90}, kWhite, 2);
        }
        onto.Box({x, 40}, {x + 9, 49}, {255, 0, 0});
        onto.Text({20, 70}, "A", {.size = 12}, kBlack);
    }

    BoxForm form;
    PictureSurface surface{form.box};
};

TEST_F(PanelTest, FramesOnAPanelDontPileUp) {
    surface.Text({0, 0}, "Titel", {.size = 8}, kBlack);
    for (int i = 0; i < 500; ++i) {
        drawFrame(surface, 20 + i % 100);
        surface.finish();
        surface.image({200, 100}, 1);
        ASSERT_LE(surface.kept(), 20U) << i;
    }
}

TEST_F(PanelTest, OnlyWhatMovesIsPaintedAnew) {
    for (int i = 0; i < 5; ++i) {
        drawFrame(surface, 20 + 2 * i);
        surface.finish();
        surface.image({200, 100}, 1);
    }
    drawFrame(surface, 60);
    const QRectF changed = surface.finish();
    EXPECT_TRUE(changed.contains(QRectF(28, 40, 42, 10)));
    EXPECT_LT(changed.width(), 60);
    EXPECT_LT(changed.height(), 20);
    surface.image({200, 100}, 1);
    drawFrame(surface, 60);
    EXPECT_TRUE(surface.finish().isEmpty());
}

TEST_F(PanelTest, LooksLikeTheLastFrameAlone) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        const QSize size(int(200 * scale), int(100 * scale));
        PictureSurface one(form.box);
        for (int i = 0; i < 7; ++i) {
            drawFrame(one, 20 + 13 * i);
            one.finish();
            one.image(size, scale);
        }
        PictureSurface last(form.box);
        drawFrame(last, 20 + 13 * 6);
        last.finish();
        EXPECT_EQ(one.image(size, scale), last.image(size, scale)) << scale;
    }
}

class TextSizeTest : public testing::Test {
  protected:
    // Columns from the first to the last that a text blackens, at this scale.
    QRect inked(const char* text, const FontSpec& font, double scale = 1) {
        surface.Clear();
        surface.Text({20, 10}, text, font, kBlack);
        surface.finish();
        const QImage& image = surface.image({int(200 * scale), int(100 * scale)}, scale);
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qRed(image.pixel(x, y)) < 128) {
                    ink |= QRect(x, y, 1, 1);
                }
            }
        }
        return ink;
    }

    BoxForm form;
    PictureSurface surface{form.box};
};

TEST_F(TextSizeTest, IsTheRoomThatTheTextTakes) {
    for (const double size : {12.0, 20.0, 33.0}) {
        const FontSpec font{.size = size};
        const QRect ink = inked("HHHHH", font);
        const Size room = surface.TextSize("HHHHH", font);
        EXPECT_GE(ink.left(), 20);
        EXPECT_LE(ink.right(), 20 + room.width);
        EXPECT_GE(ink.width(), room.width * 0.85);
        EXPECT_GE(ink.top(), 10);
        EXPECT_LE(ink.bottom(), 10 + room.height);
        EXPECT_GE(ink.height(), room.height * 0.5);
    }
}

TEST_F(TextSizeTest, IsAsHighAsALineWhateverTheText) {
    const FontSpec font{.size = 20};
    const double line = surface.TextSize({}, font).height;
    EXPECT_GT(line, 20);
    EXPECT_LT(line, 30);
    for (const char* text : {"a", "Åg", "viel mehr Text"}) {
        EXPECT_EQ(surface.TextSize(text, font).height, line);
    }
    EXPECT_EQ(surface.TextSize({}, font).width, 0);
    EXPECT_NEAR(surface.TextSize({}, {.size = 40}).height, 2 * line, 2);
}

TEST_F(TextSizeTest, CountsCharactersOfUtf8) {
    const FontSpec font{.size = 20};
    EXPECT_EQ(surface.TextSize("ä", font).width, surface.TextSize("a", font).width);
    EXPECT_GT(surface.TextSize("aa", font).width, surface.TextSize("a", font).width);
    EXPECT_GT(surface.TextSize("aa", {.size = 20, .bold = true}).width, 0);
}

TEST_F(TextSizeTest, IsInUnitsOfTheSurfaceAtEveryScale) {
    const FontSpec font{.size = 20};
    inked("H", font);
    const Size plain = surface.TextSize("HHHHH", font);
    const QRect ink = inked("HHHHH", font, 2);
    const Size twice = surface.TextSize("HHHHH", font);
    EXPECT_NEAR(twice.width, plain.width, plain.width * 0.03);
    EXPECT_NEAR(twice.height, plain.height, 1);
    EXPECT_LE(ink.right() / 2.0, 20 + twice.width);
    EXPECT_GE(ink.width() / 2.0, twice.width * 0.85);
}

} // namespace

} // namespace quendal::test
