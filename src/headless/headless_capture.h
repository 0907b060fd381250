// A screen that nobody sees: it knows where the forms would stand, and its pictures have a size
// only.
#pragma once

#include "host/screen_capture.h"

namespace quendal {

class Form;
class HeadlessWindows;

class HeadlessCapture final : public ScreenCapture {
  public:
    explicit HeadlessCapture(const HeadlessWindows& windows) : windows_(windows) {}

    WindowHandle GetDesktopWindow() const override;
    WindowHandle GetForegroundWindow() const override;
    WindowHandle GetWindow(WindowHandle window, int relation) const override;
    PixelRect windowRect(WindowHandle window) const override;
    PicturePtr grab(WindowHandle window, const PixelRect& pixels) const override;

  private:
    const HeadlessWindows& windows_;
};

} // namespace quendal
