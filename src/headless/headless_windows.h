// Forms without a screen, on a clock that moves only when the program waits.
#pragma once

#include "headless/counting_surface.h"
#include "headless/watchers.h"
#include "host/virtual_clock.h"
#include "host/window_system.h"

#include <map>
#include <memory>

namespace quendal {

// Thrown where a real process would end. Only whoever runs the program catches it.
struct ProcessEnded {};

class HeadlessWindows final : public WindowSystem {
  public:
    // `screen` in pixels. The others must outlive this.
    HeadlessWindows(VirtualClock& clock, const Watchers& watchers, Size screen);
    ~HeadlessWindows() override;

    Size screen() const override;
    // A form that was given no place counts as shown at its design size.
    double scaleOf(const Form& form) const override;
    void setPointer(MousePointer pointer) override { pointer_ = pointer; }
    MousePointer pointer() const { return pointer_; }
    [[noreturn]] void EndProcess() override;
    void placeChanged(Form& form) override;

    // In pixels.
    Size wholeScreen() const { return screen_; }
    Rect placeOnScreen(const Form& form) const;
    // Of all picture boxes together.
    const DrawingCounts& drawn() const { return counts_; }

  protected:
    void deliverEvents() override;
    // Throws std::logic_error when nothing can ever happen again, in place of a wait without end.
    void waitForEvents(double until) override;
    void prepare(Form& form) override { attachSurfaces(form); }
    void realise(Form& form, bool modal) override;
    void withdraw(Form& form) override;

  private:
    struct Attached {
        std::weak_ptr<const void> life; // of the box
        std::unique_ptr<CountingSurface> surface;
    };

    void attachSurfaces(Form& form);
    Size innerSize(const Form& form) const;

    VirtualClock& clock_;
    const Watchers& watchers_;
    Size screen_;
    double scale_ = 1; // of the maximised form shown last
    MousePointer pointer_ = MousePointer::Normal;
    DrawingCounts counts_;
    std::map<PictureBox*, Attached> surfaces_;
};

} // namespace quendal
