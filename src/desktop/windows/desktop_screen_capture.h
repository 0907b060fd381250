// Pictures of the screen: what the window system gives, else the program's own windows put
// together.
#pragma once

#include "host/screen_capture.h"

#include <QImage>
#include <QRect>

class QWidget;

namespace quendal {

class DesktopWindowSystem;

class DesktopScreenCapture final : public ScreenCapture {
  public:
    explicit DesktopScreenCapture(const DesktopWindowSystem& windows) : windows_(windows) {}

    WindowHandle GetDesktopWindow() const override;
    WindowHandle GetForegroundWindow() const override;
    WindowHandle GetWindow(WindowHandle window, int relation) const override;
    PixelRect windowRect(WindowHandle window) const override;
    PicturePtr grab(WindowHandle window, const PixelRect& pixels) const override;

    // The program's own windows with their menu bars, as far as they stand in `area`, on an empty
    // ground. Device-independent pixels; the picture has `ratio` times as many.
    QImage ownWindows(const QRect& area, double ratio) const;

  private:
    const QWidget* widgetOf(WindowHandle window) const;
    QRect screenPlace(WindowHandle window) const;
    void showPending() const;
    QImage systemGrab(const QRect& area) const;

    const DesktopWindowSystem& windows_;
};

} // namespace quendal
