// The life of forms, nested shows and timers, on a host whose clock moves only while it waits.
#include "host/window_system.h"

#include "host/buttons.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

using Steps = std::vector<std::string>;

class LoggedForm : public Form {
  public:
    LoggedForm(std::string formName, Steps& steps)
        : Form(std::move(formName), {100, 100}), steps_(steps) {}

    void Form_Load() override {
        log("load");
        run(onLoad);
    }
    void Form_Activate() override {
        log("activate");
        run(onActivate);
    }
    bool Form_QueryUnload(UnloadReason reason) override {
        log(reason == UnloadReason::User ? "query user" : "query code");
        return mayUnload;
    }
    void Form_Unload() override {
        log("unload");
        run(onUnload);
    }

    void log(const std::string& step) { steps_.push_back(name() + " " + step); }

    std::function<void()> onLoad;
    std::function<void()> onActivate;
    std::function<void()> onUnload;
    bool mayUnload = true;

  private:
    static void run(const std::function<void()>& step) {
        if (step) {
            step();
        }
    }
    Steps& steps_;
};

class Windows : public testing::Test {
  protected:
    void later(std::function<void()> event) { host.windows.events.push_back(std::move(event)); }

    test::FakeHost host;
    Steps steps;
    LoggedForm form{"frm_A", steps};
    LoggedForm other{"frm_B", steps};
};

TEST_F(Windows, AModalFormRunsThroughItsLife) {
    later([this] {
        EXPECT_TRUE(form.shown());
        EXPECT_EQ(host.windows.top(), &form);
        host.windows.Unload(form);
    });
    host.windows.ShowModal(form);
    EXPECT_EQ(steps, (Steps{"frm_A load", "frm_A activate", "frm_A query code", "frm_A unload"}));
    EXPECT_FALSE(form.shown());
    EXPECT_FALSE(form.loaded());
    EXPECT_EQ(host.windows.top(), nullptr);
}

TEST_F(Windows, AFormThatUnloadsItselfInLoadIsNeverShown) {
    form.onLoad = [this] { host.windows.Unload(form); };
    host.windows.ShowModal(form);
    EXPECT_EQ(steps, (Steps{"frm_A load", "frm_A query code", "frm_A unload"}));
    EXPECT_FALSE(form.loaded());
    EXPECT_EQ(host.windows.top(), nullptr);
}

TEST_F(Windows, AFormLoadsAgainAndKeepsWhatItHolds) {
    form.onActivate = [this] { host.windows.Unload(form); };
    form.setCaption("Vergleich");
    host.windows.ShowModal(form);
    host.windows.ShowModal(form);
    EXPECT_EQ(std::count(steps.begin(), steps.end(), "frm_A load"), 2);
    EXPECT_EQ(std::count(steps.begin(), steps.end(), "frm_A unload"), 2);
    EXPECT_EQ(form.caption(), "Vergleich");
}

TEST_F(Windows, NestedModalFormsCloseInTurn) {
    form.onActivate = [this] {
        host.windows.ShowModal(other);
        form.log("goes on");
        EXPECT_EQ(host.windows.top(), &form);
        host.windows.Unload(form);
    };
    later([this] {
        EXPECT_EQ(host.windows.top(), &other);
        EXPECT_TRUE(form.shown());
        host.windows.Unload(other);
    });
    host.windows.ShowModal(form);
    EXPECT_EQ(steps, (Steps{"frm_A load", "frm_A activate", "frm_B load", "frm_B activate",
                            "frm_B query code", "frm_B unload", "frm_A goes on", "frm_A query code",
                            "frm_A unload"}));
}

TEST_F(Windows, AModalFormOutlivesTheOneBeneathIt) {
    form.onActivate = [this] { host.windows.ShowModal(other); };
    later([this] {
        host.windows.Unload(form);
        EXPECT_EQ(host.windows.top(), &other);
        EXPECT_TRUE(other.shown());
    });
    later([this] { host.windows.Unload(other); });
    host.windows.ShowModal(form);
    EXPECT_FALSE(form.loaded());
    EXPECT_FALSE(other.loaded());
}

TEST_F(Windows, AFormThatIsShownIsntShownTwice) {
    later([this] {
        host.windows.ShowModal(form);
        host.windows.Unload(form);
    });
    host.windows.ShowModal(form);
    EXPECT_EQ(std::count(steps.begin(), steps.end(), "frm_A load"), 1);
}

TEST_F(Windows, ShowDoesntWaitAndDoesntActivate) {
    host.windows.Show(form);
    EXPECT_TRUE(form.shown());
    EXPECT_EQ(steps, Steps{"frm_A load"});
    EXPECT_EQ(host.windows.top(), nullptr);
    host.windows.Unload(form);
    EXPECT_FALSE(form.shown());
}

TEST_F(Windows, TheUserIsAskedOnceWhetherToClose) {
    form.mayUnload = false;
    later([this] {
        host.windows.userClosed(form);
        EXPECT_TRUE(form.shown());
        form.mayUnload = true;
        host.windows.userClosed(form);
    });
    host.windows.ShowModal(form);
    EXPECT_EQ(steps, (Steps{"frm_A load", "frm_A activate", "frm_A query user", "frm_A query user",
                            "frm_A unload"}));
}

TEST_F(Windows, UnloadOfWhatIsntLoadedDoesNothing) {
    host.windows.Unload(form);
    host.windows.userClosed(form);
    EXPECT_TRUE(steps.empty());
}

TEST_F(Windows, UnloadInsideUnloadDoesNothing) {
    form.onUnload = [this] { host.windows.Unload(form); };
    host.windows.Show(form);
    host.windows.Unload(form);
    EXPECT_EQ(std::count(steps.begin(), steps.end(), "frm_A unload"), 1);
}

TEST_F(Windows, UnloadAllKeepsOne) {
    host.windows.Show(form);
    host.windows.Show(other);
    host.windows.UnloadAll(&other);
    EXPECT_FALSE(form.loaded());
    EXPECT_TRUE(other.loaded());
    host.windows.UnloadAll(nullptr);
    EXPECT_FALSE(other.loaded());
}

TEST_F(Windows, AFormThatGoesAwayIsForgotten) {
    {
        LoggedForm passing("frm_C", steps);
        host.windows.Show(passing);
    }
    host.windows.UnloadAll(nullptr);
    host.windows.DoEvents();
    EXPECT_EQ(steps, Steps{"frm_C load"});
}

TEST_F(Windows, TheEndOfTheProcessUnwindsFromAnyDepth) {
    form.onActivate = [this] { host.windows.ShowModal(other); };
    later([this] { host.windows.EndProcess(); });
    EXPECT_THROW(host.windows.ShowModal(form), test::ProcessEnded);
}

TEST_F(Windows, DoEventsMayNest) {
    int events = 0;
    later([&] {
        ++events;
        host.windows.DoEvents();
    });
    later([&events] { ++events; });
    host.windows.DoEvents();
    EXPECT_EQ(events, 2);
}

TEST_F(Windows, TheFocusIsGoneWithTheForm) {
    ctl_Button button(form, "but_A");
    host.windows.Show(form);
    button.setFocus();
    EXPECT_TRUE(button.hasFocus());
    host.windows.Unload(form);
    EXPECT_FALSE(button.hasFocus());
}

class Timers : public Windows {
  protected:
    Timers() { host.windows.Show(form); }

    // Pumps until the clock stands at `seconds`.
    void runUntil(double seconds) {
        host.windows.waitWhile([&] { return host.clock.now < seconds; });
    }

    std::string order;
    Timer first{form, "tmr_1", 100};
    Timer second{form, "tmr_2", 50};
    Timer third{form, "tmr_3", 100};
};

TEST_F(Timers, FireInTheOrderOfTheirMoments) {
    first.onTimer = [this] { order += '1'; };
    second.onTimer = [this] { order += '2'; };
    third.onTimer = [this] { order += '3'; };
    third.setEnabled(true);
    first.setEnabled(true);
    second.setEnabled(true);
    runUntil(0.1);
    // At 50 ms only the second; at 100 ms in the order in which they were switched on.
    EXPECT_EQ(order, "2312");
}

TEST_F(Timers, AreOffAtFirstAndCanBeSwitchedOff) {
    first.onTimer = [this] { order += '1'; };
    second.onTimer = [this] {
        order += '2';
        first.setEnabled(false);
        second.setEnabled(false);
    };
    first.setEnabled(true);
    second.setEnabled(true);
    third.onTimer = [this] { order += '3'; };
    third.setEnabled(true);
    runUntil(0.1);
    EXPECT_EQ(order, "23");
}

TEST_F(Timers, SwitchingOnStartsAFullInterval) {
    first.onTimer = [this] { order += '1'; };
    first.setEnabled(true);
    second.onTimer = [this] {
        second.setEnabled(false);
        first.setEnabled(false);
        first.setEnabled(true);
    };
    second.setEnabled(true);
    third.setEnabled(true);
    runUntil(0.1);
    EXPECT_EQ(order, "");
    runUntil(0.15);
    EXPECT_EQ(order, "1");
}

TEST_F(Timers, AHandlerIsntCalledAgainWhileItRuns) {
    int depth = 0;
    int deepest = 0;
    first.onTimer = [&] {
        deepest = std::max(deepest, ++depth);
        host.clock.now += 1;
        host.windows.DoEvents();
        --depth;
    };
    second.onTimer = [this] { order += '2'; };
    first.setEnabled(true);
    second.setEnabled(true);
    host.clock.now = 0.2;
    host.windows.DoEvents();
    EXPECT_EQ(deepest, 1);
    EXPECT_GE(order.size(), 2U); // the other one goes on inside the handler
}

TEST_F(Timers, ASlowHandlerIsntFollowedByABurst) {
    second.onTimer = [this] { order += '2'; };
    second.setEnabled(true);
    host.clock.now = 10;
    host.windows.DoEvents();
    host.windows.DoEvents();
    EXPECT_EQ(order, "2");
}

TEST_F(Timers, RunOnlyWhileTheirFormIsLoaded) {
    first.onTimer = [this] { order += '1'; };
    first.setEnabled(true);
    host.windows.Unload(form);
    EXPECT_FALSE(first.enabled());
    host.clock.now = 1;
    host.windows.DoEvents();
    EXPECT_EQ(order, "");
    Timer waiting(other, "tmr_4", 10);
    waiting.onTimer = [this] { order += '4'; };
    waiting.setEnabled(true);
    host.clock.now = 2;
    host.windows.DoEvents();
    EXPECT_EQ(order, "");
    host.windows.Show(other);
    host.windows.DoEvents();
    EXPECT_EQ(order, "4");
}

TEST_F(Timers, MayUnloadTheirOwnForm) {
    first.onTimer = [this] { host.windows.Unload(form); };
    first.setEnabled(true);
    host.clock.now = 1;
    host.windows.DoEvents();
    EXPECT_FALSE(form.loaded());
    EXPECT_FALSE(first.enabled());
}

TEST_F(Timers, GoOnUnderAModalForm) {
    second.onTimer = [this] {
        order += '2';
        if (order.size() == 3) {
            host.windows.Unload(other);
        }
    };
    second.setEnabled(true);
    host.windows.ShowModal(other);
    EXPECT_EQ(order, "222");
}

} // namespace
} // namespace quendal
