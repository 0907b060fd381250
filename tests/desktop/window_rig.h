// The desktop host on a clock of its own, and a learner who does what a test says while a form is
// shown.
#pragma once

#include "desktop/desktop_host.h"
#include "desktop/gallery_form.h"
#include "desktop/script/desktop_script_actor.h"
#include "desktop/windows/widget_peer.h"
#include "host/clock.h"
#include "host/event_feed.h"
#include "host/virtual_clock.h"

#include <QApplication>
#include <QWidget>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <limits>

namespace quendal::test {

// Performs one step at each pump; when none is left, takes the topmost form off the screen.
class Steps final : public EventFeed {
  public:
    void add(std::function<void()> step) { steps_.push_back({std::move(step), {}}); }
    // Lets time pass until `ready`; after a minute the step comes all the same.
    void addWhen(std::function<bool()> ready, std::function<void()> step) {
        steps_.push_back({std::move(step), std::move(ready)});
    }
    void deliver() override {
        if (!ready()) {
            return;
        }
        waits_ = 0;
        if (steps_.empty()) {
            if (CoreLib().Windows.top() != nullptr) {
                CoreLib().Windows.Unload(*CoreLib().Windows.top());
            }
            return;
        }
        const Step step = std::move(steps_.front());
        steps_.pop_front();
        step.work();
    }
    void programWaits() override { ++waits_; }
    double due() const override { return ready() ? 0 : CoreLib().Clock.Now() + 0.01; }

  private:
    struct Step {
        std::function<void()> work;
        std::function<bool()> ready; // empty: at once
    };
    bool ready() const {
        return steps_.empty() || !steps_.front().ready || waits_ > 6000 || steps_.front().ready();
    }

    std::deque<Step> steps_;
    int waits_ = 0;
};

inline CommandLine testCommandLine() {
    CommandLine line;
    line.dataFolder = QUENDAL_SOURCE_DIR "/data";
    return line;
}

class WindowTest : public testing::Test {
  protected:
    // Shows the form modally and performs the steps that were added.
    void play(Form& form) {
        host.setFeed(&steps);
        host.windows().ShowModal(form);
        host.setFeed(nullptr);
    }
    // Shows the form without waiting, in a window whose inside is `size`.
    FormWindow& show(Form& form, QSize size = {1000, 720}) {
        host.windows().Show(form);
        FormWindow& window = *host.windows().windowOf(form);
        window.resize(size);
        host.windows().DoEvents();
        return window;
    }
    QWidget& widgetOf(const Control& control) {
        return *host.windows().windowOf(control.form())->peerOf(control)->widget();
    }
    template <class Widget>
    Widget& widgetAs(const Control& control) {
        return dynamic_cast<Widget&>(widgetOf(control));
    }

    VirtualClock clock;
    DesktopHost host{*qApp, testCommandLine(), {.clock = &clock}};
    DesktopScriptActor actor{host.windows()};
    Steps steps;
};

} // namespace quendal::test
