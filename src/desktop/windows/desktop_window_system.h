// Forms as windows of Qt, the event pump, the end of the process.
#pragma once

#include "desktop/windows/form_window.h"
#include "host/window_system.h"

#include <QSize>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace quendal {

class Clock;
class EventFeed;
class PictureSurface;
class VirtualClock;
struct ObserverLink;

class DesktopWindowSystem final : public WindowSystem, public FormWindowOwner {
  public:
    // `icons` must outlive all windows. With a clock of its own (`scriptClock`, else null), waiting
    // moves that clock instead of taking time.
    DesktopWindowSystem(Clock& clock, VirtualClock* scriptClock, IconLibrary& icons,
                        const ObserverLink& link);
    ~DesktopWindowSystem() override;

    // Somebody who stands in for the learner; null: nobody.
    void setFeed(EventFeed* feed) { feed_ = feed; }
    // The part of the screen that the program sees, from its left upper corner; the whole of it
    // without this.
    void setScreen(QSize size) { screen_ = size; }
    // What must be kept is flushed by these, in order, before the process ends.
    void atEnd(std::function<void()> hook) { endHooks_.push_back(std::move(hook)); }
    // Told of each zoom that the learner asks for.
    void setZoomKeeper(std::function<void(double zoom)> keeper) { keepZoom_ = std::move(keeper); }
    // The status that the process ends with; 0 where nobody says otherwise.
    void setExitStatus(std::function<int()> status) { exitStatus_ = std::move(status); }

    Size screen() const override;
    double scaleOf(const Form& form) const override;
    void setPointer(MousePointer pointer) override;
    [[noreturn]] void EndProcess() override;
    void captionChanged(Form& form) override;
    void placeChanged(Form& form) override;
    void announced(Form& form) override;

    // The window of a form that is on the screen, else null.
    FormWindow* windowOf(const Form& form) const;
    FormWindow* topWindow() const;
    // All form windows that are on the screen, in the order of their showing.
    std::vector<FormWindow*> shownWindows() const;
    // What a form without a frame fills when it is maximised, panels of the desktop included: the
    // screen that the learner works on, in device-independent pixels.
    QRect wholeScreen(const Form* except = nullptr) const;

  protected:
    void deliverEvents() override;
    void waitForEvents(double until) override;
    void prepare(Form& form) override;
    void realise(Form& form, bool modal) override;
    void withdraw(Form& form) override;

  private:
    void closeAsked(Form& form) override { userClosed(form); }
    void innerSize(Form& form, Size inner) override { resize(form, inner); }
    IconLibrary& icons() override { return icons_; }
    void zoomAsked(int steps) override;

    QRect available() const;
    double workbenchScale() const;
    const FormWindow* presentWindow(const Form* except) const;
    double presentScale(const Form* except) const;
    void showWindow(const Form& form, FormWindow& window);
    double dialogScale(const Form& form, const FormWindow& window) const;
    void place(Form& form, FormWindow& window);
    void sweep();
    void adoptControls();
    void answerReader() const;

    using Surfaces = std::vector<std::unique_ptr<PictureSurface>>;

    Clock& clock_;
    VirtualClock* scriptClock_;
    IconLibrary& icons_;
    const ObserverLink& link_;
    EventFeed* feed_ = nullptr;
    QTimer wake_;
    QSize screen_; // empty: the whole one
    std::map<const Form*, Surfaces> surfaces_;
    std::vector<std::unique_ptr<FormWindow>> windows_; // in the order of their showing
    std::vector<std::unique_ptr<FormWindow>> graves_;  // off the screen, perhaps still on the stack
    std::vector<Surfaces> oldSurfaces_;                // the same for surfaces
    std::vector<std::function<void()>> endHooks_;
    std::function<int()> exitStatus_;
    std::function<void(double)> keepZoom_;
    MousePointer pointer_ = MousePointer::Normal;
};

} // namespace quendal
