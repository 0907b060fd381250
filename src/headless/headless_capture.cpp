#include "headless/headless_capture.h"

#include "headless/headless_services.h"
#include "headless/headless_windows.h"

#include <cmath>

namespace quendal {

namespace {

// The learner works with one form at a time, so that numbers that never change tell them apart.
constexpr ScreenCapture::WindowHandle kDesktop = 1;
constexpr ScreenCapture::WindowHandle kFront = 2;
constexpr ScreenCapture::WindowHandle kFrontChild = 3;
constexpr int kLongestSide = 16384; // px; larger than any screen

PixelRect pixels(const Rect& place) {
    const auto edge = [](double at) { return static_cast<int>(std::lround(at)); };
    return {edge(place.left), edge(place.top), edge(place.right()) - 1, edge(place.bottom()) - 1};
}

} // namespace

ScreenCapture::WindowHandle HeadlessCapture::GetDesktopWindow() const {
    return kDesktop;
}

ScreenCapture::WindowHandle HeadlessCapture::GetForegroundWindow() const {
    return windows_.top() == nullptr ? kNoWindow : kFront;
}

ScreenCapture::WindowHandle HeadlessCapture::GetWindow(WindowHandle window, int relation) const {
    const bool known = window == kFront && windows_.top() != nullptr && relation == kFirstChild;
    return known ? kFrontChild : kNoWindow;
}

PixelRect HeadlessCapture::windowRect(WindowHandle window) const {
    if (window == kDesktop) {
        const Size whole = windows_.wholeScreen();
        return pixels({0, 0, whole.width, whole.height});
    }
    const bool front = window == kFront || window == kFrontChild;
    return front && windows_.top() != nullptr ? pixels(windows_.placeOnScreen(*windows_.top()))
                                              : PixelRect{};
}

PicturePtr HeadlessCapture::grab(WindowHandle window, const PixelRect& part) const {
    const PixelRect place = windowRect(window);
    const double width = double(part.right) - part.left + 1;
    const double height = double(part.bottom) - part.top + 1;
    const bool possible = place.right >= place.left && width > 0 && height > 0 &&
                          width <= kLongestSide && height <= kLongestSide;
    return possible ? sizeOnlyPicture(static_cast<int>(width), static_cast<int>(height)) : nullptr;
}

} // namespace quendal
