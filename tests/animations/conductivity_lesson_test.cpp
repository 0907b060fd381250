// The conductivity lesson on its stage: what a learner does, second by second.
#include "animations/lesson_fixture.h"
#include "support/form_sizer.h"

#include <algorithm>
#include <tuple>

namespace quendal::test {
namespace {

using Names = std::vector<std::string>;

TEST_F(Lesson, BeginsSwitchedOffWithTwentyIons) {
    wait(0.1);
    then([&] {
        EXPECT_EQ(onStage(), (Names{"IONEN\\AUS", "IONEN\\BEDINGUNGEN", "IONEN\\GRÜN1"}));
        EXPECT_EQ(centreOf("IONEN\\AUS"), (Point{400, 280}));
        EXPECT_EQ(centreOf("IONEN\\BEDINGUNGEN"), (Point{700, 150}));
        EXPECT_EQ(centreOf("IONEN\\GRÜN1"), (Point{647, 124}));
        EXPECT_TRUE(stage.ShowPanel);
        EXPECT_TRUE(stage.pic_IonenReaktor.visible());
        EXPECT_EQ(stage.pic_IonenReaktor.place(), (Rect{179, 255, 355, 215}));
        EXPECT_EQ(reactor.circles.size(), 20U);
        EXPECT_TRUE(stage.shp_Indicator.visible());
        EXPECT_EQ(stage.shp_Indicator.from(), (Point{627, 392}));
        EXPECT_NEAR(stage.shp_Indicator.to().x, 627, 0.01);
        EXPECT_NEAR(stage.shp_Indicator.to().y, 392 - 70, 0.01);
    });
    play();
}

TEST_F(Lesson, HasItsTitleAndNoOtherText) {
    wait(0.1);
    then([&] {
        ASSERT_EQ(paper.texts.size(), 1U);
        EXPECT_EQ(paper.texts[0].text, "Wie kann man die Stromstärke beeinflussen? ");
        EXPECT_EQ(paper.texts[0].place.x, 250);
        EXPECT_EQ(paper.texts[0].color, palette(15));
        const RecordingSurface::BoxMark footer{{20, 540}, {780, 580}, palette(7)};
        EXPECT_NE(std::find(paper.boxes.begin(), paper.boxes.end(), footer), paper.boxes.end());
    });
    play();
}

TEST_F(Lesson, LoadsAllCircuitsAtItsStart) {
    wait(0.1);
    then([&] {
        for (std::size_t i = 1; i < stage.Sprites.size(); ++i) {
            const std::string& name = stage.Sprites[i].Name;
            const bool mark = name == "IONEN\\GRÜN2" || name == "IONEN\\GRÜN3";
            EXPECT_EQ(stage.Sprites[i].Loaded, !mark) << name;
        }
    });
    play();
}

TEST_F(Lesson, MovesTheIonsTwentyTimesASecond) {
    auto before = ions.Ions;
    int steps = 0;
    double longest = 0;
    double last = 0;
    eachRest = [&] {
        steps += before == ions.Ions ? 0 : 1;
        before = ions.Ions;
        longest = std::max(longest, host.clock.now - last);
        last = host.clock.now;
    };
    wait(1);
    then([&] { steps = 0; });
    wait(10);
    then([&] {
        EXPECT_GE(steps, 199); // 0.05 s and what the clock counts beyond
        EXPECT_LE(steps, 200);
        EXPECT_LE(longest, 0.016) << "that a click may wait";
    });
    play();
}

TEST_F(Lesson, AlwaysShowsTheIonsWhereTheyAre) {
    int looks = 0;
    click(90, 300);
    then([&] {
        eachRest = [&] {
            ASSERT_EQ(reactor.circles.size(), 20U);
            for (std::size_t i = 1; i <= 20; ++i) {
                ASSERT_EQ(reactor.circles[i - 1].centre, (Point{ions.Ions[i].X, ions.Ions[i].Y}));
            }
            ++looks;
        };
    });
    wait(5);
    play();
    EXPECT_GT(looks, 300);
}

TEST_F(Lesson, FlipsTheConditionsBackAndForth) {
    for (const bool expected : {true, false, true}) {
        click(647, 189);
        click(647, 216);
        then([this, expected] {
            EXPECT_EQ(ions.FastIons, expected);
            EXPECT_EQ(ions.DoubleCharge, expected);
            EXPECT_EQ(centreOf("IONEN\\GRÜN2"),
                      expected ? std::optional(Point{647, 189}) : std::nullopt);
            EXPECT_EQ(centreOf("IONEN\\GRÜN3"),
                      expected ? std::optional(Point{647, 216}) : std::nullopt);
        });
    }
    play();
}

TEST_F(Lesson, MarksTheNumberOfIons) {
    const std::pair<double, double> rows[] = {{97, 10}, {152, 40}, {124, 20}};
    for (const auto& [y, count] : rows) {
        click(647, y);
        then([this, y = y, count = count] {
            EXPECT_EQ(ions.IonCount, count);
            EXPECT_EQ(centreOf("IONEN\\GRÜN1"), (Point{647, y}));
            EXPECT_EQ(reactor.circles.size(), static_cast<std::size_t>(count));
        });
    }
    play();
}

TEST_F(Lesson, ShowsTheCircuitOfItsSwitchBeneathTheMarks) {
    const std::tuple<double, double, const char*> rows[] = {{90, 300, "IONEN\\EIN"},
                                                            {128, 280, "IONEN\\EINUP"},
                                                            {160, 290, "IONEN\\WS1"},
                                                            {88, 325, "IONEN\\AUS"}};
    click(647, 189);
    click(647, 216);
    for (const auto& [x, y, name] : rows) {
        click(x, y);
        then([this, name = std::string(name)] {
            EXPECT_EQ(onStage(), (Names{name, "IONEN\\BEDINGUNGEN", "IONEN\\GRÜN1", "IONEN\\GRÜN2",
                                        "IONEN\\GRÜN3"}));
            EXPECT_EQ(centreOf(name), (Point{400, 280}));
        });
    }
    play();
}

// Steps of the ions in each phase of the alternating current, in their order.
class Phases : public Lesson {
  protected:
    Phases() {
        eachRest = [this] {
            if (before_ != ions.Ions) {
                ++steps_;
            }
            before_ = ions.Ions;
            if (ions.Mode != mode_) {
                lengths.push_back(steps_);
                modes.push_back(mode_);
                steps_ = 0;
                mode_ = ions.Mode;
            }
        };
    }

    std::vector<int> lengths;
    std::vector<Current> modes;

  private:
    std::array<Ion, IonField::kSlots + 1> before_;
    Current mode_ = Current::Off;
    int steps_ = 0;
};

constexpr Current kA = Current::AlternatingA;
constexpr Current kB = Current::AlternatingB;

TEST_F(Phases, LastElevenStepsAndThenTwentyTwo) {
    click(160, 290);
    wait(5);
    then([&] {
        ASSERT_GE(modes.size(), 5U);
        EXPECT_EQ((std::vector(modes.begin() + 1, modes.begin() + 5)),
                  (std::vector{kA, kB, kA, kB}));
        EXPECT_EQ((std::vector(lengths.begin() + 1, lengths.begin() + 5)),
                  (std::vector{11, 22, 22, 22}));
    });
    play();
}

TEST_F(Phases, GoOnWhereTheyWereLeft) {
    click(160, 290);
    wait(0.26); // five steps of the first phase
    click(88, 325);
    wait(2);
    click(160, 290);
    wait(3);
    then([&] {
        ASSERT_GE(modes.size(), 5U);
        EXPECT_EQ((std::vector(modes.begin(), modes.begin() + 5)),
                  (std::vector{Current::Off, kA, Current::Off, kA, kB}));
        EXPECT_EQ(lengths[1] + lengths[3], 11);
        EXPECT_GE(lengths[1], 4);
        EXPECT_LE(lengths[1], 6);
        EXPECT_EQ(lengths[4], 22);
    });
    play();
}

TEST_F(Phases, ChangeThePicture) {
    click(160, 290);
    then([&] { EXPECT_EQ(onStage()[0], "IONEN\\WS1"); });
    wait(0.7); // 14 steps
    then([&] {
        EXPECT_EQ(ions.Mode, kB);
        EXPECT_EQ(onStage()[0], "IONEN\\WS2");
    });
    wait(1.1);
    then([&] {
        EXPECT_EQ(ions.Mode, kA);
        EXPECT_EQ(onStage()[0], "IONEN\\WS1");
    });
    play();
}

TEST_F(Lesson, SwitchingToAnAlternatingCurrentSetsAllIonsUpAnew) {
    click(90, 300);
    wait(30);
    then([&] {
        EXPECT_GT(ions.DepositedCount, 5);
        const auto low = std::count_if(ions.Ions.begin() + 1, ions.Ions.end(),
                                       [](const Ion& ion) { return ion.Y > 107.5; });
        EXPECT_EQ(low, 0); // all have risen to the electrodes
    });
    click(128, 280); // reversed: they stay where they are
    then([&] { EXPECT_GT(ions.DepositedCount, 5); });
    click(160, 290);
    then([&] {
        EXPECT_LE(ions.DepositedCount, 1); // one may have come off chance right to a plate
        const auto low = std::count_if(ions.Ions.begin() + 1, ions.Ions.end(),
                                       [](const Ion& ion) { return ion.Y > 107.5; });
        EXPECT_GT(low, 5);
    });
    play();
}

TEST_F(Lesson, TheNeedleFallsBackAsTheIonsSettle) {
    click(647, 97);
    click(90, 300);
    then([&] { EXPECT_NEAR(needle(), 31.5 * 0.125 - 90, 0.01); });
    int settled = 0;
    eachRest = [&] {
        if (ions.Mode == Current::Direct) {
            const double free = (10 - ions.DepositedCount) / 10.0;
            EXPECT_NEAR(needle(), 31.5 * free * 0.125 - 90, 0.01);
            settled = std::max(settled, ions.DepositedCount);
        }
    };
    wait(60);
    then([&] {
        EXPECT_EQ(settled, 10);
        EXPECT_NEAR(needle(), -90, 0.01);
    });
    play();
}

TEST_F(Lesson, TheNeedleKnowsBothConditions) {
    click(647, 152);
    click(647, 189);
    click(647, 216);
    click(90, 300);
    then([&] { EXPECT_NEAR(needle(), 63 - 90, 0.01); });
    click(128, 280);
    then([&] { EXPECT_NEAR(needle(), -63 - 90, 2); }); // some may sit by now
    click(160, 290);
    then([&] { EXPECT_NEAR(needle(), 126 - 63 - 90, 2); });
    click(88, 325);
    then([&] { EXPECT_NEAR(needle(), -90, 0.01); });
    play();
}

// With forty ions settled and ten on show, ten are settled: never more than there are.
TEST_F(Lesson, TheNeedleKnowsANewNumberOfIonsAtOnce) {
    click(647, 152);
    click(90, 300);
    wait(60);
    then([&] {
        EXPECT_EQ(ions.DepositedCount, 40);
        eachRest = [&] { EXPECT_NEAR(needle(), -90, 0.01); };
    });
    for (int i = 0; i < 8; ++i) { // before and after a step of the ions
        click(647, 97);
        then([&] { EXPECT_EQ(ions.DepositedCount, 10); });
        click(647, 152);
    }
    play();
}

TEST_F(Lesson, AClickWhileAnotherOneIsBeingShownCountsToo) {
    then([&] {
        stage.Form_MouseDown(647, 189, MouseButton::Left);
        host.windows.events.push_back([&] { stage.Form_MouseDown(647, 216, MouseButton::Left); });
        host.windows.events.push_back([&] { EXPECT_TRUE(stage.Clicked); });
    });
    then([] {});
    then([&] {
        EXPECT_TRUE(ions.FastIons);
        EXPECT_TRUE(ions.DoubleCharge);
        EXPECT_TRUE(centreOf("IONEN\\GRÜN3").has_value());
    });
    play();
}

TEST_F(Lesson, AFastClickerDoesNotEndIt) {
    click(90, 300);
    then([&] {
        for (int i = 0; i < 1000; ++i) {
            host.windows.events.push_back(
                [&] { stage.Form_MouseDown(647, 189, MouseButton::Left); });
        }
    });
    wait(30);
    then([&] {
        EXPECT_TRUE(host.windows.events.empty());
        EXPECT_EQ(ions.Mode, Current::Direct); // no repeat
        EXPECT_FALSE(stage.Clicked);
        EXPECT_GT(ions.DepositedCount, 0);
    });
    play();
}

TEST_F(Lesson, TakesClicksOnTheIonsAsClicksOnTheStage) {
    then([&] { stage.pic_IonenReaktor.userMouse(21, 45, MouseButton::Left); });
    then([&] {
        EXPECT_EQ(stage.ClickX, 200);
        EXPECT_EQ(stage.ClickY, 300);
        EXPECT_FALSE(stage.Clicked);
        EXPECT_EQ(ions.Mode, Current::Off);
    });
    play();
}

TEST_F(Lesson, DoesWithoutPictures) {
    FakeHost* const bare = &host;
    bare->paths.path = "elsewhere/";
    click(90, 300);
    wait(60);
    then([&] {
        EXPECT_TRUE(onStage().empty());
        EXPECT_EQ(ions.DepositedCount, 20);
    });
    play();
}

TEST_F(Lesson, FitsEveryScreen) {
    for (const Size size : {Size{640, 480}, Size{1366, 768}, Size{1920, 1080}, Size{768, 1024}}) {
        then([&, size] { FormSizer().give(stage, size); });
        repeat(400, 20);
        wait(0.1);
        then([&, size] {
            const double across = size.width / 800;
            const double down = size.height / 600;
            const Rect& place = stage.pic_IonenReaktor.place();
            EXPECT_NEAR(place.left, 179 * across, 0.5);
            EXPECT_NEAR(place.right(), 534 * across, 0.5);
            EXPECT_NEAR(place.top, 255 * down, 0.5);
            EXPECT_NEAR(place.bottom(), 470 * down, 0.5);
            EXPECT_EQ(ions.LeftPlate, 71); // the field is the same
            EXPECT_EQ(ions.RightPlate, 320);
            const Line& line = stage.shp_Indicator;
            EXPECT_NEAR(line.from().x, 627 * across, 0.5);
            EXPECT_NEAR(line.from().y, 392 * down, 0.5);
            EXPECT_NEAR(line.to().x, line.from().x, 0.01);
            EXPECT_NEAR(line.to().y, line.from().y - 70 * down, 0.51);
            EXPECT_GE(line.thickness(), 2);
            EXPECT_LE(line.thickness(), 4);
        });
        then([&, size] {
            stage.Form_MouseDown(90 * size.width / 800, 300 * size.height / 600, MouseButton::Left);
        });
        then([&] { EXPECT_EQ(ions.Mode, Current::Direct); });
    }
    play();
}

} // namespace
} // namespace quendal::test
