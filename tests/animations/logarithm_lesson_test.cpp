// The lesson on powers of ten: what each step writes, and where each choice leads.
#include "shell/forms/frm_AppResource.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"
#include "stage_fixture.h"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace quendal::test {
namespace {

constexpr Color kLiquid{10, 60, 90};
constexpr const char* kChoice = "Ende der Simulation mit ESC"; // in the footer of every choice

struct PowerRow {
    const char* count;
    const char* first; // box
    const char* value;
    const char* result;
};

constexpr PowerRow kRows[] = {
    {"10", "Von 10\rWasser-Molekülen\rliegt 1 Molekül\rals Hµ3|O^+| vor", "= 10^-1",
     "pH = -log(10^-1|)=1"},
    {"100", "Von 100\rWasser-Molekülen\rliegt 1 Molekül\rals Hµ3|O^+| vor", "= 10^-2",
     "pH = -log(10^-2|)=2"},
    {"1.000", "Von 1.000\rWasser-Molekülen\rliegt 1 Molekül\rals Hµ3|O^+| vor", "= 10^-3",
     "pH = -log(10^-3|)=3"},
    {"10.000", "Von 10.000\rWasser-Molekülen\rliegt 1 Molekül\rals Hµ3|O^+| vor", "= 10^-4",
     "pH = -log(10^-4|)=4"},
    {"100.000", "Von 100.000\rWasser-Molekülen\rliegt 1 Molekül\rals Hµ3|O^+| vor", "= 10^-5",
     "pH = -log(10^-5|)=5"},
    {"10.000.000", "Von 10.000.000\rWasser-Molekülen\rliegt 1 Molekül\rals Hµ3|O^+| vor", "= 10^-7",
     "pH = -log(10^-7|)=7"},
};

// A zoom as it was seen: the picture that lay on top when it began and when it ended.
struct Seen {
    int from = 0;
    int to = 0;
    double seconds = 0;
};

bool operator==(const Seen& one, const Seen& other) {
    return one.from == other.from && one.to == other.to &&
           std::abs(one.seconds - other.seconds) < 0.02;
}

void PrintTo(const Seen& seen, std::ostream* out) {
    *out << seen.from << " to " << seen.to << " in " << seen.seconds << " s";
}

class LogarithmLesson : public StageTest {
  protected:
    LogarithmLesson() {
        session().ParticleBackColor = kLiquid;
        for (int i = 1; i <= 6; ++i) {
            pictures_.push_back(StagePictures::blank(480, 470));
            appResource().pic_phF.load(i).setPicture(pictures_.back());
        }
        eachShot = [this](const Shot& shot) { keep(shot); };
    }
    void answerForward() { answerClick(730, 560); }
    void answerBack() { answerClick(550, 560); }
    void goForward(int times) {
        for (int i = 0; i < times; ++i) {
            answerForward();
        }
    }
    // What a step draws up to its choice, by the primitives alone.
    std::vector<Mark> expectedStep(std::size_t step) {
        frm_AppIntro other;
        StagePaper sheet;
        other.pic_Stage.attachSurface(&sheet);
        const PowerRow& row = kRows[step - 1];
        const Color white = palette(15);
        const PrintStyle plain{.color = white};
        const PrintStyle centred{.color = white, .anchor = Anchor::Centre};
        other.hPrint(432, 24, "Negativer dekadischer Logarithmus p=-log / wie: pH=-log c(Hµ3|O^+|)",
                     {.size = 20, .color = white, .anchor = Anchor::Centre});
        other.hBox(20, 50, 500, 520, white, kLiquid);
        other.hBox(520, 50, 780, 210, white, palette(1));
        other.hBox(520, 230, 780, 440, white, palette(4));
        other.hBox(520, 460, 780, 520, white, Color{255, 100, 100});
        other.hBox(20, 540, 780, 580, white, palette(7));
        other.hPrint(530, 70, row.first, {.size = 23, .color = white});
        other.hPrint(530, 260, "Bruchteil (H)=", plain);
        other.hPrint(540, 295, "n(Hµ3|O^+|)", plain);
        other.hLine(530, 315, 660, 315, white);
        other.hPrint(670, 315, "=", plain);
        other.hPrint(540, 335, "nges.(Hµ2|O)", plain);
        other.hPrint(600, 375, "1", centred);
        other.hLine(530, 395, 660, 395, white);
        other.hPrint(600, 415, row.count, centred);
        other.hPrint(670, 395, row.value, plain);
        other.hPrint(660, 490, row.result, {.size = 20, .color = white, .anchor = Anchor::Centre});
        other.hPrint(30, 560, "Mit Mausklick weiter zum nächsten Schritt. Mit ESC beenden",
                     {.size = 20, .color = kBlack});
        const int picture = static_cast<int>(step);
        other.hZoom({.first = picture, .second = picture});
        other.pic_Stage.attachSurface(nullptr);
        return sheet.marks;
    }

    std::vector<Seen> zooms;
    std::vector<std::vector<Mark>> steps; // what was drawn up to each choice, and the choice itself
    std::vector<std::string> forward;     // captions of the last button of each choice

  private:
    int numberOf(const PicturePtr& picture) const {
        const auto found = std::find(pictures_.begin(), pictures_.end(), picture);
        return static_cast<int>(found - pictures_.begin()) + 1;
    }
    // What was drawn since the last shot.
    std::vector<Mark> newMarks() {
        if (paper.cleared != shotClears_) {
            shotClears_ = paper.cleared;
            seenMarks_ = 0;
        }
        const std::vector<Mark> marks(paper.marks.begin() + static_cast<std::ptrdiff_t>(seenMarks_),
                                      paper.marks.end());
        seenMarks_ = paper.marks.size();
        return marks;
    }
    void keep(const Shot& shot) {
        std::vector<Mark> copies;
        for (const Mark& mark : newMarks()) {
            if (mark.text == kChoice) {
                steps.push_back(paper.marks);
                forward.push_back(paper.of(Mark::Kind::Text).back().text);
                asked_ = true;
                return;
            }
            if (mark.kind == Mark::Kind::Stretch) {
                copies.push_back(mark);
            }
        }
        if (!copies.empty()) {
            keepZoom(shot.time, numberOf(copies.front().picture), numberOf(copies.back().picture));
        }
    }
    // A zoom begins anew with another picture beneath or on a stage that was cleared.
    void keepZoom(double time, int beneath, int top) {
        if (zooms.empty() || paper.cleared != zoomClears_ || beneath != beneath_ || asked_) {
            zooms.push_back({top, top, 0});
            begin_ = time;
        }
        zooms.back().to = top;
        zooms.back().seconds = time - begin_;
        beneath_ = beneath;
        zoomClears_ = paper.cleared;
        asked_ = false;
    }

    std::vector<PicturePtr> pictures_;
    std::size_t seenMarks_ = 0;
    int shotClears_ = 0;
    int zoomClears_ = 0;
    bool asked_ = false; // a choice came between
    int beneath_ = 0;
    double begin_ = 0;
};

using Zooms = std::vector<Seen>;

TEST_F(LogarithmLesson, WritesItsSixSteps) {
    goForward(5);
    play(0);
    ASSERT_EQ(steps.size(), 6U);
    for (std::size_t step = 1; step <= 6; ++step) {
        SCOPED_TRACE(step);
        const std::vector<Mark> expected = expectedStep(step);
        std::vector<Mark> drawn = steps[step - 1];
        ASSERT_GT(drawn.size(), expected.size());
        drawn.resize(expected.size()); // what follows is the choice
        for (std::size_t i = 0; i < drawn.size(); ++i) {
            ASSERT_EQ(drawn[i], expected[i]) << i << " " << drawn[i].text;
        }
    }
    EXPECT_EQ(paper.others, 0);
    EXPECT_TRUE(logged.empty());
}

TEST_F(LogarithmLesson, AsksWhereToGo) {
    goForward(5);
    play(0);
    EXPECT_EQ(waits, 6);
    EXPECT_EQ(forward, (std::vector<std::string>{"Weiter >", "Weiter >", "Weiter >", "Weiter >",
                                                 "Weiter >", "Neustart"}));
    for (const auto& marks : steps) {
        std::vector<std::string> texts;
        for (const Mark& mark : marks) {
            if (mark.kind == Mark::Kind::Text) {
                texts.push_back(mark.text);
            }
        }
        ASSERT_GT(texts.size(), 4U);
        EXPECT_EQ(texts[texts.size() - 4], kChoice);
        EXPECT_EQ(texts[texts.size() - 3], "< Zurück");
        EXPECT_EQ(texts[texts.size() - 2], "X");
    }
}

TEST_F(LogarithmLesson, ZoomsIntoEachNextPicture) {
    goForward(5);
    play(0);
    EXPECT_EQ(zooms, (Zooms{{1, 1, 0},
                            {1, 2, 2},
                            {2, 2, 0},
                            {2, 3, 2},
                            {3, 3, 0},
                            {3, 4, 2},
                            {4, 4, 0},
                            {4, 5, 2},
                            {5, 5, 0},
                            {5, 6, 2},
                            {6, 6, 0}}));
}

TEST_F(LogarithmLesson, ZoomsBackStepByStep) {
    goForward(5);
    for (int i = 0; i < 5; ++i) {
        answerBack();
    }
    play(0);
    EXPECT_EQ(steps.size(), 11U);
    const Zooms back(zooms.begin() + 11, zooms.end());
    EXPECT_EQ(back, (Zooms{{6, 5, 1},
                           {5, 5, 0},
                           {5, 4, 1},
                           {4, 4, 0},
                           {4, 3, 1},
                           {3, 3, 0},
                           {3, 2, 1},
                           {2, 2, 0},
                           {2, 1, 1},
                           {1, 1, 0}}));
    EXPECT_EQ(steps.front(), steps.back());
}

TEST_F(LogarithmLesson, StaysAtItsFirstStepOnTheWayBack) {
    answerBack();
    answerBack();
    answerForward();
    play(0);
    EXPECT_EQ(zooms,
              (Zooms{{1, 1, 0}, {1, 1, 1}, {1, 1, 0}, {1, 1, 1}, {1, 1, 0}, {1, 2, 2}, {2, 2, 0}}));
}

TEST_F(LogarithmLesson, ZoomsWithItsFactors) {
    goForward(1);
    answerBack();
    std::vector<std::vector<Mark>> firsts; // copies up to the first frame of each zoom
    std::size_t known = 0;
    const auto before = eachShot;
    eachShot = [&](const Shot& shot) {
        before(shot);
        if (zooms.size() > known) {
            known = zooms.size();
            firsts.push_back(paper.of(Mark::Kind::Stretch));
        }
    };
    play(0);
    ASSERT_EQ(firsts.size(), 5U); // rest, in, rest, out, rest
    const std::vector<Mark>& in = firsts[1];
    // The first picture begins at nine tenths of the panel, the second at three times its size.
    EXPECT_EQ(in.back().from, (Point{25, 55}));
    EXPECT_EQ(in.back().to, (Point{457, 478}));
    EXPECT_NEAR(in[in.size() - 2].source.width, 480 * 480.0 / 1441, 1e-6);
    // And back it begins with the whole second one.
    const std::vector<Mark>& out = firsts[3];
    EXPECT_EQ(out.back().source, (Rect{0, 0, 480, 470}));
}

TEST_F(LogarithmLesson, BeginsAnewAfterItsLastStep) {
    goForward(6);
    play(0);
    EXPECT_EQ(waits, 7);
    const Zooms rewound(zooms.begin() + 11, zooms.end());
    EXPECT_EQ(rewound, (Zooms{{6, 5, 1}, {5, 4, 1}, {4, 3, 1}, {3, 2, 1}, {2, 1, 1}, {1, 1, 0}}));
    ASSERT_EQ(steps.size(), 7U);
    EXPECT_EQ(steps.front(), steps.back());
}

TEST_F(LogarithmLesson, GoesRoundManyTimes) {
    for (int round = 0; round < 20; ++round) {
        goForward(6);
    }
    play(0);
    EXPECT_EQ(steps.size(), 121U);
    EXPECT_EQ(steps.front(), steps.back());
}

TEST_F(LogarithmLesson, IsWorkedByKeys) {
    answerKey(">");
    answerKey("+");
    answerKey(" ");
    answerKey("\r");
    answerKey("<");
    answerKey("-");
    answerKey("?");
    play(0);
    EXPECT_EQ(waits, 8);
    EXPECT_EQ(zooms.back(), (Seen{3, 3, 0}));
}

TEST_F(LogarithmLesson, EndsWithoutAskingForARepeat) {
    for (const int way : {0, 1, 2, 3}) {
        waits = 0;
        goForward(2);
        answers.emplace_back([this, way] {
            if (way == 0) {
                stage.userKey(Key::Escape);
            } else if (way == 1) {
                stage.Form_MouseDown(650, 560, MouseButton::Left); // "X"
            } else if (way == 2) {
                stage.Form_MouseDown(730, 560, MouseButton::Right);
            } else {
                host.windows.userClosed(stage);
            }
        });
        play(0);
        EXPECT_EQ(waits, 3) << way;
        EXPECT_FALSE(stage.loaded()) << way;
    }
}

TEST_F(LogarithmLesson, EndsAtAnyMoment) {
    const auto run = [this] {
        goForward(6);
        play(0);
        answers.clear();
    };
    run();
    const std::size_t frames = shots.size();
    for (std::size_t moment = 0; moment < frames; moment += 10) {
        during(moment, [this, moment] {
            if (moment % 3 == 0) {
                stage.userKey(Key::Escape);
            } else if (moment % 3 == 1) {
                host.windows.userClosed(stage);
            } else {
                host.windows.Unload(stage);
            }
        });
        run();
        ASSERT_LE(shots.size(), moment + 3) << moment;
        ASSERT_FALSE(stage.loaded() || stage.shown()) << moment;
    }
}

TEST_F(LogarithmLesson, ShowsNeitherPanelNorSprites) {
    goForward(1);
    play(0);
    for (const Shot& shot : shots) {
        ASSERT_FALSE(shot.panel);
        ASSERT_TRUE(shot.sprites.empty());
        ASSERT_EQ(shot.caption, "");
        ASSERT_FALSE(shot.magnify || shot.acid);
    }
    EXPECT_TRUE(host.sounds.played.empty());
}

} // namespace
} // namespace quendal::test
