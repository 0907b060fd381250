// Windows come, cover each other and go, at any moment.
#include "desktop/window_rig.h"

#include "host/timer.h"

#include <QPointer>
#include <QScreen>

namespace quendal::test {

namespace {

class SmallForm final : public Form {
  public:
    explicit SmallForm(std::string name = "frm_Small") : Form(std::move(name), {300, 200}) {
        but.setText("&Weiter");
        but.setPlace(20, 20, 120, 32);
        but.onClick = [this] {
            ++clicks;
            if (work) {
                work();
            }
        };
        timer.onTimer = [this] {
            timer.setEnabled(false);
            CoreLib().Windows.Unload(*this);
        };
    }
    bool Form_QueryUnload(UnloadReason reason) override {
        reasons.push_back(reason);
        return mayGo;
    }

    ctl_Button but{*this, "but"};
    Timer timer{*this, "timer", 10};
    std::function<void()> work;
    std::vector<UnloadReason> reasons;
    int clicks = 0;
    bool mayGo = true;
};

class LifeTest : public WindowTest {
  protected:
    QPointer<QWidget> windowOf(const Form& shown) { return host.windows().windowOf(shown); }
    SmallForm form;
    SmallForm second{"frm_Second"};
};

TEST_F(LifeTest, AFormThatUnloadsItselfInItsOwnClickIsGoneAfterwards) {
    QPointer<QWidget> window;
    form.work = [&] {
        window = windowOf(form);
        host.windows().Unload(form);
        host.windows().DoEvents(); // the click is still on the stack
        EXPECT_NE(window, nullptr);
    };
    steps.add([&] { actor.click(form.but); });
    play(form);
    host.windows().DoEvents();
    EXPECT_EQ(window, nullptr);
    EXPECT_EQ(form.clicks, 1);
}

TEST_F(LifeTest, AFormCanBeShownAgain) {
    for (int i = 1; i <= 3; ++i) {
        steps.add([&] { actor.click(form.but); });
        play(form);
        EXPECT_EQ(form.clicks, i);
    }
}

TEST_F(LifeTest, AModalFormCoversTheOneBeneath) {
    form.work = [&] { host.windows().ShowModal(second); };
    steps.add([&] { actor.click(form.but); });
    steps.add([&] {
        EXPECT_EQ(host.windows().top(), &second);
        actor.click(form.but); // beneath: nothing happens
        actor.close(form);
        EXPECT_TRUE(form.shown());
        actor.click(second.but);
    });
    play(form);
    EXPECT_EQ(form.clicks, 1);
    EXPECT_EQ(second.clicks, 1);
}

TEST_F(LifeTest, BothFormsCanGoWhileTheHandlersOfBothAreOnTheStack) {
    form.work = [&] { host.windows().ShowModal(second); };
    second.work = [&] {
        host.windows().UnloadAll(nullptr);
        host.windows().DoEvents();
        host.windows().DoEvents();
    };
    steps.add([&] { actor.click(form.but); });
    steps.add([&] { actor.click(second.but); });
    play(form);
    EXPECT_FALSE(form.shown());
    EXPECT_FALSE(second.shown());
    EXPECT_EQ(host.windows().top(), nullptr);
}

TEST_F(LifeTest, TheCloseBoxAsksTheFormWithTheUserAsReason) {
    form.mayGo = false;
    steps.add([&] { actor.close(form); });
    steps.add([&] {
        EXPECT_TRUE(form.shown());
        EXPECT_TRUE(windowOf(form)->isVisible());
        form.mayGo = true;
        actor.close(form);
    });
    play(form);
    ASSERT_GE(form.reasons.size(), 2U);
    EXPECT_EQ(form.reasons[0], UnloadReason::User);
    EXPECT_EQ(form.reasons[1], UnloadReason::User);
}

TEST_F(LifeTest, ClosingDuringANestedPumpIsSafe) {
    form.work = [&] {
        for (int i = 0; i < 5; ++i) {
            host.windows().DoEvents();
        }
    };
    steps.add([&] { actor.click(form.but); });
    steps.add([&] { actor.close(form); });
    play(form);
    EXPECT_FALSE(form.shown());
}

TEST_F(LifeTest, ATimerOfTheFormFiresFromThePump) {
    form.timer.setEnabled(true);
    host.windows().ShowModal(form); // without a feed: the clock moves to the timer
    SUCCEED();
}

TEST_F(LifeTest, ControlsThatComeLaterGetAWidget) {
    ControlArray<ctl_Button> more(form, "more", 0, 0);
    steps.add([&] {
        ctl_Button& late = more.load(1);
        late.setPlace(20, 80, 100, 30);
        late.onClick = [&] { ++form.clicks; };
    });
    steps.add([&] { actor.click(more(1)); });
    play(form);
    EXPECT_EQ(form.clicks, 1);
}

TEST_F(LifeTest, AFormThatClosesItselfInItsResizeIsNoTrouble) {
    class ShyForm final : public Form {
      public:
        ShyForm() : Form("frm_Shy", {200, 100}) {}
        void Form_Resize() override { CoreLib().Windows.Unload(*this); }
    } shy;
    host.windows().ShowModal(shy);
    EXPECT_FALSE(shy.shown());
}

TEST_F(LifeTest, CaptionAndPlaceFollowTheForm) {
    host.windows().Show(form);
    form.setCaption("Vergleich");
    EXPECT_EQ(windowOf(form)->windowTitle(), "Vergleich");
    const double unit =
        windowOf(form)->screen()->availableGeometry().width() / host.windows().screen().width;
    form.moveTo({10, 20, 320, 240});
    EXPECT_NEAR(windowOf(form)->width(), 320 * unit, 1);
    EXPECT_NEAR(windowOf(form)->x(), 10 * unit, 3);
    EXPECT_GE(form.inner().width, form.designSize().width);
    host.windows().Unload(form);
}

TEST_F(LifeTest, TheHourglassIsShownAndTakenAway) {
    host.windows().setPointer(MousePointer::Hourglass);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    host.windows().setPointer(MousePointer::Normal);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace

} // namespace quendal::test
