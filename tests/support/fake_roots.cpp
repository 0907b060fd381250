#include "support/fake_roots.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <stdexcept>

namespace quendal::test {

namespace {

class BlankPicture final : public Picture {
  public:
    BlankPicture(int width, int height) : width_(width), height_(height) {}
    int width() const override { return width_; }
    int height() const override { return height_; }

  private:
    int width_;
    int height_;
};

template <class T>
T takeOr(std::deque<T>& ready, T otherwise) {
    if (ready.empty()) {
        return otherwise;
    }
    T first = std::move(ready.front());
    ready.pop_front();
    return first;
}

} // namespace

PicturePtr blankPicture(int width, int height) {
    return std::make_shared<BlankPicture>(width, height);
}

void ManualClock::SleepMs(double milliseconds) {
    if (onSleep) {
        onSleep();
    }
    const double seconds = std::max(0.0, milliseconds / 1000.0);
    now += seconds;
    slept += seconds;
}

void SeededRandom::Randomize() {
    seed(nextSeed++);
    ++randomized;
}

void RecordingMessageBox::Ok(const std::string& text, const std::string& title) {
    shown.push_back({"ok", text, title, ""});
    if (whileOpen) {
        whileOpen();
    }
}

void RecordingMessageBox::Info(const std::string& text, const std::string& title) {
    shown.push_back({"info", text, title, ""});
    if (whileOpen) {
        whileOpen();
    }
}

BoxAnswer RecordingMessageBox::YesNo(const std::string& text, const std::string& title) {
    shown.push_back({"yesno", text, title, ""});
    if (whileOpen) {
        whileOpen();
    }
    return takeOr(answers, BoxAnswer::No);
}

std::string RecordingMessageBox::Input(const std::string& prompt, const std::string& title,
                                       const std::string& proposal) {
    shown.push_back({"input", prompt, title, proposal});
    if (whileOpen) {
        whileOpen();
    }
    return takeOr(inputs, std::string());
}

void RecordingMessageBox::Alarm(const std::string& text, const std::string& title,
                                const std::string& icon) {
    shown.push_back({"alarm", text, title, icon});
    if (whileOpen) {
        whileOpen();
    }
}

PicturePtr FakeGraphics::LoadPicture(const std::string& path) {
    const auto picture = pictures_.find(path);
    return picture == pictures_.end() ? nullptr : picture->second;
}

PicturePtr FakeGraphics::Scaled(const PicturePtr& picture, int width, int height) {
    return picture == nullptr ? nullptr : blankPicture(width, height);
}

void FakeGraphics::addPicture(const std::string& path, int width, int height) {
    pictures_[path] = blankPicture(width, height);
}

void FakeWindows::deliverEvents() {
    if (!events.empty()) {
        takeOr(events, std::function<void()>())();
    }
}

void FakeWindows::waitForEvents(double until) {
    if (!events.empty()) {
        return;
    }
    const double next = std::min(until, nextTimerDue());
    if (std::isinf(next)) {
        throw std::logic_error("the program waits for events that never come");
    }
    clock_.now = std::max(clock_.now, next);
}

void FakeWindows::realise(Form& form, bool /*modal*/) {
    resize(form, form.designSize());
}

ScreenCapture::WindowHandle FakeCapture::GetWindow(WindowHandle window, int relation) const {
    const bool known = hasChild && hasFront && window == kFront && relation == kFirstChild;
    return known ? kChild : kNoWindow;
}

PixelRect FakeCapture::windowRect(WindowHandle window) const {
    if (window == kDesktop && hasDesktop) {
        return desktop;
    }
    if (window == kFront && hasFront) {
        return front;
    }
    return window == kChild && hasFront && hasChild ? child : PixelRect{};
}

PicturePtr FakeCapture::grab(WindowHandle window, const PixelRect& part) const {
    grabs.push_back({window, part});
    const PixelRect place = windowRect(window);
    const bool there =
        place.right >= place.left && part.right >= part.left && part.bottom >= part.top;
    return there && givesPictures
               ? blankPicture(part.right - part.left + 1, part.bottom - part.top + 1)
               : nullptr;
}

std::string FakeHostControl::Query(const std::string& section, const std::string& verb,
                                   const std::string& key) {
    if (section != kControlSection || verb != "GET") {
        return {};
    }
    const auto found = keys.find(key);
    return found == keys.end() ? std::string() : found->second;
}

std::optional<double> FakeCalculator::Show(int, int, double x, double y,
                                           const CalcPresets& presets) {
    place = {x, y};
    offered = presets.lines();
    if (values.empty()) {
        return std::nullopt;
    }
    return takeOr(values, 0.0);
}

FakeHost::FakeHost(std::uint64_t seed) {
    random.seed(seed);
    random.nextSeed = seed + 1;
    installRoots(app, coreLib);
}

FakeHost::~FakeHost() {
    clearRoots();
}

} // namespace quendal::test
