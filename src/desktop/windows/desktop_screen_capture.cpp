#include "desktop/windows/desktop_screen_capture.h"

#include "desktop/pictures/desktop_picture.h"
#include "desktop/windows/desktop_window_system.h"
#include "desktop/windows/look.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QThread>

#include <algorithm>

namespace quendal {

namespace {

constexpr ScreenCapture::WindowHandle kDesktop = 1; // no widget lies at this address
constexpr int kLongestSide = 16384;                 // px; larger than any screen
constexpr unsigned long kCompositorMs = 40; // two frames, in which the desktop shows a window anew

ScreenCapture::WindowHandle handleOf(const QWidget& widget) {
    return reinterpret_cast<ScreenCapture::WindowHandle>(&widget);
}

// These have nothing to show of other windows, or only a black area in their place.
bool systemShowsNothing() {
    return QGuiApplication::platformName() == QLatin1String("offscreen") ||
           QGuiApplication::platformName() == QLatin1String("minimal") ||
           qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

bool oneColour(const QImage& image) {
    const QRgb first = image.pixel(0, 0);
    for (int row = 0; row < image.height(); ++row) {
        const auto* pixels = reinterpret_cast<const QRgb*>(image.constScanLine(row));
        if (std::any_of(pixels, pixels + image.width(), [&](QRgb p) { return p != first; })) {
            return false;
        }
    }
    return true;
}

PixelRect pixelRectOf(const QRect& box) {
    return {box.left(), box.top(), box.right(), box.bottom()};
}

// Wide numbers: the edges may be any.
bool isPossible(const PixelRect& box) {
    const std::int64_t width = std::int64_t{box.right} - box.left + 1;
    const std::int64_t height = std::int64_t{box.bottom} - box.top + 1;
    return width > 0 && height > 0 && width <= kLongestSide && height <= kLongestSide;
}

// Boxes that stand before the forms, but nothing that goes with the pointer.
bool isOtherWindow(const QWidget& widget) {
    const Qt::WindowType type = widget.windowType();
    return widget.isVisible() && qobject_cast<const FormWindow*>(&widget) == nullptr &&
           (type == Qt::Window || type == Qt::Dialog);
}

} // namespace

const QWidget* DesktopScreenCapture::widgetOf(WindowHandle window) const {
    for (const FormWindow* shown : windows_.shownWindows()) {
        if (handleOf(*shown) == window) {
            return shown;
        }
        if (handleOf(shown->content()) == window) {
            return &shown->content();
        }
    }
    return nullptr;
}

ScreenCapture::WindowHandle DesktopScreenCapture::GetDesktopWindow() const {
    return kDesktop;
}

ScreenCapture::WindowHandle DesktopScreenCapture::GetForegroundWindow() const {
    const FormWindow* top = windows_.topWindow();
    return top == nullptr ? kNoWindow : handleOf(*top);
}

ScreenCapture::WindowHandle DesktopScreenCapture::GetWindow(WindowHandle window,
                                                            int relation) const {
    const auto* form = qobject_cast<const FormWindow*>(widgetOf(window));
    return form == nullptr || relation != kFirstChild ? kNoWindow : handleOf(form->content());
}

QRect DesktopScreenCapture::screenPlace(WindowHandle window) const {
    if (window == kDesktop) {
        return windows_.wholeScreen();
    }
    const QWidget* widget = widgetOf(window);
    if (widget == nullptr || !widget->isVisible()) {
        return {};
    }
    return widget->isWindow() ? widget->frameGeometry()
                              : QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
}

PixelRect DesktopScreenCapture::windowRect(WindowHandle window) const {
    const QRect place = screenPlace(window);
    return place.isEmpty() ? PixelRect{}
                           : pixelRectOf(place.translated(-windows_.wholeScreen().topLeft()));
}

// What the program has changed since it last let events in isn't on the screen yet.
void DesktopScreenCapture::showPending() const {
    for (FormWindow* window : windows_.shownWindows()) {
        window->repaint(0, 0, 1, 1); // brings all that waits along
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
    QThread::msleep(kCompositorMs);
}

QImage DesktopScreenCapture::systemGrab(const QRect& area) const {
    if (systemShowsNothing()) {
        return {};
    }
    showPending();
    QScreen* screen = QGuiApplication::screenAt(area.center());
    if (screen == nullptr) {
        return {};
    }
    const QPoint start = area.topLeft() - screen->geometry().topLeft();
    const QImage grabbed = screen->grabWindow(0, start.x(), start.y(), area.width(), area.height())
                               .toImage()
                               .convertToFormat(QImage::Format_RGB32);
    const QSize wanted = area.size() * grabbed.devicePixelRatio();
    const bool whole = !grabbed.isNull() && grabbed.size() == wanted;
    return whole && !oneColour(grabbed) ? grabbed : QImage();
}

QImage DesktopScreenCapture::ownWindows(const QRect& area, double ratio) const {
    QImage image(area.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(look::kGround);
    QPainter painter(&image);
    const auto paint = [&](QWidget& window) {
        if (window.isVisible()) {
            window.render(&painter, window.geometry().topLeft() - area.topLeft());
        }
    };
    for (FormWindow* window : windows_.shownWindows()) {
        paint(*window);
    }
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (isOtherWindow(*widget)) {
            paint(*widget);
        }
    }
    return image;
}

PicturePtr DesktopScreenCapture::grab(WindowHandle window, const PixelRect& pixels) const {
    const QRect place = screenPlace(window);
    const QPoint start = place.topLeft();
    if (place.isEmpty() || !isPossible(pixels)) {
        return nullptr;
    }
    const QRect area(QPoint(pixels.left, pixels.top) + start,
                     QPoint(pixels.right, pixels.bottom) + start);
    QImage image = systemGrab(area);
    if (image.isNull()) {
        const QScreen* screen = QGuiApplication::screenAt(area.center());
        image = ownWindows(area, screen == nullptr ? 1 : screen->devicePixelRatio());
    }
    image.setDevicePixelRatio(1);
    if (image.size() == area.size()) {
        return std::make_shared<DesktopPicture>(image);
    }
    const QImage plain = image.scaled(area.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return DesktopPicture::withDetail(plain, image);
}

} // namespace quendal
