// What the window system shows at present, as pictures. Pixels are those of a form that scales
// itself.
#pragma once

#include "host/geometry.h"
#include "host/picture.h"

#include <cstdint>

namespace quendal {

class ScreenCapture {
  public:
    // 0 stands for no window.
    using WindowHandle = std::uintptr_t;
    static constexpr WindowHandle kNoWindow = 0;
    static constexpr int kFirstChild = 5; // relation of GetWindow

    virtual ~ScreenCapture() = default;

    virtual WindowHandle GetDesktopWindow() const = 0;
    // The window that the learner works with.
    virtual WindowHandle GetForegroundWindow() const = 0;
    // A window that stands in `relation` to `window`; none for a relation that isn't known.
    virtual WindowHandle GetWindow(WindowHandle window, int relation) const = 0;
    // Place on the screen; empty for a window that isn't there.
    virtual PixelRect windowRect(WindowHandle window) const = 0;
    // The part `pixels` of a window as it stands, for the desktop of the whole screen. Where the
    // window system shows nothing of others, the program's own windows on an empty ground. Null
    // when there is no such window or no picture.
    virtual PicturePtr grab(WindowHandle window, const PixelRect& pixels) const = 0;
};

} // namespace quendal
