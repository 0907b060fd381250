#include "host/pictures.h"
#include "particles/mdl_Capture.h"
#include "shell/session/session.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace quendal::test {
namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

class Holder final : public Form {
  public:
    Holder() : Form("Holder", {10, 10}) {}
    PictureBox pic_Capture{*this, "pic_Capture", 0};
};

class Capture : public testing::Test {
  protected:
    Capture() { setCaptureBuffer(&holder->pic_Capture); }
    ~Capture() override {
        setCaptureBuffer(nullptr);
        resetSession();
    }
    PictureBox& buffer() { return holder->pic_Capture; }

    FakeHost host;
    std::unique_ptr<Holder> holder = std::make_unique<Holder>();
};

TEST_F(Capture, OfTheDesktop) {
    const PicturePtr picture = hCaptureScreen(0);
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->width(), 1366);
    EXPECT_EQ(picture->height(), 768);
    EXPECT_EQ(session().CapturedPicture, picture);
    EXPECT_EQ(buffer().picture(), picture);
    EXPECT_EQ(buffer().place(), (Rect{0, 0, 1366, 768}));
}

TEST_F(Capture, OfAWindowIsTakenFromTheDesktop) {
    host.capture.front = {100, 50, 299, 149};
    host.capture.child = {100, 80, 299, 149};
    EXPECT_EQ(hCaptureScreen(1)->height(), 100);
    EXPECT_EQ(hCaptureScreen(2)->height(), 70);
    EXPECT_EQ(host.capture.grabs,
              (std::vector<FakeCapture::Grab>{{FakeCapture::kDesktop, {100, 50, 299, 149}},
                                              {FakeCapture::kDesktop, {100, 80, 299, 149}}}));
}

TEST_F(Capture, KnowsThreeModes) {
    for (const int mode : {3, -1, kMost, kLeast}) {
        EXPECT_EQ(hCaptureScreen(mode), nullptr);
    }
    EXPECT_TRUE(host.capture.grabs.empty());
}

TEST_F(Capture, GivesNothingWithoutAWindow) {
    const PicturePtr before = hCaptureScreen(0);
    host.capture.hasChild = false;
    EXPECT_EQ(hCaptureScreen(2), nullptr);
    EXPECT_NE(hCaptureScreen(1), nullptr);
    host.capture.hasFront = false;
    EXPECT_EQ(hCaptureScreen(1), nullptr);
    EXPECT_EQ(hCaptureScreen(2), nullptr);
    host.capture.hasDesktop = false;
    EXPECT_EQ(hCaptureScreen(0), nullptr);
    EXPECT_NE(session().CapturedPicture, nullptr);
}

TEST_F(Capture, GivesNothingForAWindowWithoutPlace) {
    session().CapturedPicture = hCaptureScreen(0);
    host.capture.front = {};
    EXPECT_EQ(hCaptureScreen(1), nullptr);
}

TEST_F(Capture, GivesNothingWhereTheSystemGivesNoPicture) {
    session().CapturedPicture = hCaptureScreen(0);
    host.capture.givesPictures = false;
    EXPECT_EQ(hCaptureScreen(0), nullptr);
}

TEST_F(Capture, OfARectangle) {
    hCaptureRect(ScreenCapture::kNoWindow, 10, 20, 109, 49);
    EXPECT_EQ(session().CapturedPicture->width(), 100);
    EXPECT_EQ(session().CapturedPicture->height(), 30);
    hCaptureRect(FakeCapture::kChild, -5, -5, -5, -5); // a single pixel
    EXPECT_EQ(session().CapturedPicture->width(), 1);
    EXPECT_EQ(buffer().place(), (Rect{0, 0, 1, 1}));
    EXPECT_EQ(host.capture.grabs.front().window, FakeCapture::kDesktop);
    EXPECT_EQ(host.capture.grabs.back().window, FakeCapture::kChild);
}

TEST_F(Capture, OfAnImpossibleRectangleDoesNothing) {
    const PicturePtr before = hCaptureScreen(0);
    host.capture.grabs.clear();
    const PixelRect parts[] = {{10, 0, 9, 50},        {10, 0, 5, 50},        {0, 10, 50, 3},
                               {kLeast, 0, kMost, 5}, {0, kLeast, 5, kMost}, {kMost, 0, kLeast, 5},
                               {0, -1, 5, kMost},     {-1, 0, kMost, 5}};
    for (const PixelRect& part : parts) {
        hCaptureRect(ScreenCapture::kNoWindow, part.left, part.top, part.right, part.bottom);
    }
    EXPECT_TRUE(host.capture.grabs.empty());
    EXPECT_EQ(session().CapturedPicture, before);
    EXPECT_EQ(buffer().picture(), before);
}

TEST_F(Capture, DoesWithoutABuffer) {
    holder.reset(); // the box is gone, and nobody has said so
    EXPECT_NE(hCaptureScreen(0), nullptr);
    setCaptureBuffer(nullptr);
    EXPECT_NE(hCaptureScreen(0), nullptr);
}

} // namespace
} // namespace quendal::test
