// Lines, boxes, pictures and frames of the stage.
#include "stage_fixture.h"

#include <limits>

namespace quendal::test {
namespace {

using Kind = Mark::Kind;

constexpr Size kSmallStage{640, 480};

class StageDrawing : public StageTest {};

TEST_F(StageDrawing, TurnsDesignUnitsIntoPixels) {
    open();
    EXPECT_EQ(stage.hX(123.4), 123);
    EXPECT_EQ(stage.hY(-5.6), -6);
    resize(stage, kSmallStage);
    EXPECT_EQ(stage.hX(800), 640);
    EXPECT_EQ(stage.hY(600), 480);
    EXPECT_EQ(stage.hX(101), 81); // 80.8
    EXPECT_EQ(stage.hY(99), 79);  // 79.2
    resize(stage, {1366, 768});
    EXPECT_EQ(stage.hX(100), 171); // 170.75
    EXPECT_EQ(stage.hY(100), 128);
    EXPECT_EQ(stage.hX(-100), -171);
}

TEST_F(StageDrawing, RoundsHalvesToTheEvenPixel) {
    open();
    EXPECT_EQ(stage.hX(0.5), 0);
    EXPECT_EQ(stage.hX(1.5), 2);
    EXPECT_EQ(stage.hY(2.5), 2);
    EXPECT_EQ(stage.hY(-1.5), -2);
    resize(stage, {400, 300});
    EXPECT_EQ(stage.hX(5), 2);
    EXPECT_EQ(stage.hY(7), 4);
}

struct WidthRow {
    double stage;
    double line;
};

constexpr WidthRow kWidths[] = {{640, 1}, {799, 1}, {800, 2}, {1023, 2}, {1024, 3}, {3840, 3}};

TEST_F(StageDrawing, HasThickerLinesOnAWiderStage) {
    open();
    for (const WidthRow& row : kWidths) {
        resize(stage, {row.stage, 600});
        paper.Clear();
        stage.hLine(0, 0, 10, 10, kWhite);
        stage.hFrame(0, 0, 10, 10, kWhite);
        for (const Mark& mark : paper.marks) {
            EXPECT_EQ(mark.width, row.line) << row.stage;
        }
    }
}

TEST_F(StageDrawing, DrawsALineBetweenItsPoints) {
    open(kSmallStage);
    stage.hLine(101, 99, 300, 400, palette(12));
    EXPECT_EQ(paper.marks, (std::vector<Mark>{{Kind::Line, {81, 79}, {240, 320}, palette(12), 1}}));
}

TEST_F(StageDrawing, DrawsABoxWithItsOutlineOverIt) {
    open();
    stage.hBox(20, 50, 780, 520, palette(15), palette(8));
    const Color white = palette(15);
    const std::vector<Mark> expected{{Kind::Box, {20, 50}, {780, 520}, palette(8)},
                                     {Kind::Line, {19, 50}, {781, 50}, white, 2},
                                     {Kind::Line, {19, 520}, {781, 520}, white, 2},
                                     {Kind::Line, {20, 49}, {20, 521}, white, 2},
                                     {Kind::Line, {780, 49}, {780, 521}, white, 2}};
    EXPECT_EQ(paper.marks, expected);
}

TEST_F(StageDrawing, FillsABoxWithItsLineColourWhereNoneIsGiven) {
    open();
    stage.hBox(1, 2, 3, 4, palette(5));
    EXPECT_EQ(paper.marks[0], (Mark{Kind::Box, {1, 2}, {3, 4}, palette(5)}));
    EXPECT_EQ(paper.marks[1].color, palette(5));
}

TEST_F(StageDrawing, LeavesTheInsideOfAFrameAlone) {
    open();
    stage.hFrame(10, 20, 30, 40, palette(3));
    EXPECT_EQ(paper.order(), "llll");
    EXPECT_EQ(paper.marks[3], (Mark{Kind::Line, {30, 19}, {30, 41}, palette(3), 2}));
}

TEST_F(StageDrawing, ScalesTheCornersOfABox) {
    open(kSmallStage);
    stage.hBox(20, 50, 780, 520, kWhite, kBlack);
    EXPECT_EQ(paper.marks[0], (Mark{Kind::Box, {16, 40}, {624, 416}, kBlack}));
    EXPECT_EQ(paper.marks[1], (Mark{Kind::Line, {15.5, 40}, {624.5, 40}, kWhite, 1}));
}

TEST_F(StageDrawing, ClearsTheStageToBlack) {
    open();
    stage.clearStage();
    EXPECT_EQ(paper.cleared, 1);
    EXPECT_EQ(stage.pic_Stage.backcolor(), kBlack);
}

class StagePicture : public StageTest {
  protected:
    const PicturePtr picture = StagePictures::blank(200, 100);
    Mark drawn() const {
        EXPECT_EQ(paper.marks.size(), 1U);
        return paper.marks.empty() ? Mark{} : paper.marks[0];
    }
    static Mark stretched(const PicturePtr& picture, Point from, Point to, const Rect& source) {
        return {
            .kind = Kind::Stretch, .from = from, .to = to, .picture = picture, .source = source};
    }
};

TEST_F(StagePicture, FillsItsRectangle) {
    open(kSmallStage);
    stage.hBlit({100, 150, 50, 60}, picture, RasterOp::SrcInvert);
    Mark expected = stretched(picture, {80, 120}, {120, 168}, {0, 0, 200, 100});
    expected.operation = RasterOp::SrcInvert;
    EXPECT_EQ(drawn(), expected);
}

TEST_F(StagePicture, IsCutInProportion) {
    open();
    // 400 by 400 px for 200 by 100 of the picture: half a px of it across and a quarter down.
    stage.hBlitClip({100, 100, 400, 400}, picture, {200, 140, 200, 300}, RasterOp::SrcAnd);
    Mark expected = stretched(picture, {200, 140}, {400, 440}, {50, 10, 100, 75});
    expected.operation = RasterOp::SrcAnd;
    EXPECT_EQ(drawn(), expected);
}

TEST_F(StagePicture, IsWholeWithinALargerClip) {
    open();
    stage.hBlitClip({100, 100, 40, 40}, picture, {0, 0, 800, 600}, RasterOp::SrcCopy);
    EXPECT_EQ(drawn(), stretched(picture, {100, 100}, {140, 140}, {0, 0, 200, 100}));
}

TEST_F(StagePicture, KeepsTheCornerThatTheClipLeaves) {
    open();
    stage.hBlitClip({0, 0, 400, 200}, picture, {-100, -100, 200, 150}, RasterOp::SrcCopy);
    EXPECT_EQ(drawn(), stretched(picture, {0, 0}, {100, 50}, {0, 0, 50, 25}));
    paper.Clear();
    stage.hBlitClip({0, 0, 400, 200}, picture, {300, 150, 500, 500}, RasterOp::SrcCopy);
    EXPECT_EQ(drawn(), stretched(picture, {300, 150}, {400, 200}, {150, 75, 50, 25}));
}

TEST_F(StagePicture, IsNotDrawnWhereNothingIsLeft) {
    open();
    const Rect clip{20, 50, 480, 470};
    for (const Rect& to : {Rect{600, 100, 50, 50}, Rect{100, 530, 50, 50}, Rect{500, 100, 50, 50},
                           Rect{0, 0, 20, 50}, Rect{100, 100, 0, 50}, Rect{100, 100, 50, 0},
                           Rect{100, 100, -5, 50}, Rect{100, 100, 0.3, 0.3}}) {
        stage.hBlitClip(to, picture, clip, RasterOp::SrcCopy);
    }
    stage.hBlit({100, 100, 50, 50}, nullptr, RasterOp::SrcCopy);
    stage.hBlit({100, 100, 0, 0}, picture, RasterOp::SrcCopy);
    EXPECT_TRUE(paper.marks.empty());
}

class StageFrame : public StageTest {
  protected:
    StageFrame() {
        addSprite("a\\one", 40, 20);
        addSprite("a\\two", 60, 30);
    }
};

TEST_F(StageFrame, DrawsPanelSpritesAndTextInThisOrder) {
    open();
    stage.ShowPanel = true;
    stage.hSprite(100, 100, 100, "a\\two");
    stage.hSprite(200, 100, 100, "a\\one");
    stage.subtitle("x<SUB>2</SUB>");
    paper.Clear();
    stage.hRender();
    EXPECT_EQ(paper.order(), "bllllsstt");
    EXPECT_EQ(paper.marks[0], (Mark{Kind::Box, {20, 50}, {780, 520}, palette(8)}));
    EXPECT_EQ(paper.marks[1].color, palette(15));
    EXPECT_EQ(paper.marks[5].picture, sprite("A\\TWO").Dc);
    EXPECT_EQ(paper.marks[6].picture, sprite("A\\ONE").Dc);
}

TEST_F(StageFrame, HasNoPanelUnlessItIsAskedFor) {
    open();
    stage.hSprite(100, 100, 100, "a\\one");
    stage.hRender();
    EXPECT_EQ(paper.order(), "s");
}

TEST_F(StageFrame, StretchesTheBufferOverItsPlace) {
    open();
    stage.hSprite(100, 100, 50, "a\\two");
    stage.hRender();
    Mark expected;
    expected.kind = Kind::Stretch;
    expected.from = {85, 93}; // 15 px high, and half of it in whole px
    expected.to = {115, 108};
    expected.picture = sprite("A\\TWO").Dc;
    expected.source = {0, 0, 60, 30};
    EXPECT_EQ(paper.marks[0], expected);
}

TEST_F(StageFrame, LetsEventsInWhenItIsComplete) {
    open();
    stage.ShowPanel = true;
    std::string seen;
    bool shown = false;
    eachShot = [&](const Shot&) { shown = true; };
    host.windows.events.push_back([&] {
        seen = paper.order();
        EXPECT_TRUE(shown);
    });
    stage.hRender();
    EXPECT_EQ(seen, "bllll");
}

TEST_F(StageFrame, IsCounted) {
    open();
    const auto frames = [this] {
        FieldTable table;
        stage.describe(table);
        return std::get<std::int64_t>(table.find("Frames").value());
    };
    const std::int64_t before = frames();
    stage.hRender();
    stage.hRender();
    EXPECT_EQ(frames(), before + 2);
}

class StageClick : public StageTest {
  protected:
    Point clicked(double x, double y) {
        stage.Clicked = false;
        stage.Form_MouseDown(x, y, MouseButton::Left);
        EXPECT_TRUE(stage.Clicked);
        EXPECT_FALSE(stage.Aborted);
        return {double(stage.ClickX), double(stage.ClickY)};
    }
};

TEST_F(StageClick, IsTakenInDesignUnits) {
    open(kSmallStage);
    EXPECT_EQ(clicked(320, 240), (Point{400, 300}));
    EXPECT_EQ(clicked(639, 479), (Point{799, 599})); // 798.75 and 598.75
    resize(stage, {1600, 1200});
    EXPECT_EQ(clicked(1, 3), (Point{0, 2})); // halves go to the even number
    EXPECT_EQ(clicked(5, 7), (Point{2, 4}));
}

TEST_F(StageClick, IsCutToWhatANumberHolds) {
    open();
    constexpr double kFar = 1e6;
    EXPECT_EQ(clicked(1e12, -1e300), (Point{kFar, -kFar}));
    EXPECT_EQ(clicked(std::numeric_limits<double>::infinity(), -1e6 - 1), (Point{kFar, -kFar}));
    EXPECT_EQ(clicked(-7, 700), (Point{-7, 700}));
}

TEST_F(StageClick, WithAnotherButtonBreaksOff) {
    open();
    stage.Form_MouseDown(100, 100, MouseButton::Right);
    EXPECT_TRUE(stage.Aborted);
    EXPECT_FALSE(stage.Clicked);
    EXPECT_EQ(stage.ClickX, 0);
}

TEST_F(StageClick, ComesThroughTheStagePicture) {
    open();
    stage.pic_Stage.userMouse(12, 34, MouseButton::Left);
    EXPECT_TRUE(stage.Clicked);
    EXPECT_EQ(stage.ClickX, 12);
    EXPECT_EQ(stage.ClickY, 34);
    stage.pic_Stage.userMouse(1, 1, MouseButton::Right);
    EXPECT_TRUE(stage.Aborted);
}

TEST_F(StageClick, OnTheReactorAddsItsPlace) {
    open(kSmallStage);
    stage.pic_IonenReaktor.setPlace(143, 204, 284, 172);
    stage.pic_IonenReaktor.setVisible(true);
    // 71 of the reactor's 355 units are a fifth of its 284 px.
    stage.pic_IonenReaktor.userMouse(71, 43, MouseButton::Left);
    EXPECT_TRUE(stage.Clicked);
    EXPECT_EQ(stage.ClickX, 250); // (143 + 56.8) px
    EXPECT_EQ(stage.ClickY, 298); // (204 + 34.4) px
    stage.pic_IonenReaktor.userMouse(71, 43, MouseButton::Right);
    EXPECT_TRUE(stage.Aborted);
}

TEST_F(StageClick, OnAnEdgeIsIn) {
    open();
    const auto in = [this](double x, double y) {
        clicked(x, y);
        return stage.hClickIn(10, 20, 30, 40);
    };
    EXPECT_TRUE(in(10, 20));
    EXPECT_TRUE(in(30, 40));
    EXPECT_TRUE(in(10, 40));
    EXPECT_TRUE(in(30, 20));
    EXPECT_TRUE(in(20, 30));
    EXPECT_FALSE(in(9, 30));
    EXPECT_FALSE(in(31, 30));
    EXPECT_FALSE(in(20, 19));
    EXPECT_FALSE(in(20, 41));
}

TEST_F(StageClick, ByEscapeBreaksOff) {
    open();
    EXPECT_TRUE(stage.userKey(Key::Escape));
    EXPECT_TRUE(stage.Aborted);
    EXPECT_FALSE(stage.Clicked);
}

class StageForm : public StageTest {};

TEST_F(StageForm, TakesTheWholeScreen) {
    EXPECT_EQ(stage.name(), "frm_AppIntro");
    EXPECT_EQ(stage.caption(), "Intro Quendal");
    EXPECT_EQ(stage.windowState(), WindowState::Maximised);
    EXPECT_TRUE(stage.frameless());
    EXPECT_TRUE(stage.scalesItself());
    open({1366, 768});
    EXPECT_EQ(stage.pic_Stage.place(), (Rect{0, 0, 1366, 768}));
}

TEST_F(StageForm, HasTheButtonsToTheLens) {
    EXPECT_EQ(stage.but_Magnify.text(), "Reaktion mit mehreren Teilchen");
    EXPECT_EQ(stage.but_Acid.text(), "Säure-Base-Gleichgewicht ansehen");
    for (const ctl_Button* button : {&stage.but_Magnify, &stage.but_Acid}) {
        EXPECT_EQ(button->pictureIcon(), "Ico\\20\\Computer\\Signs\\Search.ico");
        EXPECT_FALSE(button->visible());
    }
}

} // namespace
} // namespace quendal::test
