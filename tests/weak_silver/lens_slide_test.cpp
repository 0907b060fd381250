// The glass that slides in over the bench, the view through it, and the way back.
#include "case_fixture.h"

#include "particles/frm_AppMagnify.h"
#include "particles/species.h"
#include "shell/forms/frm_AppResource.h"
#include "support/recording_surface.h"

#include <cmath>

namespace quendal::test {
namespace {

enum class Stage { SlideIn, View, SlideOut };

// What a turn of one of the loops leaves behind.
struct Moment {
    Stage stage = Stage::SlideIn;
    double since = 0; // s since the stage began
    Rect glass;
    bool glassVisible = false;
    bool buttonVisible = false;
};

// Watches a whole opening of the lens and may act at a moment of it.
class LensWatch {
  public:
    LensWatch(FakeHost& host, LensWorkbench& bench) : host_(host), bench_(bench) {
        host_.clock.onSleep = [this] { look(); };
    }
    ~LensWatch() { host_.clock.onSleep = nullptr; }
    LensWatch(const LensWatch&) = delete;
    LensWatch& operator=(const LensWatch&) = delete;

    std::vector<Moment> moments;
    bool opened = false;     // the view was there
    double closeAfter = 1.5; // s of the view, by a click
    std::function<void(frm_AppMagnify& lens)> onOpened;
    // Called at each turn.
    std::function<void(const Moment& moment, frm_AppMagnify* lens)> onTurn;

    std::vector<Moment> of(Stage stage) const {
        std::vector<Moment> found;
        for (const Moment& moment : moments) {
            if (moment.stage == stage) {
                found.push_back(moment);
            }
        }
        return found;
    }

  private:
    void look() {
        auto* lens = dynamic_cast<frm_AppMagnify*>(host_.windows.top());
        if (lens != nullptr && !opened) {
            opened = true;
            begin(Stage::View);
            if (onOpened) {
                onOpened(*lens);
            }
        } else if (lens == nullptr && opened && stage_ == Stage::View) {
            begin(Stage::SlideOut);
        } else if (moments.empty()) {
            begin(Stage::SlideIn);
        }
        moments.push_back({stage_, host_.clock.now - began_, bench_.pic_Magnify.place(),
                           bench_.pic_Magnify.visible(), bench_.but_ShowMag.visible()});
        const Moment moment = moments.back();
        if (lens != nullptr && moment.since >= closeAfter) {
            lens->Form_MouseDown(1, 1, MouseButton::Left);
        }
        if (onTurn) {
            onTurn(moment, lens);
        }
    }
    void begin(Stage stage) {
        stage_ = stage;
        began_ = host_.clock.now;
    }

    FakeHost& host_;
    LensWorkbench& bench_;
    Stage stage_ = Stage::SlideIn;
    double began_ = 0;
};

class LensSlide : public WeakTest {
  protected:
    void expectPutAway() {
        EXPECT_FALSE(bench().pic_Magnify.visible());
        EXPECT_TRUE(bench().but_ShowMag.visible());
        EXPECT_EQ(host.windows.top(), nullptr);
    }
    void expectGlassAt(const Moment& moment, double inside) {
        const double height = bench().frm_Holder.place().height * 15; // twips
        EXPECT_EQ(moment.glass.left, std::trunc(height - (height - 6540) * inside) / 15);
        EXPECT_EQ(moment.glass.top, 2220 / 15);
    }
};

TEST_F(LensSlide, TheGlassComesInWithinASecond) {
    open();
    LensWatch watch(host, bench());
    bench().but_ShowMag.userClicked();
    const std::vector<Moment> in = watch.of(Stage::SlideIn);
    ASSERT_GE(in.size(), 50U);
    for (const Moment& moment : in) {
        expectGlassAt(moment, std::min(moment.since, 1.0));
        EXPECT_TRUE(moment.glassVisible);
        EXPECT_FALSE(moment.buttonVisible);
    }
    EXPECT_EQ(in.back().glass.left, 6540 / 15);
    EXPECT_GE(in.back().since, 1.0);
    EXPECT_LT(in[in.size() - 2].since, 1.0); // the round that reached it was the last
}

TEST_F(LensSlide, TheGlassGoesTheSameWayBack) {
    open();
    LensWatch watch(host, bench());
    bench().but_ShowMag.userClicked();
    const std::vector<Moment> out = watch.of(Stage::SlideOut);
    ASSERT_GE(out.size(), 50U);
    for (const Moment& moment : out) {
        expectGlassAt(moment, 1.0 - std::min(moment.since, 1.0));
        EXPECT_TRUE(moment.glassVisible);
        EXPECT_FALSE(moment.buttonVisible);
    }
    EXPECT_EQ(out.back().glass.left, bench().frm_Holder.place().height);
    expectPutAway();
}

TEST_F(LensSlide, TheViewStandsAlone) {
    open();
    LensWatch watch(host, bench());
    bench().but_ShowMag.userClicked();
    for (const Moment& moment : watch.of(Stage::View)) {
        EXPECT_FALSE(moment.glassVisible);
        EXPECT_FALSE(moment.buttonVisible);
    }
}

TEST_F(LensSlide, TheViewIsToldWhatToMagnify) {
    open();
    bench().frm_Holder.setPlace(30, 7, 1000, 690);
    LensWatch watch(host, bench());
    bool told = false;
    watch.onOpened = [&](frm_AppMagnify& lens) {
        told = true;
        EXPECT_FALSE(lens.ShowWater);
        EXPECT_TRUE(lens.ShowAcid);
        const Rect& glass = bench().pic_Magnify.place();
        EXPECT_EQ(lens.SourceLeft, 30 + 436 - 10);
        EXPECT_EQ(lens.SourceTop, 7 + 148 + (768 - 690) - 10); // title and menu above the form
        EXPECT_EQ(lens.SourceRight, static_cast<int>(glass.width) - 30);
        EXPECT_EQ(lens.SourceBottom, static_cast<int>(glass.height) - 70);
        EXPECT_EQ(lens.SourceScale, host.windows.scale);
    };
    host.windows.scale = 1.25;
    bench().but_ShowMag.userClicked();
    EXPECT_TRUE(told);
}

TEST_F(LensSlide, TheGlassTurnsThroughItsPictures) {
    std::vector<PicturePtr> pictures;
    for (int frame = 1; frame <= 4; ++frame) {
        const std::string name = "glass" + std::to_string(frame);
        host.graphics.addPicture(name, 556, 264);
        pictures.push_back(host.graphics.LoadPicture(name));
        appResource().pic_MagnifyBuffer.load(frame).setPicture(pictures.back());
    }
    open();
    RecordingSurface glass(556, 264);
    bench().pic_Magnify.attachSurface(&glass);
    std::vector<PicturePtr> shown[2];
    LensWatch watch(host, bench());
    watch.onTurn = [&](const Moment& moment, frm_AppMagnify*) {
        ASSERT_EQ(glass.copies.size(), 1U);
        auto& way = shown[moment.stage == Stage::SlideOut ? 1 : 0];
        if (way.empty() || way.back() != glass.copies[0]) {
            way.push_back(glass.copies[0]);
        }
    };
    bench().but_ShowMag.userClicked();
    EXPECT_EQ(shown[0], pictures);
    EXPECT_EQ(shown[1], std::vector<PicturePtr>(pictures.rbegin(), pictures.rend()));
    bench().pic_Magnify.attachSurface(nullptr);
}

TEST_F(LensSlide, TheBenchLivesOnWhileTheGlassSlides) {
    open();
    addBase(0);
    bench().vSource = 1;
    bench().vDrops.CREATE(kHydroxide, 50, 0);
    LensWatch watch(host, bench());
    bench().but_ShowMag.userClicked();
    EXPECT_EQ(bench().vDrops.COUNT(), 0);
    EXPECT_EQ(bench().vVol, 11);
}

TEST_F(LensSlide, WaitsForTheDosing) {
    open();
    addBase(3);
    session().SessionBusy = true;
    bench().but_ShowMag.userClicked();
    EXPECT_EQ(host.clock.slept, 0);
    expectPutAway();
    session().SessionBusy = false;
    later([this] { bench().but_ShowMag_Click(); });
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 4);
    EXPECT_LT(host.clock.slept, 1.0); // dosing alone
    expectPutAway();
}

TEST_F(LensSlide, NothingElseStartsWhileItIsAtWork) {
    open();
    addBase(3);
    const std::vector<std::function<void()>> clicks{
        [this] { bench().but_Add_Click(1); }, [this] { bench().but_Calc_Click(); },
        [this] { bench().but_HelpCalc.onClick(); }, [this] { bench().but_ShowMag_Click(); }};
    LensWatch watch(host, bench());
    watch.onTurn = [&](const Moment& moment, frm_AppMagnify*) {
        if (moment.since > 0.3 && moment.since < 0.35) {
            for (const auto& click : clicks) {
                click();
            }
        }
    };
    const double before = host.clock.now;
    bench().but_ShowMag.userClicked();
    EXPECT_EQ(bench().sClicks, 3);
    EXPECT_EQ(bench().vDrops.COUNT(), 0);
    EXPECT_FALSE(bench().frm_CalcDirect.visible());
    EXPECT_FALSE(visible("frm_Calc"));
    EXPECT_LT(host.clock.now - before, 7); // a single opening
    expectPutAway();
    bench().but_Add_Click(1); // and everything goes again
    EXPECT_EQ(bench().sClicks, 4);
}

TEST_F(LensSlide, AWrongAnswerMeanwhileDoesNotStartTheTutor) {
    open();
    addBase(3);
    bench().but_Calc_Click();
    bench().txt_Ph.userTyped("1");
    host.boxes.answers = {BoxAnswer::Yes};
    LensWatch watch(host, bench());
    watch.onTurn = [&](const Moment& moment, frm_AppMagnify*) {
        if (moment.stage == Stage::SlideIn && moment.since > 0.3 && bench().vWrong == 0) {
            bench().but_CalcDone_Click();
        }
    };
    bench().but_ShowMag.userClicked();
    EXPECT_FALSE(visible("frm_Calc"));
    expectPutAway();
}

struct CloseCase {
    double after; // s of the view: the zoom in takes one, the scene goes on until it is closed
    int times;
    void (*close)(FakeHost& host, frm_AppMagnify& lens);
};

void byClick(FakeHost&, frm_AppMagnify& lens) {
    lens.Form_MouseDown(5, 5, MouseButton::Left);
}
void byEscape(FakeHost&, frm_AppMagnify& lens) {
    lens.userKey(Key::Escape);
}
void byWindow(FakeHost& host, frm_AppMagnify& lens) {
    host.windows.userClosed(lens);
}

class LensClosing : public LensSlide, public testing::WithParamInterface<CloseCase> {};

TEST_P(LensClosing, AlwaysPutsTheGlassAway) {
    open();
    LensWatch watch(host, bench());
    watch.closeAfter = GetParam().after + 2;
    int closed = 0;
    watch.onTurn = [&](const Moment& moment, frm_AppMagnify* lens) {
        if (lens != nullptr && moment.since >= GetParam().after && closed < GetParam().times) {
            ++closed;
            GetParam().close(host, *lens);
        }
    };
    bench().but_ShowMag.userClicked();
    EXPECT_GE(closed, 1);
    EXPECT_LT(watch.of(Stage::View).back().since, GetParam().after + 2.5);
    expectPutAway();
    EXPECT_TRUE(bench().shown());
    bench().but_ShowMag.userClicked(); // and may be opened again
    expectPutAway();
}

INSTANTIATE_TEST_SUITE_P(Moments, LensClosing,
                         testing::Values(CloseCase{0, 1, byClick}, CloseCase{0, 1, byEscape},
                                         CloseCase{0, 1, byWindow}, CloseCase{0.5, 1, byWindow},
                                         CloseCase{0.5, 2, byEscape}, CloseCase{1.3, 1, byClick},
                                         CloseCase{1.3, 1, byEscape}, CloseCase{1.3, 1, byWindow},
                                         CloseCase{1.3, 2, byWindow}, CloseCase{1.3, 40, byClick}));

struct LeaveCase {
    Stage stage;
    double since;
    bool restart; // else only this task is left
};

class LensLeaving : public LensSlide, public testing::WithParamInterface<LeaveCase> {};

TEST_P(LensLeaving, EndsTheSlide) {
    const LeaveCase& row = GetParam();
    open();
    LensWatch watch(host, bench());
    double leftAt = -1;
    watch.onTurn = [&](const Moment& moment, frm_AppMagnify* lens) {
        if (leftAt < 0 && moment.stage == row.stage && moment.since >= row.since) {
            leftAt = host.clock.now;
            (row.restart ? bench().mnu_FileNew : bench().mnu_FileQuit).onClick();
            if (lens != nullptr) {
                byClick(host, *lens); // the view has no menu and goes on until it is closed
            }
        }
    };
    bench().but_ShowMag.userClicked();
    EXPECT_GE(leftAt, 0);
    EXPECT_EQ(watch.opened, row.stage != Stage::SlideIn);
    EXPECT_LE(host.clock.now - leftAt, row.stage == Stage::View ? 2.2 : 0.05);
    EXPECT_LE(watch.of(Stage::SlideOut).size(), row.stage == Stage::SlideOut ? 30U : 0U);
    expectPutAway();
}

INSTANTIATE_TEST_SUITE_P(
    All, LensLeaving,
    testing::Values(LeaveCase{Stage::SlideIn, 0, true}, LeaveCase{Stage::SlideIn, 0.5, true},
                    LeaveCase{Stage::SlideIn, 0.5, false}, LeaveCase{Stage::View, 1.2, true},
                    LeaveCase{Stage::View, 1.2, false}, LeaveCase{Stage::SlideOut, 0.5, true},
                    LeaveCase{Stage::SlideOut, 0.5, false}));

TEST_F(LensSlide, ARequestIsTakenUpAtTheEndOfAFrame) {
    open();
    LensWatch watch(host, bench());
    bench().hThinkDo();
    EXPECT_FALSE(watch.opened);
    bench().ShowMagRequested = true;
    EXPECT_TRUE(flag("ShowMagRequested"));
    bench().hThinkDo();
    EXPECT_TRUE(watch.opened);
    EXPECT_FALSE(bench().ShowMagRequested);
    expectPutAway();
}

class SilverLens : public SilverTest {};

TEST_F(SilverLens, ShowsTheCrystal) {
    open();
    addBase(1);
    bench().but_ShowMag.setVisible(true);
    LensWatch watch(host, bench());
    bool told = false;
    watch.onOpened = [&](frm_AppMagnify& lens) {
        told = true;
        EXPECT_FALSE(lens.ShowWater);
        EXPECT_FALSE(lens.ShowAcid);
        EXPECT_EQ(lens.SourceLeft, 436 - 10);
    };
    bench().but_ShowMag.userClicked();
    EXPECT_TRUE(told);
    EXPECT_FALSE(bench().pic_Magnify.visible());
    EXPECT_TRUE(bench().but_ShowMag.visible());
}

} // namespace
} // namespace quendal::test
