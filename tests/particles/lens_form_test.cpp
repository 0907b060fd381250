#include "particles/frm_AppMagnify.h"
#include "particles/lens_crystal.h"
#include "particles/lens_pairs.h"
#include "shell/session/session.h"
#include "support/fake_roots.h"
#include "support/form_sizer.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

namespace quendal::test {
namespace {

constexpr double kZoom = 1.0; // s
constexpr double kFrame = 0.1;
constexpr double kLongest = 1000; // s, beyond it a test has lost its way

class Lens : public testing::Test {
  protected:
    Lens() {
        host.graphics.addPicture("data/lens_mask.gif", 592, 444);
        host.graphics.addPicture("data/lens.gif", 592, 444);
        host.clock.onSleep = [this] {
            if (host.clock.now > kLongest) {
                throw std::logic_error("the lens doesn't come to its end");
            }
            while (!plan_.empty() && plan_.begin()->first <= host.clock.now - begin_) {
                host.windows.events.push_back(plan_.begin()->second);
                plan_.erase(plan_.begin());
            }
        };
    }
    ~Lens() override { resetSession(); }

    // Something that happens in the first pump so many seconds after the form was shown.
    void at(double seconds, std::function<void()> what) { plan_.emplace(seconds, std::move(what)); }
    // Shows the form until it is gone; gives how long that took, in seconds.
    double show(frm_AppMagnify& lens) {
        lens.pic_Fill.attachSurface(&fill);
        lens.pic_Screen.attachSurface(&screen);
        begin_ = host.clock.now;
        host.windows.ShowModal(lens);
        EXPECT_FALSE(lens.shown());
        EXPECT_FALSE(lens.loaded());
        lens.pic_Fill.attachSurface(nullptr);
        lens.pic_Screen.attachSurface(nullptr);
        return host.clock.now - begin_;
    }
    std::int64_t number(const frm_AppMagnify& lens, const char* field) {
        FieldTable table;
        lens.describe(table);
        return std::get<std::int64_t>(table.find(field).value());
    }
    void click(frm_AppMagnify& lens) { lens.pic_Screen.userClicked(); }

    FakeHost host;
    RecordingSurface fill{592, 444};
    RecordingSurface screen{280, 249};

  private:
    std::multimap<double, std::function<void()>> plan_;
    double begin_ = 0;
};

// The last round of a zoom rests too, and the timer waits before the first.
constexpr double kSlack = 0.06;

TEST_F(Lens, ZoomsInRunsAndZoomsOut) {
    frm_AppMagnify lens;
    lens.ShowAcid = true;
    at(0.5, [&] {
        EXPECT_TRUE(lens.Started);
        EXPECT_EQ(lens.scene(), nullptr);
        EXPECT_FALSE(lens.lab_Attention.visible());
        EXPECT_TRUE(screen.circles.empty());
    });
    at(3, [&] {
        EXPECT_NE(dynamic_cast<PairScene*>(lens.scene()), nullptr);
        EXPECT_TRUE(lens.lab_Attention.visible());
        EXPECT_TRUE(lens.img_Attention.visible());
        EXPECT_EQ(lens.lab_Attention.text(),
                  "In Wirklichkeit reagieren nur äußerst wenige Moleküle: 1 von 100.000!");
        EXPECT_FALSE(screen.circles.empty());
    });
    at(5, [&] { lens.Form_MouseDown(10, 10, MouseButton::Left); });
    at(5.7, [&] {
        EXPECT_EQ(lens.scene(), nullptr);
        EXPECT_FALSE(lens.lab_Attention.visible());
        EXPECT_FALSE(lens.img_Attention.visible());
        EXPECT_TRUE(screen.circles.empty());
    });
    const double duration = show(lens);
    EXPECT_TRUE(lens.Closing);
    EXPECT_FALSE(lens.Escaped);
    EXPECT_NEAR(duration, 5 + kFrame / 2 + kZoom, kFrame / 2 + kSlack);
    EXPECT_EQ(host.random.randomized, 1);
}

TEST_F(Lens, HasTenFramesASecond) {
    frm_AppMagnify lens;
    lens.ShowWater = true;
    std::int64_t first = 0;
    at(2, [&] { first = number(lens, "Frames"); });
    at(12, [&] {
        EXPECT_NEAR(static_cast<double>(number(lens, "Frames") - first), 100, 1);
        click(lens);
    });
    show(lens);
}

TEST_F(Lens, ZoomsWithFortyRoundsASecondAndMore) {
    frm_AppMagnify lens;
    at(0.2, [&] { click(lens); });
    show(lens);
    EXPECT_GE(number(lens, "ZoomRounds"), 2 * 40);
}

TEST_F(Lens, ClickedDuringTheZoomInShowsOneFrameAndZoomsOut) {
    frm_AppMagnify lens;
    at(0.5, [&] { click(lens); });
    const double duration = show(lens);
    EXPECT_EQ(number(lens, "Frames"), 1);
    EXPECT_NEAR(duration, kZoom + kFrame + kZoom, kSlack);
    EXPECT_EQ(lens.scene(), nullptr);
}

struct SceneRow {
    bool water;
    bool acid;
    bool crystal; // what is shown then
};

class LensScenes : public Lens, public testing::WithParamInterface<SceneRow> {};

INSTANTIATE_TEST_SUITE_P(All, LensScenes,
                         testing::Values(SceneRow{true, false, false}, SceneRow{false, true, false},
                                         SceneRow{true, true, false},
                                         SceneRow{false, false, true}));

TEST_P(LensScenes, EndWithTheEscapeKey) {
    frm_AppMagnify lens;
    lens.ShowWater = GetParam().water;
    lens.ShowAcid = GetParam().acid;
    at(4, [&] {
        EXPECT_EQ(dynamic_cast<CrystalScene*>(lens.scene()) != nullptr, GetParam().crystal);
        EXPECT_FALSE(lens.userKey(Key::Other, "x"));
        EXPECT_FALSE(lens.Closing);
        EXPECT_TRUE(lens.userKey(Key::Escape));
    });
    const double duration = show(lens);
    EXPECT_TRUE(lens.Escaped);
    EXPECT_TRUE(lens.Closing);
    EXPECT_NEAR(duration, 4 + kFrame / 2 + kZoom, kFrame / 2 + kSlack);
}

// Water goes before acid: it is never more than three pairs that react.
TEST_F(Lens, ShowsWaterWhereBothAreAsked) {
    frm_AppMagnify lens;
    lens.ShowWater = lens.ShowAcid = true;
    int most = 0;
    for (int i = 0; i < 300; ++i) {
        at(2 + i, [&] { most = std::max(most, lens.scene()->active()); });
    }
    at(303, [&] { click(lens); });
    show(lens);
    EXPECT_EQ(most, 3);
}

TEST_F(Lens, EscapeOnTheSceneItselfEndsIt) {
    frm_AppMagnify lens;
    at(2, [&] {
        EXPECT_FALSE(lens.pic_Screen.onKey(Key::Enter));
        EXPECT_FALSE(lens.Escaped);
        EXPECT_TRUE(lens.pic_Screen.onKey(Key::Escape));
    });
    show(lens);
    EXPECT_TRUE(lens.Escaped);
    EXPECT_FALSE(lens.Closing);
}

TEST_F(Lens, EveryPlaceOfTheFormTakesTheClick) {
    for (const char* name : {"pic_Fill", "pic_Screen", "img_Attention", "lab_Attention"}) {
        frm_AppMagnify lens;
        at(2, [&] { lens.findControl(name)->userClicked(); });
        EXPECT_LT(show(lens), 4) << name;
    }
}

TEST_F(Lens, ClosedByItsWindowLeavesAsWithEscape) {
    frm_AppMagnify lens;
    at(2, [&] {
        host.windows.userClosed(lens);
        EXPECT_TRUE(lens.shown()); // it zooms out first
    });
    const double duration = show(lens);
    EXPECT_TRUE(lens.Escaped);
    EXPECT_GT(duration, 2.9);
}

TEST_F(Lens, BearsEventsAtAnyMoment) {
    for (double first = 0.0; first < 3.2; first += 0.13) {
        frm_AppMagnify lens;
        at(2.05, [&] { click(lens); });
        for (int i = 0; i < 6; ++i) {
            at(first + i * 0.004, [&, i] {
                switch (i % 3) {
                case 0:
                    lens.userKey(Key::Escape);
                    break;
                case 1:
                    lens.Form_MouseDown(5, 5, MouseButton::Right);
                    break;
                default:
                    host.windows.userClosed(lens);
                    break;
                }
            });
        }
        const double duration = show(lens);
        EXPECT_GE(duration, 2 * kZoom + kFrame);
        EXPECT_LE(duration, 2.05 + kFrame + kZoom + kSlack);
        host.windows.events.clear();
    }
}

class Beneath final : public Form {
  public:
    Beneath() : Form("Beneath", {100, 100}) {}
};

TEST_F(Lens, LeavesTheFormBeneathAlone) {
    Beneath beneath;
    host.windows.Show(beneath);
    frm_AppMagnify lens;
    at(1.5, [&] { host.windows.userClosed(lens); });
    show(lens);
    EXPECT_TRUE(beneath.shown());
}

TEST_F(Lens, LetsTheProcessEnd) {
    for (const double moment : {0.3, 2.0, 3.4}) {
        frm_AppMagnify lens;
        at(2.2, [&] { click(lens); });
        at(moment, [&] { host.windows.EndProcess(); });
        EXPECT_THROW(host.windows.ShowModal(lens), ProcessEnded);
        host.windows.Unload(lens);
        host.windows.events.clear();
    }
}

TEST_F(Lens, UnloadedByTheProgramEndsAtOnce) {
    for (const double moment : {0.3, 2.0}) {
        frm_AppMagnify lens;
        at(moment, [&] { host.windows.Unload(lens); });
        EXPECT_NEAR(show(lens), moment, kSlack);
    }
    frm_AppMagnify lens;
    at(1.5, [&] { click(lens); });
    at(1.9, [&] { host.windows.Unload(lens); });
    EXPECT_NEAR(show(lens), 1.9, kSlack);
}

TEST_F(Lens, RunsOnceAShowing) {
    frm_AppMagnify lens;
    at(2, [&] {
        const std::int64_t frames = number(lens, "Frames");
        lens.tmr_Ani.onTimer(); // comes back at once
        EXPECT_EQ(number(lens, "Frames"), frames);
        EXPECT_NE(lens.scene(), nullptr);
        click(lens);
    });
    show(lens);
}

TEST_F(Lens, EachOpeningBeginsAnew) {
    for (int i = 0; i < 2; ++i) {
        frm_AppMagnify lens;
        at(3, [&] { lens.userKey(Key::Escape); });
        EXPECT_GT(show(lens), 3.9);
    }
    frm_AppMagnify again; // the same one shown twice
    for (int i = 0; i < 2; ++i) {
        at(3, [&] { click(again); });
        EXPECT_GT(show(again), 3.9);
    }
    EXPECT_EQ(host.random.randomized, 4);
}

TEST_F(Lens, TakesTheScreenBeforeItCoversIt) {
    frm_AppMagnify lens;
    at(0.3, [&] {
        EXPECT_EQ(host.capture.grabs.size(), 1U);
        EXPECT_EQ(lens.pic_Original.picture(), session().CapturedPicture);
        EXPECT_EQ(lens.pic_Shot.picture(), nullptr);
    });
    at(2, [&] {
        EXPECT_EQ(host.capture.grabs.size(), 2U);
        EXPECT_NE(lens.pic_Shot.picture(), nullptr);
        click(lens);
    });
    show(lens);
    EXPECT_EQ(host.capture.grabs.size(), 2U);
}

using StretchMark = RecordingSurface::StretchMark;

TEST_F(Lens, StretchesTheSourceOverTheScreen) {
    frm_AppMagnify lens;
    lens.SourceLeft = 100;
    lens.SourceTop = 40;
    lens.SourceRight = 300;
    lens.SourceBottom = 240;
    std::vector<StretchMark> before;
    std::vector<StretchMark> after;
    const auto look = [&](std::vector<StretchMark>& marks) {
        marks.push_back(fill.stretches.back());
        EXPECT_EQ(fill.stretches.size(), 2U);
        EXPECT_EQ(fill.stretches.front().from, fill.stretches.front().to); // the screen as it was
        EXPECT_EQ(marks.back().picture, lens.pic_Original.picture());
        EXPECT_EQ(marks.back().from, (Rect{100, 40, 200, 200}));
        EXPECT_EQ(marks.back().operation, RasterOp::SrcCopy);
    };
    for (double moment = 0.02; moment < 1; moment += 0.1) {
        at(moment, [&] { look(before); });
    }
    at(1.5, [&] { click(lens); });
    for (double moment = 1.56; moment < 2.5; moment += 0.1) {
        at(moment, [&] { look(after); });
    }
    show(lens);
    ASSERT_EQ(before.size(), 10U);
    ASSERT_EQ(after.size(), 10U);
    EXPECT_NEAR(before.front().to.left, 100, 2);
    EXPECT_NEAR(before.front().to.right(), 300, 4);
    for (std::size_t i = 1; i < before.size(); ++i) {
        EXPECT_GT(before[i].to.width, before[i - 1].to.width);
        EXPECT_LT(after[i].to.width, after[i - 1].to.width);
    }
    EXPECT_EQ(fill.stretches.back().to, (Rect{100, 40, 200, 200})); // ends where it began
}

TEST_F(Lens, TakesItsRectangleInTheScaleOfTheCaller) {
    frm_AppMagnify lens;
    lens.SourceLeft = 100; // edges swapped
    lens.SourceTop = 120;
    lens.SourceRight = 20;
    lens.SourceBottom = 40;
    lens.SourceScale = 1.5;
    at(0.3, [&] {
        EXPECT_EQ(fill.stretches.back().from, (Rect{30, 60, 120, 120}));
        click(lens);
    });
    show(lens);
}

TEST_F(Lens, StandsWhereTheFormStandsOnTheScreen) {
    host.capture.front = {50, 30, 641, 473};
    frm_AppMagnify lens;
    lens.SourceLeft = 100;
    lens.SourceTop = 100;
    lens.SourceRight = 200;
    lens.SourceBottom = 200;
    at(0.02, [&] {
        EXPECT_EQ(fill.stretches.front().to, (Rect{-50, -30, 1366, 768}));
        EXPECT_EQ(fill.stretches.back().from, (Rect{100, 100, 100, 100}));
        EXPECT_NEAR(fill.stretches.back().to.left, 50, 2);
        click(lens);
    });
    show(lens);
}

TEST_F(Lens, StartsFromAPointWithoutARectangle) {
    frm_AppMagnify lens; // all edges 0
    at(0.5, [&] {
        EXPECT_EQ(fill.stretches.back().from, (Rect{0, 0, 1, 1}));
        EXPECT_NEAR(fill.stretches.back().to.width, 592 * 0.49, 592 * 0.03);
        click(lens);
    });
    show(lens);
    EXPECT_EQ(fill.stretches.back().to, (Rect{0, 0, 0, 0})); // which draws nothing
}

TEST_F(Lens, DoesWithoutPictures) {
    host.capture.givesPictures = false;
    FakeGraphics none;
    CoreLibRoot bare{host.clock, host.system, host.numbers, host.boxes,  host.files,
                     none,       host.random, host.windows, host.capture};
    installRoots(host.app, bare);
    frm_AppMagnify lens;
    at(3, [&] {
        EXPECT_TRUE(fill.stretches.empty());
        EXPECT_FALSE(screen.circles.empty());
        click(lens);
    });
    show(lens);
    installRoots(host.app, host.coreLib);
}

TEST_F(Lens, LaysTheGlassOverTheMagnifiedScreen) {
    for (const bool crystal : {false, true}) {
        frm_AppMagnify lens;
        lens.ShowAcid = !crystal;
        at(2, [&] {
            const std::size_t balls = crystal ? 30 : 0;
            EXPECT_GE(fill.circles.size(), balls);
            EXPECT_EQ(fill.circles.empty(), !crystal);
            ASSERT_EQ(fill.stretches.size(), 4U);
            EXPECT_EQ(fill.stretches[0].picture, lens.pic_Original.picture());
            EXPECT_EQ(fill.stretches[1].picture, lens.pic_Shot.picture());
            const Rect whole{0, 0, 592, 444};
            EXPECT_EQ(fill.stretches[2],
                      (StretchMark{whole, lens.pic_Magnify(0).picture(), whole, RasterOp::SrcAnd}));
            EXPECT_EQ(fill.stretches[3], (StretchMark{whole, lens.pic_Magnify(1).picture(), whole,
                                                      RasterOp::SrcInvert}));
            // The plate of the text lies over the glass.
            EXPECT_EQ(fill.order.substr(0, 3), "ssp");
            EXPECT_EQ(fill.order.substr(fill.order.size() - 3), "ssp");
            click(lens);
        });
        show(lens);
    }
}

TEST_F(Lens, LaysNothingOverTheScreenWhenHalfTheGlassIsMissing) {
    FakeGraphics half;
    half.addPicture("data/lens_mask.gif", 592, 444);
    CoreLibRoot bare{host.clock, host.system, host.numbers, host.boxes,  host.files,
                     half,       host.random, host.windows, host.capture};
    installRoots(host.app, bare);
    frm_AppMagnify lens;
    at(2, [&] {
        EXPECT_EQ(fill.stretches.size(), 2U);
        click(lens);
    });
    show(lens);
    installRoots(host.app, host.coreLib);
}

TEST_F(Lens, PlaysItsSoundsUnlessSilenced) {
    for (const int mode : {0, 1, 2, 3}) {
        host.soundOptions.Mode = mode;
        host.sounds.played.clear();
        frm_AppMagnify lens;
        lens.ShowAcid = true;
        at(60, [&] { click(lens); });
        show(lens);
        if (mode == 2) {
            EXPECT_TRUE(host.sounds.played.empty());
        } else {
            const auto& played = host.sounds.played;
            EXPECT_NE(std::find(played.begin(), played.end(), "data/sounds\\collide.wav"),
                      played.end());
            EXPECT_NE(std::find(played.begin(), played.end(), "data/sounds\\ex.wav"), played.end());
        }
    }
}

TEST_F(Lens, TellsWhatItDoes) {
    frm_AppMagnify lens;
    lens.SourceScale = 2;
    at(3, [&] {
        EXPECT_EQ(number(lens, "Active"), lens.scene()->active());
        FieldTable table;
        lens.describe(table);
        EXPECT_EQ(std::get<bool>(*table.find("Started")), true);
        EXPECT_EQ(std::get<double>(*table.find("SourceScale")), 2);
        EXPECT_NEAR(std::get<double>(*table.find("SceneStart")), 1.0, 0.05);
        click(lens);
    });
    show(lens);
    EXPECT_EQ(number(lens, "Active"), 0);
}

TEST_F(Lens, TurnsDesignUnitsIntoPixels) {
    frm_AppMagnify lens;
    EXPECT_TRUE(lens.scalesItself());
    EXPECT_TRUE(lens.frameless());
    EXPECT_EQ(lens.windowState(), WindowState::Maximised);
    FormSizer sizer;
    sizer.give(lens, {1366, 768});
    EXPECT_EQ(lens.hScaleX(592), 1366);
    EXPECT_EQ(lens.hScaleY(444), 768);
    EXPECT_EQ(lens.hScaleX(100), 231); // 230.74
    EXPECT_EQ(lens.hScaleY(100), 173); // 172.97
    EXPECT_EQ(lens.hScaleMin(100), 173);
    sizer.give(lens, {1184, 2220});
    EXPECT_EQ(lens.hScaleX(0.25), 0); // 0.5 and 2.5 go to the even number
    EXPECT_EQ(lens.hScaleX(1.25), 2);
    EXPECT_EQ(lens.hScaleMin(10), 20);
}

TEST_F(Lens, ArrangesItselfForEveryScreen) {
    for (const Size size : {Size{592, 444}, Size{1024, 768}, Size{1366, 768}, Size{1920, 1080},
                            Size{768, 1024}, Size{3840, 2160}}) {
        frm_AppMagnify lens;
        FormSizer sizer;
        sizer.give(lens, size);
        EXPECT_EQ(lens.pic_Fill.place(), (Rect{0, 0, size.width, size.height}));
        const Rect& scene = lens.pic_Screen.place();
        EXPECT_EQ(scene.left, lens.hScaleX(143));
        EXPECT_EQ(scene.top, lens.hScaleY(96));
        EXPECT_EQ(scene.right(), lens.hScaleX(423)); // 422 still belongs to it
        EXPECT_EQ(scene.bottom(), lens.hScaleY(345));
        EXPECT_EQ(lens.pic_Screen.scaleSize(), (Size{280, 249}));
        EXPECT_TRUE(lens.pic_Screen.overlay());

        const Rect& text = lens.lab_Attention.place();
        const Rect& icon = lens.img_Attention.place();
        EXPECT_EQ(text.top, size.height - 2 * text.height);
        EXPECT_DOUBLE_EQ(text.left + text.width / 2, size.width / 2);
        EXPECT_NEAR(icon.left, text.left - 1.2 * icon.width, 1e-9);
        EXPECT_DOUBLE_EQ(icon.top + icon.height / 2, text.top + text.height / 2);
        EXPECT_GE(icon.left, 0);
        // The text is 33 times as wide as its type is high.
        EXPECT_GE(text.width, 33.2 * lens.lab_Attention.font().size);
        EXPECT_GE(text.height, 1.2 * lens.lab_Attention.font().size);
        EXPECT_TRUE(lens.lab_Attention.font().bold);
        if (size == Size{1366, 768}) {
            EXPECT_GE(lens.lab_Attention.font().size, 20);
        }
    }
}

TEST_F(Lens, DrawsTheGlassAnewWhenTheScreenChanges) {
    frm_AppMagnify lens;
    at(2, [&] {
        FormSizer().give(lens, {800, 600});
        EXPECT_EQ(fill.stretches.back().to, (Rect{0, 0, 800, 600}));
        click(lens);
    });
    show(lens);
}

} // namespace
} // namespace quendal::test
