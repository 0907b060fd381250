// What a form over the whole screen needs: it covers all, is reached by keys and clicks through
// what lies in front, and leaves the form beneath as it was.
#include "desktop/window_rig.h"

#include "host/timer.h"

#include <QLineEdit>
#include <QScreen>

namespace quendal::test {

namespace {

class Workbench final : public Form {
  public:
    Workbench() : Form("frm_Workbench", {1000, 690}) {
        setWindowState(WindowState::Maximised);
        input.setPlace(10, 10, 100, 30);
        other.setPlace(10, 60, 100, 30);
        open.setPlace(10, 110, 100, 30);
    }
    clt_TermInput input{*this, "input"};
    clt_TermInput other{*this, "other"};
    ctl_Button open{*this, "open"};
};

// Its whole life lies inside one tick of its timer.
class Lens final : public Form {
  public:
    Lens() : Form("frm_Lens", {592, 444}) {
        setWindowState(WindowState::Maximised);
        setFrameless(true);
        setScalesItself(true);
        ground.setBackColor({10, 60, 110});
        scene.setOverlay(true);
        timer.onTimer = [this] { run(); };
    }
    void Form_Load() override {
        pumps = 0;
        timer.setEnabled(true);
    }
    void Form_Resize() override {
        ground.setPlace(0, 0, inner().width, inner().height);
        scene.setPlace(100, 100, 280, 200);
    }
    bool Form_QueryUnload(UnloadReason reason) override {
        if (reason == UnloadReason::User) {
            ended = "close";
        }
        return reason == UnloadReason::Code;
    }
    bool Form_KeyDown(Key key) override {
        ended = key == Key::Escape ? "escape" : ended;
        return key == Key::Escape;
    }
    void Form_MouseDown(double x, double y, MouseButton) override {
        ended = "form";
        pressed = {x, y};
    }

    PictureBox ground{*this, "ground"};
    PictureBox scene{*this, "scene"};
    Timer timer{*this, "timer", 10};
    std::string ended;
    Point pressed;
    int pumps = 0;

  private:
    void run() {
        timer.setEnabled(false);
        while (ended.empty() && pumps < 200) {
            ++pumps;
            scene.surface().Clear();
            scene.drawn();
            CoreLib().Windows.DoEvents();
            CoreLib().Clock.SleepMs(10);
        }
        CoreLib().Windows.Unload(*this);
    }
};

class LensTest : public WindowTest {
  protected:
    LensTest() { host.windows().setScreen({900, 700}); }

    // Opens the lens over the workbench and does `step` there.
    void playOver(std::function<void()> step) {
        workbench.open.onClick = [this] { host.windows().ShowModal(lens); };
        steps.add([this] { actor.click(workbench.open); });
        steps.addWhen([this] { return lens.pumps > 3; }, std::move(step));
        steps.addWhen([this] { return !lens.shown(); },
                      [this] { leftOver = host.windows().top(); });
        play(workbench);
    }

    Workbench workbench;
    Lens lens;
    Form* leftOver = nullptr;
};

TEST_F(LensTest, ItCoversTheWholeScreenInPixels) {
    playOver([&] {
        const FormWindow& window = *host.windows().windowOf(lens);
        EXPECT_EQ(window.geometry(), host.windows().wholeScreen());
        EXPECT_EQ(window.scale(), 1);
        EXPECT_EQ(host.windows().scaleOf(lens), 1);
        EXPECT_EQ(host.windows().scaleOf(workbench), host.windows().windowOf(workbench)->scale());
        EXPECT_NE(host.windows().scaleOf(workbench), 1);
        EXPECT_EQ(lens.inner(), (Size{900, 700}));
        lens.ended = "test";
    });
    EXPECT_EQ(leftOver, &workbench);
    EXPECT_EQ(host.windows().scaleOf(lens), 1);
}

TEST_F(LensTest, ItMakesDoWithAScreenBelowItsDesignSize) {
    host.windows().setScreen({300, 200});
    playOver([&] {
        EXPECT_EQ(lens.inner(), (Size{300, 200}));
        lens.ended = "test";
    });
}

TEST_F(LensTest, OnTheRealScreenItIsFullScreen) {
    host.windows().setScreen({});
    playOver([&] {
        const FormWindow& window = *host.windows().windowOf(lens);
        EXPECT_TRUE(window.isFullScreen());
        EXPECT_EQ(window.geometry(), window.screen()->geometry());
        EXPECT_TRUE(window.windowFlags() & Qt::FramelessWindowHint);
        lens.ended = "test";
    });
    EXPECT_EQ(leftOver, &workbench);
}

TEST_F(LensTest, EscapeReachesARunThatLivesInATick) {
    playOver([&] { actor.key(lens, nullptr, Key::Escape, {}); });
    EXPECT_EQ(lens.ended, "escape");
    EXPECT_EQ(leftOver, &workbench);
}

TEST_F(LensTest, SoDoesTheCloseBox) {
    playOver([&] { actor.close(lens); });
    EXPECT_EQ(lens.ended, "close");
    EXPECT_EQ(leftOver, &workbench);
}

TEST_F(LensTest, AClickOnAnOverlayThatNobodyWatchesReachesTheForm) {
    playOver([&] { actor.click(lens.scene); });
    EXPECT_EQ(lens.ended, "form");
    EXPECT_NEAR(lens.pressed.x, 240, 1);
    EXPECT_NEAR(lens.pressed.y, 200, 1);
}

TEST_F(LensTest, AClickOnAnOverlayThatIsWatchedReachesIt) {
    lens.scene.onClick = [&] { lens.ended = "scene"; };
    playOver([&] { actor.click(lens.scene); });
    EXPECT_EQ(lens.ended, "scene");
}

TEST_F(LensTest, AClickThroughAnOverlayReachesThePictureBeneath) {
    lens.ground.onClick = [&] { lens.ended = "ground"; };
    playOver([&] { actor.click(lens.scene); });
    EXPECT_EQ(lens.ended, "ground");
}

TEST_F(LensTest, PlacesOfThePointerAreToldInTheScaleOfThePicture) {
    lens.scene.setScaleSize({28, 100});
    lens.scene.onMouse = [&](double x, double y, MouseButton) {
        lens.pressed = {x, y};
        lens.ended = "scene";
    };
    playOver([&] { actor.mouse(lens, &lens.scene, {7, 30}, MouseButton::Left); });
    EXPECT_NEAR(lens.pressed.x, 7, 0.11);
    EXPECT_NEAR(lens.pressed.y, 30, 0.51);
}

TEST_F(LensTest, AnOverlayShowsThePictureBeneath) {
    playOver([&] {
        lens.scene.surface().Clear();
        lens.scene.surface().Box({10, 10}, {19, 19}, {255, 0, 0});
        lens.scene.drawn();
        const QImage shot = host.windows().windowOf(lens)->grab().toImage();
        EXPECT_EQ(shot.pixelColor(115, 115), QColor(255, 0, 0));
        EXPECT_EQ(shot.pixelColor(130, 130), QColor(10, 60, 110));
        lens.ended = "test";
    });
}

TEST_F(LensTest, TheFormBeneathGetsItsFocusBack) {
    steps.add([&] { actor.click(workbench.other); });
    playOver([&] { actor.key(lens, nullptr, Key::Escape, {}); });
    EXPECT_EQ(leftOver, &workbench);
    Workbench again;
    lens.ended.clear();
    again.input.onKey = [&](Key) {
        host.windows().ShowModal(lens);
        return true;
    };
    steps.add([&] { actor.key(again, &again.input, Key::Other, "x"); });
    steps.addWhen([&] { return lens.pumps > 3; },
                  [&] { actor.key(lens, nullptr, Key::Escape, {}); });
    steps.addWhen([&] { return !lens.shown(); },
                  [&] {
                      EXPECT_EQ(host.windows().top(), &again);
                      FormWindow& window = *host.windows().windowOf(again);
                      EXPECT_EQ(QApplication::activeWindow(), &window);
                      EXPECT_EQ(window.focusWidget(), &widgetOf(again.input));
                      EXPECT_EQ(again.focus(), &again.input);
                      again.input.onKey = nullptr;
                      actor.key(again, nullptr, Key::Other, "7");
                      EXPECT_EQ(again.input.text(), "7");
                  });
    play(again);
}

TEST_F(LensTest, ItCanBeOpenedAgainAndAgain) {
    workbench.open.onClick = [&] {
        lens.ended.clear();
        host.windows().ShowModal(lens);
    };
    for (int i = 0; i < 3; ++i) {
        steps.add([&] { actor.click(workbench.open); });
        steps.addWhen([&] { return lens.pumps > 3; }, [&] { actor.close(lens); });
        steps.addWhen([&] { return !lens.shown(); },
                      [&] { EXPECT_EQ(host.windows().top(), &workbench); });
    }
    play(workbench);
    EXPECT_FALSE(lens.shown());
}

} // namespace

} // namespace quendal::test
