// The zoom from one picture into another, by numbers worked out by hand.
#include "shell/forms/frm_AppResource.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"
#include "stage_fixture.h"

namespace quendal::test {
namespace {

using Kind = Mark::Kind;

constexpr double kNear = 1e-6;
constexpr Color kLiquid{10, 60, 90};

class StageZoom : public StageTest {
  protected:
    StageZoom() {
        session().ParticleBackColor = kLiquid;
        for (int i = 1; i <= 2; ++i) {
            pictures.push_back(StagePictures::blank(480 * i, 470 * i));
            appResource().pic_phF.load(i).setPicture(pictures.back());
        }
        eachShot = [this](const Shot&) {
            frames.push_back(paper.marks);
            paper.marks.clear();
        };
    }
    // The frame at this moment; frames come at multiples of a sixtieth of a second.
    const std::vector<Mark>& frameAt(double seconds) {
        return frames.at(static_cast<std::size_t>(seconds * 60 + 0.5));
    }
    static std::vector<Mark> copies(const std::vector<Mark>& frame) {
        std::vector<Mark> found;
        for (const Mark& mark : frame) {
            if (mark.kind == Kind::Stretch) {
                found.push_back(mark);
            }
        }
        return found;
    }
    void expectCopy(const Mark& mark, int picture, Point from, Point to, const Rect& source) {
        EXPECT_EQ(mark.picture, pictures[static_cast<std::size_t>(picture - 1)]);
        EXPECT_EQ(mark.from, from);
        EXPECT_EQ(mark.to, to);
        EXPECT_NEAR(mark.source.left, source.left, kNear);
        EXPECT_NEAR(mark.source.top, source.top, kNear);
        EXPECT_NEAR(mark.source.width, source.width, kNear);
        EXPECT_NEAR(mark.source.height, source.height, kNear);
        EXPECT_EQ(mark.operation, RasterOp::SrcCopy);
    }
    // The three moments of a zoom between the pictures 1 and 2 with the factor 0.333 and the inner
    // factor 0.9, by the share of the way in.
    void expectStart(const std::vector<Mark>& frame) {
        // Picture 2 is 1441.44 by 1411.41 large; it ends at (1461, 1461), and a third of it is
        // left.
        const auto drawn = copies(frame);
        ASSERT_EQ(drawn.size(), 2U);
        expectCopy(drawn[0], 2, {20, 50}, {500, 520},
                   {0, 0, 480 * 960.0 / 1441, 470 * 940.0 / 1411});
        // Picture 1 begins at (24.8, 54.7) and is 432 by 423 large.
        expectCopy(drawn[1], 1, {25, 55}, {457, 478}, {0, 0, 480, 470});
    }
    void expectMiddle(const std::vector<Mark>& frame) {
        // 2.0015015 times as large: up to (980.72, 990.71).
        const auto drawn = copies(frame);
        ASSERT_EQ(drawn.size(), 2U);
        expectCopy(drawn[0], 2, {20, 50}, {500, 520}, {0, 0, 480 * 960.0 / 961, 470 * 940.0 / 941});
        // 319.92 by 313.255, and 0.45 of it, 0.055 of it inside.
        expectCopy(drawn[1], 1, {38, 67}, {182, 208}, {0, 0, 480, 470});
    }
    void expectEnd(const std::vector<Mark>& frame) {
        const auto drawn = copies(frame);
        ASSERT_EQ(drawn.size(), 1U); // of the first picture nothing is left
        expectCopy(drawn[0], 2, {20, 50}, {500, 520}, {0, 0, 960, 940});
    }

    std::vector<PicturePtr> pictures;
    std::vector<std::vector<Mark>> frames;
};

constexpr Zoom kIn{.first = 1, .second = 2, .factor = 0.333, .inner = 0.9, .duration = 2};

TEST_F(StageZoom, ShrinksTheFirstPictureIntoTheSecond) {
    open();
    stage.hZoom(kIn);
    EXPECT_GE(frames.size(), 121U);
    expectStart(frames.front());
    expectMiddle(frameAt(1));
    expectEnd(frames.back());
}

TEST_F(StageZoom, GoesTheSameWayBack) {
    open();
    stage.hZoomOut(kIn);
    EXPECT_GE(frames.size(), 121U);
    expectEnd(frames.front());
    expectMiddle(frameAt(1));
    expectStart(frames.back());
}

TEST_F(StageZoom, TakesAsLongAsItIsTold) {
    open();
    Zoom zoom = kIn;
    zoom.duration = 1;
    stage.hZoomOut(zoom);
    EXPECT_NEAR(shots.back().time - shots.front().time, 1, kFrame);
    expectMiddle(frameAt(0.5));
}

TEST_F(StageZoom, FramesEachOfItsPanels) {
    open();
    stage.hZoom(kIn);
    const std::vector<Mark>& frame = frameAt(1);
    ASSERT_EQ(frame.size(), 11U);
    EXPECT_EQ(frame[0], (Mark{Kind::Box, {20, 50}, {500, 520}, kLiquid}));
    const std::vector<Mark> outline{frame.begin() + 1, frame.begin() + 5};
    const std::vector<Mark> frameOver{frame.begin() + 7, frame.end()};
    EXPECT_EQ(outline, frameOver); // drawn once more over the pictures
    EXPECT_EQ(outline[0], (Mark{Kind::Line, {19, 50}, {501, 50}, palette(15), 2}));
}

TEST_F(StageZoom, ShowsThePictureAtRestWithoutDuration) {
    open();
    stage.hZoom({.first = 2, .second = 2});
    ASSERT_EQ(frames.size(), 1U);
    const auto drawn = copies(frames[0]);
    ASSERT_EQ(drawn.size(), 2U);
    for (const Mark& copy : drawn) {
        expectCopy(copy, 2, {20, 50}, {500, 520}, {0, 0, 960, 940});
    }
}

TEST_F(StageZoom, WithoutDurationIsAtItsEnd) {
    open();
    Zoom zoom = kIn;
    zoom.duration = 0;
    stage.hZoom(zoom);
    ASSERT_EQ(frames.size(), 1U);
    const auto drawn = copies(frames[0]);
    ASSERT_EQ(drawn.size(), 2U);
    expectCopy(drawn[0], 2, {20, 50}, {500, 520}, {0, 0, 960, 940});
    expectCopy(drawn[1], 1, {20, 50}, {180, 207}, {0, 0, 480, 470}); // 159.84 by 156.51, whole
}

TEST_F(StageZoom, ScalesWithTheStage) {
    open({1600, 900});
    stage.hZoom(kIn);
    // From the start of the first picture: (24.8, 54.7) to (456.8, 477.7).
    const auto drawn = copies(frameAt(0));
    EXPECT_EQ(drawn[0].from, (Point{40, 75}));
    EXPECT_EQ(drawn[0].to, (Point{1000, 780}));
    EXPECT_EQ(drawn[1].from, (Point{50, 82}));
    EXPECT_EQ(drawn[1].to, (Point{914, 717}));
}

TEST_F(StageZoom, EndsWhenTheLearnerBreaksOff) {
    open();
    during(10, [this] { stage.userKey(Key::Escape); });
    stage.hZoom(kIn);
    EXPECT_EQ(frames.size(), 11U);
}

TEST_F(StageZoom, DoesWithoutPictures) {
    open();
    stage.hZoom({.first = 7, .second = -1, .factor = 0.333, .inner = 0.9, .duration = 1});
    EXPECT_GE(frames.size(), 61U);
    EXPECT_TRUE(copies(frameAt(0.5)).empty());
    appResource().pic_phF(1).setPicture(nullptr); // a broken file
    frames.clear();
    stage.hZoom(kIn);
    for (const auto& frame : frames) {
        EXPECT_EQ(copies(frame).size(), 1U);
    }
}

} // namespace
} // namespace quendal::test
