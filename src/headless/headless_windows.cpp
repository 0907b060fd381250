#include "headless/headless_windows.h"

#include "host/event_feed.h"
#include "host/host_observer.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace quendal {

namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();

double fitScale(const Form& form, Size screen) {
    const Size design = form.designSize();
    return std::min(screen.width / design.width, screen.height / design.height);
}

bool isPlaced(const Form& form) {
    return form.wantedPlace().width > 0 && form.wantedPlace().height > 0;
}

} // namespace

HeadlessWindows::HeadlessWindows(VirtualClock& clock, const Watchers& watchers, Size screen)
    : clock_(clock), watchers_(watchers), screen_(screen) {
    clock_.beforeSleep = [this] {
        if (watchers_.feed != nullptr) {
            watchers_.feed->programWaits();
        }
    };
}

HeadlessWindows::~HeadlessWindows() {
    clock_.beforeSleep = nullptr;
    for (auto& [box, attached] : surfaces_) {
        if (!attached.life.expired()) {
            box->attachSurface(nullptr);
        }
    }
}

Size HeadlessWindows::screen() const {
    const bool unscaled = top() != nullptr && top()->scalesItself();
    const double scale = unscaled ? 1 : scale_;
    return {screen_.width / scale, screen_.height / scale};
}

double HeadlessWindows::scaleOf(const Form& form) const {
    if (form.scalesItself() || !form.shown()) {
        return 1;
    }
    return form.windowState() == WindowState::Maximised ? fitScale(form, screen_)
           : isPlaced(form)                             ? scale_
                                                        : 1;
}

Rect HeadlessWindows::placeOnScreen(const Form& form) const {
    if (form.windowState() == WindowState::Maximised) {
        return {0, 0, screen_.width, screen_.height};
    }
    const double scale = scaleOf(form);
    const Size size{form.inner().width * scale, form.inner().height * scale};
    const Rect& wanted = form.wantedPlace();
    return isPlaced(form) ? Rect{wanted.left * scale, wanted.top * scale, size.width, size.height}
                          : Rect{(screen_.width - size.width) / 2,
                                 (screen_.height - size.height) / 2, size.width, size.height};
}

void HeadlessWindows::EndProcess() {
    if (watchers_.observer != nullptr) {
        watchers_.observer->processEnded();
    }
    throw ProcessEnded{};
}

void HeadlessWindows::deliverEvents() {
    if (watchers_.feed != nullptr) {
        watchers_.feed->deliver();
    }
}

void HeadlessWindows::waitForEvents(double until) {
    double due = kNever;
    if (watchers_.feed != nullptr) {
        watchers_.feed->programWaits();
        due = watchers_.feed->due();
    }
    const double next = std::min(until, due);
    if (next == kNever) {
        throw std::logic_error("the program waits for something that can't come");
    }
    clock_.advanceTo(next);
}

Size HeadlessWindows::innerSize(const Form& form) const {
    if (form.windowState() == WindowState::Maximised) {
        const double scale = form.scalesItself() ? 1 : fitScale(form, screen_);
        return {screen_.width / scale, screen_.height / scale};
    }
    const Rect& wanted = form.wantedPlace();
    return isPlaced(form) ? Size{wanted.width, wanted.height} : form.designSize();
}

void HeadlessWindows::realise(Form& form, bool /*modal*/) {
    attachSurfaces(form);
    if (form.windowState() == WindowState::Maximised && !form.scalesItself()) {
        scale_ = fitScale(form, screen_);
    }
    if (watchers_.observer != nullptr) {
        watchers_.observer->formShown(form);
    }
    resize(form, innerSize(form));
}

void HeadlessWindows::withdraw(Form& form) {
    if (watchers_.observer != nullptr) {
        watchers_.observer->formClosed(form);
    }
}

void HeadlessWindows::placeChanged(Form& form) {
    resize(form, innerSize(form));
}

void HeadlessWindows::attachSurfaces(Form& form) {
    std::erase_if(surfaces_, [](const auto& entry) { return entry.second.life.expired(); });
    for (Control* control : form.controls()) {
        auto* box = dynamic_cast<PictureBox*>(control);
        if (box == nullptr || surfaces_.contains(box)) {
            continue;
        }
        auto surface = std::make_unique<CountingSurface>(*box, counts_);
        box->attachSurface(surface.get());
        surfaces_[box] = {box->life(), std::move(surface)};
    }
}

} // namespace quendal
