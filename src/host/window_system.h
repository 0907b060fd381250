// Forms on the screen, the event pump, timers. The order of a form's life is written here once; a
// host adds how a form looks and where events come from.
#pragma once

#include "host/form.h"

#include <functional>
#include <vector>

namespace quendal {

enum class MousePointer { Normal, Hourglass };

class WindowSystem {
  public:
    virtual ~WindowSystem() = default;

    // Lets the window system work off what is pending: events, then due timers. Handlers run inside
    // this call; policy for nested calls: allowed, every handler guards itself by its form's flags.
    void DoEvents();

    // Load, show, Activate, and wait until the form has left the screen. A form that unloads itself
    // in its Load is never shown.
    void ShowModal(Form& form);
    // Load and show without waiting; Activate isn't run.
    void Show(Form& form);
    // QueryUnload by code, Unload, off the screen. The object lives on; its Load runs again at the
    // next show. Nothing happens for a form that isn't loaded.
    void Unload(Form& form);
    // Unloads every loaded form but `kept` (null: all).
    void UnloadAll(const Form* kept);
    // Pumps, waiting for events, for as long as `open` holds.
    void waitWhile(const std::function<bool()>& open);

    // The form that the learner can work with: the modal one shown last; null when there is none.
    Form* top() const;
    // What the user closes the window with, as a host reports it.
    void userClosed(Form& form);

    // Screen in design units at the present scale.
    virtual Size screen() const = 0;
    // Pixels of the screen for one design unit of the form as it is shown; 1 for a form that scales
    // itself or isn't shown.
    virtual double scaleOf(const Form& form) const = 0;
    virtual void setPointer(MousePointer pointer) = 0;
    // Flushes what must be kept and ends the process at once, at any depth of the stack.
    [[noreturn]] virtual void EndProcess() = 0;

    // A form that goes away for good takes itself off all lists.
    void forget(Form& form);

    // For controls and forms only: something changed that a host must show.
    virtual void captionChanged(Form& /*form*/) {}
    virtual void placeChanged(Form& /*form*/) {}
    virtual void announced(Form& /*form*/) {}

  protected:
    // Works off what is pending without waiting.
    virtual void deliverEvents() = 0;
    // Waits until something is pending or the clock reaches `until` (seconds; infinity: no limit).
    virtual void waitForEvents(double until) = 0;
    // Called before the form's Load: a host gives its picture boxes their surfaces, so that what
    // Load draws isn't lost.
    virtual void prepare(Form& /*form*/) {}
    // Makes the form visible with all its controls and reports its inner size with resize().
    virtual void realise(Form& form, bool modal) = 0;
    virtual void withdraw(Form& form) = 0;

    void resize(Form& form, Size inner) { form.resized(inner); }
    // Soonest due moment of all running timers; infinity when none runs.
    double nextTimerDue() const;
    void fireDueTimers();

  private:
    bool load(Form& form);
    void takeDown(Form& form);

    std::vector<Form*> loaded_;
    std::vector<Form*> modal_;
};

} // namespace quendal
