#include "desktop/windows/desktop_window_system.h"

#include "desktop/pictures/picture_surface.h"
#include "desktop/services/observer_link.h"
#include "desktop/windows/look.h"
#include "host/clock.h"
#include "host/event_feed.h"
#include "host/host_observer.h"
#include "host/pictures.h"
#include "host/virtual_clock.h"

#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <thread>

namespace quendal {

namespace {

constexpr Size kWorkbench{1000, 690};   // design size of the largest forms
constexpr Size kSmallScreen{1024, 768}; // the smallest screen that the program is made for
constexpr double kShareOfScreen = 0.9;  // that a dialog takes at most
constexpr double kDialogZoom = 1.2;     // dialogs may be larger than the workbench's lettering
constexpr double kMostDialogScale = 2.2;
constexpr double kNoLimit = 1e6;
constexpr int kTitleBar = 34;         // px that a window manager adds above a dialog, about
constexpr double kLongestWait = 3600; // s; the loop that waits looks again

// Without a frame and maximised: over all, panels of the desktop too.
bool fillsScreen(const Form& form) {
    return form.frameless() && form.windowState() == WindowState::Maximised;
}

// As it is where it fits; else in the middle, with air for a frame.
QRect fittedInto(const QRect& room, const QRect& window) {
    if (room.contains(window)) {
        return window;
    }
    const QSize most = (QSizeF(room.size()) * kShareOfScreen).toSize();
    QRect fitted(QPoint(), window.size().boundedTo(most));
    fitted.moveCenter(room.center());
    return fitted;
}

} // namespace

DesktopWindowSystem::DesktopWindowSystem(Clock& clock, VirtualClock* scriptClock,
                                         IconLibrary& icons, const ObserverLink& link)
    : clock_(clock), scriptClock_(scriptClock), icons_(icons), link_(link) {
    wake_.setSingleShot(true);
    wake_.setTimerType(Qt::PreciseTimer);
    QApplication::setQuitOnLastWindowClosed(false);
}

DesktopWindowSystem::~DesktopWindowSystem() = default;

QRect DesktopWindowSystem::available() const {
    const QRect whole = QGuiApplication::primaryScreen()->availableGeometry();
    return screen_.isEmpty() ? whole : QRect(whole.topLeft(), screen_);
}

double DesktopWindowSystem::workbenchScale() const {
    const QRect room = available();
    return std::min(room.width() / kWorkbench.width, room.height() / kWorkbench.height);
}

// What the learner works with, `except` left out; null when there is nothing.
const FormWindow* DesktopWindowSystem::presentWindow(const Form* except) const {
    const auto shown = std::find_if(windows_.rbegin(), windows_.rend(), [&](const auto& window) {
        return window->form() != except && window->windowModality() == Qt::ApplicationModal;
    });
    return shown != windows_.rend() ? shown->get() : nullptr;
}

double DesktopWindowSystem::presentScale(const Form* except) const {
    const FormWindow* window = presentWindow(except);
    return window != nullptr ? window->scale() : workbenchScale();
}

double DesktopWindowSystem::scaleOf(const Form& form) const {
    const FormWindow* window = windowOf(form);
    return window != nullptr ? window->scale() : 1;
}

QRect DesktopWindowSystem::wholeScreen(const Form* except) const {
    if (!screen_.isEmpty()) {
        return available();
    }
    const FormWindow* window = presentWindow(except);
    return (window != nullptr ? window->screen() : QGuiApplication::primaryScreen())->geometry();
}

Size DesktopWindowSystem::screen() const {
    const double scale = presentScale(nullptr);
    const QRect room = available();
    return {room.width() / scale, room.height() / scale};
}

// Lettering of one size on all dialogs, as large as a screen allows that the workbench fills too.
double DesktopWindowSystem::dialogScale(const Form& form, const FormWindow& window) const {
    if (form.scalesItself()) {
        return 1;
    }
    const QRect room = available();
    const double lettering =
        std::min(room.width() / kSmallScreen.width, room.height() / kSmallScreen.height);
    const QSize atOne = window.sizeAt(1);
    const double fit = std::min(room.width() * kShareOfScreen / atOne.width(),
                                (room.height() * kShareOfScreen) / (atOne.height() + kTitleBar));
    return std::min({fit, std::max(1.0, lettering) * kDialogZoom, kMostDialogScale});
}

void DesktopWindowSystem::setPointer(MousePointer pointer) {
    if (pointer == pointer_) {
        return;
    }
    pointer_ = pointer;
    if (pointer == MousePointer::Hourglass) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}

void DesktopWindowSystem::EndProcess() {
    if (link_.observer != nullptr) {
        link_.observer->processEnded();
    }
    for (const auto& hook : endHooks_) {
        hook();
    }
    // Routines of forms may be on the stack: nothing is taken down, the system frees it all.
    std::_Exit(exitStatus_ ? exitStatus_() : EXIT_SUCCESS);
}

FormWindow* DesktopWindowSystem::windowOf(const Form& form) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&](const auto& window) { return window->form() == &form; });
    return found == windows_.end() ? nullptr : found->get();
}

FormWindow* DesktopWindowSystem::topWindow() const {
    const Form* form = top();
    return form == nullptr ? nullptr : windowOf(*form);
}

std::vector<FormWindow*> DesktopWindowSystem::shownWindows() const {
    std::vector<FormWindow*> shown;
    for (const auto& window : windows_) {
        shown.push_back(window.get());
    }
    return shown;
}

void DesktopWindowSystem::captionChanged(Form& form) {
    if (FormWindow* window = windowOf(form)) {
        window->setWindowTitle(QString::fromStdString(form.caption()));
    }
}

void DesktopWindowSystem::placeChanged(Form& form) {
    if (FormWindow* window = windowOf(form)) {
        place(form, *window);
    }
}

void DesktopWindowSystem::announced(Form& form) {
    if (FormWindow* window = windowOf(form)) {
        window->speak();
    }
}

void DesktopWindowSystem::prepare(Form& form) {
    Surfaces surfaces;
    for (Control* control : form.controls()) {
        if (auto* box = dynamic_cast<PictureBox*>(control)) {
            surfaces.push_back(std::make_unique<PictureSurface>(*box));
            box->attachSurface(surfaces.back().get());
        }
    }
    surfaces_[&form] = std::move(surfaces);
}

void DesktopWindowSystem::realise(Form& form, bool modal) {
    // A place is told in the units of the window beneath; the lettering stays as large as there.
    const bool placed = form.wantedPlace().width > 0;
    const double mostScale = placed ? presentScale(&form) : kNoLimit;
    auto made = std::make_unique<FormWindow>(form, *this, mostScale);
    FormWindow& window = *made;
    const FormWindow* under = windows_.empty() ? nullptr : windows_.back().get();
    windows_.push_back(std::move(made));
    if (modal) {
        window.setWindowModality(Qt::ApplicationModal);
    }
    if (form.frameless()) {
        window.setWindowFlags((fillsScreen(form) ? Qt::Window : Qt::SplashScreen) |
                              Qt::FramelessWindowHint);
    }
    window.winId(); // makes the native window, so that it can be told what it belongs to
    if (modal && under != nullptr && window.windowHandle() != nullptr) {
        window.windowHandle()->setTransientParent(under->windowHandle());
    }
    place(form, window);
    if (windowOf(form) != &window) {
        return; // the form has closed itself in its Resize
    }
    showWindow(form, window);
    if (link_.observer != nullptr) {
        link_.observer->formShown(form);
    }
    // On the screen before the program goes on: a splash is shown just before a pause.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DesktopWindowSystem::showWindow(const Form& form, FormWindow& window) {
    const bool fills = form.windowState() == WindowState::Maximised && screen_.isEmpty();
    if (!fills) {
        window.show();
    } else if (fillsScreen(form)) {
        window.showFullScreen();
    } else {
        window.showMaximized();
    }
    window.activateWindow();
    window.showFocus();
}

void DesktopWindowSystem::place(Form& form, FormWindow& window) {
    const QRect room = available();
    QRect wanted = room;
    if (form.wantedPlace().width > 0) {
        const double unit = presentScale(&form);
        const Rect& asked = form.wantedPlace();
        wanted = QRect(static_cast<int>(std::lround(asked.left * unit)),
                       static_cast<int>(std::lround(asked.top * unit)),
                       static_cast<int>(std::lround(asked.width * unit)),
                       static_cast<int>(std::lround(asked.height * unit)))
                     .translated(room.topLeft());
        wanted = fittedInto(room, wanted);
        window.setMostScale(unit); // the learner may have changed it meanwhile
    } else if (form.windowState() != WindowState::Maximised) {
        const double scale = dialogScale(form, window) * (form.scalesItself() ? 1 : look::zoom());
        window.setAskedScale(form.scalesItself() || look::zoom() == 1 ? 0 : scale);
        wanted.setSize(window.sizeAt(scale).boundedTo(room.size()));
        wanted.moveCenter(room.center());
    } else if (fillsScreen(form)) {
        wanted = wholeScreen(&form);
    }
    // A window that was never given a size takes that of its content when it is shown.
    if (window.geometry() != wanted || !window.testAttribute(Qt::WA_Resized)) {
        window.setGeometry(wanted);
    }
    window.arrange();
}

void DesktopWindowSystem::zoomAsked(int steps) {
    const double before = look::zoom();
    look::setZoom(look::zoomFrom(before, steps));
    if (look::zoom() == before) {
        return;
    }
    if (keepZoom_) {
        keepZoom_(look::zoom());
    }
    for (FormWindow* window : shownWindows()) {
        Form* form = window->form();
        if (form != nullptr && form->windowState() != WindowState::Maximised) {
            place(*form, *window);
        } else {
            window->arrange();
        }
    }
}

void DesktopWindowSystem::withdraw(Form& form) {
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&](const auto& window) { return window->form() == &form; });
    for (Control* control : form.controls()) {
        if (auto* box = dynamic_cast<PictureBox*>(control)) {
            box->attachSurface(nullptr);
        }
    }
    if (const auto surfaces = surfaces_.find(&form); surfaces != surfaces_.end()) {
        oldSurfaces_.push_back(std::move(surfaces->second));
        surfaces_.erase(surfaces);
    }
    if (found != windows_.end()) {
        (*found)->release();
        graves_.push_back(std::move(*found));
        windows_.erase(found);
    }
    if (link_.observer != nullptr) {
        link_.observer->formClosed(form);
    }
    if (FormWindow* next = topWindow()) {
        next->activateWindow();
        next->showFocus();
    }
}

// A window leaves for good once no event of it is on the stack.
void DesktopWindowSystem::sweep() {
    std::erase_if(graves_, [](const auto& window) { return !window->visited(); });
    if (graves_.empty()) {
        oldSurfaces_.clear();
    }
}

void DesktopWindowSystem::adoptControls() {
    for (std::size_t i = 0; i < windows_.size(); ++i) {
        windows_[i]->adopt();
    }
}

// A screen reader asks hundreds of small questions, each when the last one is answered. A form that
// draws frames would answer one a frame, and the learner waited for seconds.
void DesktopWindowSystem::answerReader() const {
    constexpr int kMost = 8;       // ms of a frame's 20, which are slept less
    constexpr int kNextWithin = 2; // ms
    constexpr std::chrono::microseconds kPause{200};
    if (scriptClock_ != nullptr || !QAccessible::isActive()) {
        return;
    }
    QElapsedTimer whole;
    QElapsedTimer quiet;
    whole.start();
    quiet.start();
    while (!whole.hasExpired(kMost) && !quiet.hasExpired(kNextWithin)) {
        if (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
            quiet.restart();
        } else {
            std::this_thread::sleep_for(kPause);
        }
    }
}

void DesktopWindowSystem::deliverEvents() {
    adoptControls();
    if (feed_ != nullptr) {
        feed_->deliver();
    }
    QCoreApplication::processEvents();
    answerReader();
    // Without a loop of Qt's own below, nobody else does it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    sweep();
}

void DesktopWindowSystem::waitForEvents(double until) {
    adoptControls();
    if (feed_ != nullptr) {
        feed_->programWaits();
        until = std::min(until, feed_->due());
    }
    if (scriptClock_ != nullptr && until < std::numeric_limits<double>::infinity()) {
        QCoreApplication::processEvents();
        scriptClock_->advanceTo(until);
        return;
    }
    const double wait = std::min(until - clock_.Now(), kLongestWait);
    if (wait > 0) {
        wake_.start(static_cast<int>(std::ceil(wait * 1000)));
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        wake_.stop();
    }
}

} // namespace quendal
