// Pictures of the screen. Without one, the program's own windows are put together.
#include "desktop/window_rig.h"

#include "desktop/pictures/desktop_picture.h"
#include "desktop/windows/desktop_screen_capture.h"
#include "host/screen_capture.h"

#include <QMenuBar>

namespace quendal::test {

namespace {

constexpr QRgb kTeal = qRgb(20, 140, 140);
constexpr QRgb kRust = qRgb(190, 90, 40);

class FullForm final : public Form {
  public:
    FullForm() : Form("frm_Full", {1000, 690}) {
        setWindowState(WindowState::Maximised);
        head.setPlace(100, 50, 300, 200);
        head.setBackColor({20, 140, 140});
    }
    Menu mnu_File{*this, "mnu_File", "&Datei"};
    Menu mnu_New{mnu_File, "mnu_New", "&Neu"};
    PictureBox head{*this, "head"};
};

class Dialog final : public Form {
  public:
    Dialog() : Form("frm_Dialog", {200, 100}) {
        box.setPlace(0, 0, 200, 100);
        box.setBackColor({190, 90, 40});
    }
    PictureBox box{*this, "box"};
};

class CaptureTest : public WindowTest {
  protected:
    CaptureTest() { host.windows().setScreen({800, 700}); }

    QImage grabbed(ScreenCapture::WindowHandle window, const PixelRect& part) {
        picture = CoreLib().Screen.grab(window, part);
        const auto* known = dynamic_cast<const DesktopPicture*>(picture.get());
        return known == nullptr ? QImage() : known->prepared(1.0);
    }
    QPoint placeOf(const Control& control) {
        return widgetOf(control).mapToGlobal(QPoint(0, 0)) - host.windows().wholeScreen().topLeft();
    }

    DesktopScreenCapture capture{host.windows()};
    PicturePtr picture;
    FullForm form;
    Dialog dialog;
};

TEST_F(CaptureTest, AnEmptyScreenIsAnEmptyGround) {
    const ScreenCapture& screen = CoreLib().Screen;
    const auto desktop = screen.GetDesktopWindow();
    ASSERT_NE(desktop, ScreenCapture::kNoWindow);
    EXPECT_EQ(screen.windowRect(desktop), (PixelRect{0, 0, 799, 699}));
    const QImage image = grabbed(desktop, {0, 0, 799, 699});
    EXPECT_EQ(image.size(), QSize(800, 700));
    EXPECT_EQ(image.pixel(0, 0), image.pixel(799, 699));
    EXPECT_EQ(screen.GetForegroundWindow(), ScreenCapture::kNoWindow);
}

TEST_F(CaptureTest, WindowsStandAtTheirPlacesTheLastInFront) {
    steps.add([&] { host.windows().Show(dialog); });
    steps.add([&] {
        const ScreenCapture& screen = CoreLib().Screen;
        const QImage image = grabbed(screen.GetDesktopWindow(), {0, 0, 799, 699});
        const QPoint head = placeOf(form.head);
        EXPECT_EQ(image.pixel(head + QPoint(3, 3)), kTeal);
        EXPECT_NE(image.pixel(head - QPoint(3, 3)), kTeal);
        const QPoint box = placeOf(dialog.box);
        EXPECT_EQ(image.pixel(box + QPoint(5, 5)), kRust);
        // Only a part of it, with its own corner.
        const QImage part =
            grabbed(screen.GetDesktopWindow(), {head.x(), head.y(), head.x() + 9, head.y() + 4});
        EXPECT_EQ(part.size(), QSize(10, 5));
        EXPECT_EQ(part.pixel(0, 0), kTeal);
        host.windows().Unload(dialog);
    });
    play(form);
}

TEST_F(CaptureTest, MenuBarsAreInThePicture) {
    steps.add([&] {
        const QImage image = grabbed(CoreLib().Screen.GetDesktopWindow(), {0, 0, 799, 699});
        FormWindow& window = *host.windows().windowOf(form);
        const QMenuBar& bar = *window.findChild<QMenuBar*>();
        // The window's frame may shift it a little to the right.
        const QSize size(bar.width() - 20, bar.height());
        const QRect area(bar.mapToGlobal(QPoint(0, 0)), size);
        const QImage shown = window.grab(QRect(bar.pos(), size)).toImage();
        EXPECT_EQ(image.copy(area).convertToFormat(QImage::Format_RGB32),
                  shown.convertToFormat(QImage::Format_RGB32));
    });
    play(form);
}

TEST_F(CaptureTest, TheFormInFrontAndItsContentHaveHandlesAndPlaces) {
    steps.add([&] {
        const ScreenCapture& screen = CoreLib().Screen;
        const auto front = screen.GetForegroundWindow();
        ASSERT_NE(front, ScreenCapture::kNoWindow);
        EXPECT_EQ(front, screen.GetForegroundWindow());
        const QRect frame = host.windows().windowOf(form)->frameGeometry();
        EXPECT_EQ(screen.windowRect(front),
                  (PixelRect{frame.left(), frame.top(), frame.right(), frame.bottom()}));
        const auto child = screen.GetWindow(front, ScreenCapture::kFirstChild);
        const PixelRect content = screen.windowRect(child);
        EXPECT_GT(content.top, 10); // below the menu bar
        EXPECT_LE(content.bottom, frame.bottom());
        EXPECT_GE(content.bottom, 699);
        EXPECT_EQ(screen.GetWindow(front, 4), ScreenCapture::kNoWindow);
        EXPECT_EQ(screen.GetWindow(child, ScreenCapture::kFirstChild), ScreenCapture::kNoWindow);
        // The content's own corner.
        const double scale = host.windows().scaleOf(form);
        const int x = static_cast<int>(110 * scale);
        const int y = static_cast<int>(60 * scale);
        EXPECT_EQ(grabbed(child, {x, y, x, y}).pixel(0, 0), kTeal);
    });
    play(form);
}

TEST_F(CaptureTest, WhatIsNotThereGivesNothing) {
    const ScreenCapture& screen = CoreLib().Screen;
    constexpr ScreenCapture::WindowHandle kForeign = 77;
    EXPECT_EQ(screen.windowRect(kForeign), PixelRect{});
    EXPECT_EQ(screen.windowRect(ScreenCapture::kNoWindow), PixelRect{});
    EXPECT_EQ(screen.GetWindow(kForeign, ScreenCapture::kFirstChild), ScreenCapture::kNoWindow);
    EXPECT_EQ(screen.grab(kForeign, {0, 0, 9, 9}), nullptr);
    EXPECT_EQ(screen.grab(screen.GetDesktopWindow(), {5, 0, 4, 9}), nullptr);
    EXPECT_EQ(screen.grab(screen.GetDesktopWindow(), {-2147483647, 0, 2147483647, 9}), nullptr);
    EXPECT_EQ(grabbed(screen.GetDesktopWindow(), {-20, -20, 9, 9}).size(), QSize(30, 30));
}

TEST_F(CaptureTest, AFinerScreenGivesAPictureOfTheSameSizeWithMoreDetail) {
    steps.add([&] {
        const QRect area = host.windows().wholeScreen();
        const QImage fine = capture.ownWindows(area, 2);
        EXPECT_EQ(fine.size(), area.size() * 2);
        const QPoint head = placeOf(form.head);
        EXPECT_EQ(fine.pixel(head * 2 + QPoint(3, 3)), kTeal);
        EXPECT_EQ(fine.pixel((head + QPoint(100, 100)) * 2), kTeal);
    });
    play(form);
}

} // namespace

} // namespace quendal::test
