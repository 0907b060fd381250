// What happens in time: motions, waits, and the stage's own life around a script.
#include "stage_fixture.h"

#include <algorithm>

namespace quendal::test {
namespace {

constexpr const char* kRepeat = "Mit Mausklick weiter Animation wiederholen. Mit ESC beenden";
constexpr const char* kGoOn = "Weiter mit Klick, Ende mit ESC";
constexpr std::int32_t kNoScript = 2; // a scene that has none

TEST(SceneProgress, IsTheShareThatIsDoneAndTheOneThatIsLeft) {
    EXPECT_EQ((Progress{0, 1.4}.g()), 0);
    EXPECT_EQ((Progress{0, 1.4}.m()), 100);
    EXPECT_DOUBLE_EQ((Progress{0.35, 1.4}.g()), 25);
    EXPECT_DOUBLE_EQ((Progress{0.35, 1.4}.m()), 75);
    EXPECT_EQ((Progress{1.4, 1.4}.g()), 100);
    EXPECT_EQ((Progress{1.4, 1.4}.m()), 0);
    EXPECT_EQ((Progress{0, 0}.g()), 100);
    EXPECT_EQ((Progress{0, 0}.m()), 0);
}

class StageMotion : public StageTest {
  protected:
    bool move(double seconds) {
        begin_ = host.clock.now;
        return stage.tween(seconds, [this](const Progress& at) {
            done.push_back(at.t);
            EXPECT_EQ(shots.size() + 1, done.size()); // each frame is rendered before the next
            if (eachFrame) {
                eachFrame(at);
            }
        });
    }
    double duration() const { return host.clock.now - begin_; }

    std::vector<double> done; // s, frame by frame
    std::function<void(const Progress&)> eachFrame;

  private:
    double begin_ = 0;
};

TEST_F(StageMotion, BeginsAtItsStartAndEndsExactlyAtItsEnd) {
    open();
    EXPECT_TRUE(move(1.4));
    EXPECT_EQ(done.front(), 0);
    EXPECT_EQ(done.back(), 1.4);
    EXPECT_TRUE(std::is_sorted(done.begin(), done.end()));
    EXPECT_EQ(std::count(done.begin(), done.end(), 1.4), 1);
    EXPECT_EQ(shots.size(), done.size());
    EXPECT_GE(done.size(), 1.4 * 60);
    EXPECT_LE(duration(), 1.4 + kFrame);
}

TEST_F(StageMotion, TakesAsLongWithSlowFrames) {
    open();
    eachFrame = [this](const Progress&) { host.clock.SleepMs(400); };
    EXPECT_TRUE(move(1.4));
    EXPECT_EQ(done.back(), 1.4);
    EXPECT_EQ(done.size(), 5U); // at 0, 0.4, 0.8, 1.2 and 1.4 s
    EXPECT_LE(duration(), 2.01);
}

TEST_F(StageMotion, RestsOnlyForWhatAFrameHasLeft) {
    open();
    eachFrame = [this](const Progress&) { host.clock.SleepMs(10); };
    move(1);
    EXPECT_GE(done.size(), 60U);
    EXPECT_NEAR(done[1] - done[0], kFrame, 1e-9);
}

TEST_F(StageMotion, WithoutDurationIsOneFrame) {
    open();
    double g = -1;
    eachFrame = [&](const Progress& at) { g = at.g(); };
    EXPECT_TRUE(move(0));
    EXPECT_EQ(done.size(), 1U);
    EXPECT_EQ(g, 100);
    EXPECT_EQ(duration(), 0);
}

TEST_F(StageMotion, EndsAtOnceWhenTheLearnerBreaksOff) {
    open();
    during(5, [this] { stage.userKey(Key::Escape); });
    EXPECT_FALSE(move(1));
    EXPECT_EQ(done.size(), 6U);
    EXPECT_EQ(shots.size(), 6U);
}

TEST_F(StageMotion, TellsThatItWasBrokenOffInItsLastFrame) {
    open();
    eachFrame = [this](const Progress& at) {
        if (at.t == 1) {
            host.windows.events.push_back([this] { stage.userKey(Key::Escape); });
        }
    };
    EXPECT_FALSE(move(1));
    EXPECT_EQ(done.back(), 1);
}

TEST_F(StageMotion, DoesntBeginAfterTheLearnerHasBrokenOff) {
    open();
    stage.Aborted = true;
    EXPECT_FALSE(move(1));
    EXPECT_TRUE(done.empty());
}

TEST_F(StageMotion, GoesOnWhenTheLearnerClicks) {
    open();
    during(5, [this] { stage.Form_MouseDown(1, 1, MouseButton::Left); });
    EXPECT_TRUE(move(1));
    EXPECT_EQ(done.back(), 1);
    EXPECT_TRUE(stage.Clicked);
}

TEST_F(StageMotion, TakesChanceFromTheHost) {
    open();
    RandomSource& chance = host.random;
    chance.seed(42);
    const double first = stage.chance();
    const double second = stage.chance();
    chance.seed(42);
    EXPECT_EQ(chance.next(), first);
    EXPECT_EQ(chance.next(), second);
}

class StageWait : public StageTest {};

TEST_F(StageWait, ShowsTheStageAndThenTheFooter) {
    open();
    stage.ShowPanel = true;
    stage.subtitle("x");
    paper.Clear();
    answerClick();
    stage.hWaitClick();
    EXPECT_EQ(waits, 1);
    ASSERT_EQ(shots.size(), 2U);
    EXPECT_EQ(shots[0].footer, "");
    EXPECT_EQ(shots[1].footer, kGoOn);
    EXPECT_EQ(paper.order(), "bllll"    // panel
                             "t"        // caption
                             "bllllt"); // footer
    EXPECT_EQ(paper.marks[6], (Mark{Mark::Kind::Box, {20, 540}, {780, 580}, palette(7)}));
    EXPECT_EQ(paper.marks[7].color, kWhite);
    EXPECT_EQ(paper.marks.back().from, (Point{30, 560 - 11.25}));
    EXPECT_EQ(paper.marks.back().font.size, 18);
    EXPECT_EQ(paper.marks.back().color, kBlack);
}

TEST_F(StageWait, EndsWithAClickAndKeepsItsPlace) {
    open();
    answerClick(123, 45);
    stage.hWaitClick();
    EXPECT_TRUE(stage.Clicked);
    EXPECT_FALSE(stage.Aborted);
    EXPECT_EQ(stage.ClickX, 123);
    EXPECT_EQ(stage.ClickY, 45);
}

TEST_F(StageWait, DoesntCountClicksThatCameBefore) {
    open();
    stage.Clicked = true;
    during(0, [this] { stage.Form_MouseDown(1, 1, MouseButton::Left); });
    answerClick(7, 7);
    stage.hWaitClick();
    EXPECT_EQ(waits, 1);
    EXPECT_EQ(stage.ClickX, 7);
}

TEST_F(StageWait, EndsWithEscapeOrAnotherButton) {
    open();
    stage.hWaitClick(); // ESC
    EXPECT_TRUE(stage.Aborted);
    EXPECT_FALSE(stage.Clicked);
    stage.Aborted = false;
    answers.emplace_back([this] { stage.Form_MouseDown(1, 1, MouseButton::Right); });
    stage.hWaitClick();
    EXPECT_TRUE(stage.Aborted);
    EXPECT_EQ(waits, 2);
    stage.hWaitClick(); // once broken off it doesn't wait any more
    EXPECT_EQ(waits, 2);
}

TEST_F(StageWait, EndsWithAnyKeyThatWrites) {
    open();
    for (const char* key : {" ", "x", "ä", "\r"}) {
        waits = 0;
        answerKey(key);
        stage.hWaitClick();
        EXPECT_EQ(waits, 1) << key;
        EXPECT_TRUE(stage.Clicked);
        EXPECT_FALSE(stage.hClickIn(0, 0, 800, 600)); // at no place
    }
    answers.emplace_back([this] { EXPECT_FALSE(stage.userKey(Key::Other)); }); // an arrow, say
    answerClick();
    waits = 0;
    stage.hWaitClick();
    EXPECT_EQ(waits, 2);
}

class StageLife : public StageTest {
  protected:
    void expectGone() {
        EXPECT_FALSE(stage.shown());
        EXPECT_FALSE(stage.loaded());
        EXPECT_FALSE(stage.tmr_Startup.enabled());
        EXPECT_FALSE(stage.but_Magnify.visible());
        EXPECT_FALSE(stage.but_Acid.visible());
        EXPECT_EQ(host.windows.top(), nullptr);
    }
};

TEST_F(StageLife, ShowsOnlyTheFooterWithoutAScript) {
    for (const std::int32_t scene : {kNoScript, -1, 8, 2000000000}) {
        waits = 0;
        play(scene);
        EXPECT_EQ(waits, 1);
        ASSERT_EQ(shots.size(), 1U);
        EXPECT_EQ(shots[0].footer, kRepeat);
        EXPECT_TRUE(shots[0].sprites.empty());
        expectGone();
    }
}

TEST_F(StageLife, PrintsItsQuestionLikeEveryFooter) {
    play(kNoScript);
    EXPECT_EQ(paper.order(), "bllllt");
    EXPECT_EQ(paper.marks[0], (Mark{Mark::Kind::Box, {20, 540}, {780, 580}, palette(7)}));
    EXPECT_EQ(paper.marks.back().from, (Point{30, 560 - 11.25}));
    EXPECT_EQ(paper.marks.back().color, kBlack);
}

TEST_F(StageLife, RepeatsWithAClickOrAKeyUntilEscape) {
    answerClick();
    answerKey("x");
    answerKey("\r");
    play(kNoScript);
    EXPECT_EQ(waits, 4);
    EXPECT_EQ(shots.size(), 4U);
    expectGone();
}

TEST_F(StageLife, DoesntRepeatForAClickThatCameBeforeItsQuestion) {
    during(0, [this] { stage.Form_MouseDown(5, 5, MouseButton::Left); });
    play(kNoScript);
    EXPECT_EQ(shots.size(), 1U);
    EXPECT_EQ(waits, 1);
}

TEST_F(StageLife, EndsWithTheRightButtonOrItsWindow) {
    answers.emplace_back([this] { stage.Form_MouseDown(5, 5, MouseButton::Right); });
    play(kNoScript);
    expectGone();
    answers.emplace_back([this] {
        host.windows.userClosed(stage);
        EXPECT_TRUE(stage.shown()); // the routine that runs it takes it down
        EXPECT_TRUE(stage.Aborted);
    });
    play(kNoScript);
    expectGone();
    EXPECT_EQ(waits, 2);
}

TEST_F(StageLife, MayBeClosedBeforeItsScriptBegins) {
    host.windows.events.push_back([this] { host.windows.userClosed(stage); });
    play(kNoScript);
    EXPECT_EQ(waits, 0);
    expectGone();
}

TEST_F(StageLife, BeginsAfreshWhenItIsShownAgain) {
    play(kNoScript);
    stage.Clicked = true;
    answerClick();
    play(kNoScript);
    EXPECT_EQ(shots.size(), 2U);
    expectGone();
}

TEST_F(StageLife, MayBeUnloadedByTheProgram) {
    answers.emplace_back([this] { host.windows.Unload(stage); });
    play(kNoScript);
    EXPECT_EQ(shots.size(), 1U);
    expectGone();
}

TEST_F(StageLife, LetsTheProcessEnd) {
    answers.emplace_back([this] { host.windows.EndProcess(); });
    EXPECT_THROW(play(kNoScript), ProcessEnded);
}

TEST_F(StageLife, StartsItsScriptByATimer) {
    host.windows.Show(stage);
    EXPECT_TRUE(stage.tmr_Startup.enabled());
    EXPECT_TRUE(shots.empty());
    bool enabled = true;
    eachShot = [&](const Shot&) { enabled = stage.tmr_Startup.enabled(); };
    host.windows.Unload(stage);
    play(kNoScript);
    EXPECT_FALSE(enabled);
}

TEST_F(StageLife, TellsItsFields) {
    stage.Scene = 5;
    stage.ShowPanel = stage.Clicked = true;
    stage.ClickX = 12;
    stage.ClickY = 34;
    FieldTable table;
    stage.describe(table);
    EXPECT_EQ(std::get<std::int64_t>(table.find("Scene").value()), 5);
    EXPECT_EQ(std::get<std::int64_t>(table.find("ClickX").value()), 12);
    EXPECT_EQ(std::get<std::int64_t>(table.find("ClickY").value()), 34);
    EXPECT_TRUE(std::get<bool>(table.find("ShowPanel").value()));
    EXPECT_TRUE(std::get<bool>(table.find("Clicked").value()));
    EXPECT_FALSE(std::get<bool>(table.find("Aborted").value()));
    EXPECT_EQ(std::get<std::string>(table.find("LastText").value()), "");
}

} // namespace
} // namespace quendal::test
