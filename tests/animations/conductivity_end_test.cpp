// How the conductivity lesson ends and begins anew.
#include "animations/lesson_fixture.h"

namespace quendal::test {
namespace {

using Names = std::vector<std::string>;

// Each way out leads to the prompt first, and a repeat begins anew.
class WaysOut : public Lesson, public testing::WithParamInterface<int> {
  protected:
    void leave() {
        switch (GetParam()) {
        case 0:
            stage.userKey(Key::Escape);
            break;
        case 1:
            stage.Form_MouseDown(400, 20, MouseButton::Right);
            break;
        case 2:
            stage.pic_IonenReaktor.userMouse(10, 10, MouseButton::Right);
            break;
        default:
            host.windows.userClosed(stage);
            break;
        }
    }
};

INSTANTIATE_TEST_SUITE_P(All, WaysOut, testing::Range(0, 4));

TEST_P(WaysOut, LeadToThePromptAndAnewFromThere) {
    click(647, 152);
    click(647, 189);
    click(647, 216);
    click(90, 300);
    wait(5);
    int prompts = 0;
    then([&] {
        leave();
        host.windows.events.push_back([&] {
            EXPECT_FALSE(stage.Aborted);
            EXPECT_FALSE(stage.Clicked);
            EXPECT_TRUE(stage.pic_IonenReaktor.visible());
            EXPECT_EQ(paper.texts.back().text,
                      "Mit Mausklick weiter Animation wiederholen. Mit ESC beenden");
            ++prompts;
        });
        // On the switch, which isn't thrown by it.
        host.windows.events.push_back([&] { stage.Form_MouseDown(90, 300, MouseButton::Left); });
    });
    wait(0.5);
    then([&] {
        EXPECT_EQ(prompts, 1);
        EXPECT_EQ(ions.IonCount, 20);
        EXPECT_EQ(ions.Mode, Current::Off);
        EXPECT_FALSE(ions.FastIons || ions.DoubleCharge);
        EXPECT_EQ(onStage(), (Names{"IONEN\\AUS", "IONEN\\BEDINGUNGEN", "IONEN\\GRÜN1"}));
        EXPECT_TRUE(stage.pic_IonenReaktor.visible());
        EXPECT_TRUE(stage.shp_Indicator.visible());
        EXPECT_NEAR(needle(), -90, 0.01);
    });
    play();
    EXPECT_FALSE(stage.loaded());
}

TEST_F(Lesson, KeysAreNoPlacesBehindIt) {
    then([&] {
        stage.userKey(Key::Escape);
        host.windows.events.push_back([] {});
        host.windows.events.push_back([&] {
            stage.userKey(Key::Other, "2");
            EXPECT_FALSE(stage.hClickIn(82, 286, 100, 309));
        });
    });
    play();
}

TEST_F(Lesson, UnloadedByTheProgramEndsAtOnce) {
    wait(1);
    then([&] { host.windows.Unload(stage); });
    host.windows.ShowModal(stage);
    EXPECT_LT(host.clock.now, 1.2);
    EXPECT_FALSE(stage.loaded());
}

} // namespace
} // namespace quendal::test
