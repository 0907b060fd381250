#include "particles/mdl_Capture.h"

#include "host/pictures.h"
#include "host/roots.h"
#include "shell/session/session.h"

#include <cstdint>
#include <limits>
#include <memory>

namespace quendal {

namespace {

struct Buffer {
    PictureBox* box = nullptr;
    std::weak_ptr<const void> life;
};

Buffer& buffer() {
    static Buffer only;
    return only;
}

void showInBuffer(const PicturePtr& picture, Size size) {
    if (buffer().life.expired()) {
        return;
    }
    PictureBox& box = *buffer().box;
    box.surface().Clear();
    box.setPlace(0, 0, size.width, size.height);
    box.setPicture(picture);
}

// Pixels from one edge to the other, both included; 0 for what can't be told or isn't there.
std::int64_t extent(int first, int last) {
    const std::int64_t length = static_cast<std::int64_t>(last) - first + 1;
    return length <= std::numeric_limits<std::int32_t>::max() ? std::max<std::int64_t>(length, 0)
                                                              : 0;
}

bool isEmpty(const PixelRect& part) {
    return extent(part.left, part.right) == 0 || extent(part.top, part.bottom) == 0;
}

ScreenCapture::WindowHandle windowOf(int mode) {
    const ScreenCapture& screen = CoreLib().Screen;
    const auto front = [&] { return screen.GetForegroundWindow(); };
    switch (mode) {
    case 0:
        return screen.GetDesktopWindow();
    case 1:
        return front();
    case 2:
        return front() == ScreenCapture::kNoWindow
                   ? ScreenCapture::kNoWindow
                   : screen.GetWindow(front(), ScreenCapture::kFirstChild);
    default:
        return ScreenCapture::kNoWindow;
    }
}

} // namespace

void setCaptureBuffer(PictureBox* box) {
    buffer() = box == nullptr ? Buffer{} : Buffer{box, box->life()};
}

PicturePtr hCaptureScreen(int mode) {
    const ScreenCapture::WindowHandle window = windowOf(mode);
    if (window == ScreenCapture::kNoWindow) {
        return nullptr;
    }
    const PixelRect part = CoreLib().Screen.windowRect(window);
    if (isEmpty(part)) {
        return nullptr; // what was captured before is not it
    }
    // The window only says where: what is taken is what the screen shows there.
    hCaptureRect(ScreenCapture::kNoWindow, part.left, part.top, part.right, part.bottom);
    return session().CapturedPicture;
}

void hCaptureRect(ScreenCapture::WindowHandle window, int left, int top, int right, int bottom) {
    const PixelRect part{left, top, right, bottom};
    if (isEmpty(part)) {
        return;
    }
    const ScreenCapture& screen = CoreLib().Screen;
    const bool desktop = window == ScreenCapture::kNoWindow;
    const PicturePtr picture = screen.grab(desktop ? screen.GetDesktopWindow() : window, part);
    showInBuffer(picture, {static_cast<double>(extent(left, right)),
                           static_cast<double>(extent(top, bottom))});
    session().CapturedPicture = picture;
}

} // namespace quendal
