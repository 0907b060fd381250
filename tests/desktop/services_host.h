// Roots whose window system pumps real events, for services that show something.
#pragma once

#include "desktop/services/desktop_clock.h"
#include "desktop/services/observer_link.h"
#include "host/host_observer.h"
#include "support/fake_roots.h"

#include <QCoreApplication>
#include <QTimer>

#include <cmath>
#include <cstdlib>
#include <deque>

namespace quendal::test {

class PumpingWindows final : public WindowSystem {
  public:
    Size screen() const override { return {1366, 768}; }
    double scaleOf(const Form&) const override { return 1; }
    void setPointer(MousePointer) override {}
    [[noreturn]] void EndProcess() override { std::abort(); }

  protected:
    void deliverEvents() override { QCoreApplication::processEvents(); }
    void waitForEvents(double until) override {
        // Short of its limit, a test that waits for nothing at all would hang.
        const double seconds = std::isfinite(until) ? until - CoreLib().Clock.Now() : 30;
        QTimer alarm;
        alarm.setSingleShot(true);
        alarm.start(std::max(0, static_cast<int>(seconds * 1000)));
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    void realise(Form&, bool) override {}
    void withdraw(Form&) override {}
};

// Gives the replies that were laid ready, in order, and notes what it is told.
class ScriptedObserver final : public HostObserver {
  public:
    BoxReply boxOpened(const BoxEvent& event) override {
        boxes.push_back(event);
        const BoxReply reply = replies.front();
        replies.pop_front();
        return reply;
    }
    void soundPlayed(const std::string& name) override { sounds.push_back(name); }
    void progressReported(int points, int wrong) override { progress = {points, wrong}; }
    void resultReported(int score, double, const std::string&) override {
        results.push_back(score);
    }
    void formShown(const Form&) override {}
    void formClosed(const Form&) override {}
    void processEnded() override {}

    std::deque<BoxReply> replies;
    std::vector<BoxEvent> boxes;
    std::vector<std::string> sounds;
    std::pair<int, int> progress;
    std::vector<int> results;
};

class ServiceHost {
  public:
    ServiceHost() { installRoots(fake.app, core); }
    ~ServiceHost() { clearRoots(); }
    ServiceHost(const ServiceHost&) = delete;
    ServiceHost& operator=(const ServiceHost&) = delete;

    FakeHost fake;
    DesktopClock clock;
    PumpingWindows windows;
    CoreLibRoot core{clock,         fake.system, fake.numbers, fake.boxes,  fake.files,
                     fake.graphics, fake.random, windows,      fake.capture};
    ObserverLink link;
    ScriptedObserver observer;
};

} // namespace quendal::test
