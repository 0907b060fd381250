// HCl in water and the two equilibria, frame by frame.
#include "reaction_film.h"

#include "particles/frm_AppMagnify.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace quendal::test {
namespace {

using Sprites = std::vector<Moving>;

constexpr const char* kStepFooter = "Mit Mausklick weiter zum nächsten Schritt. Mit ESC beenden";
constexpr const char* kEscFooter = "Mit ESC beenden";
constexpr const char* kCollide = "data/sounds\\collide.wav";
constexpr const char* kReaction = "data/sounds\\ex.wav";

constexpr std::int32_t kHydrogenChloride = 1;
constexpr std::int32_t kAutoprotolysis = 3;
constexpr std::int32_t kWeakAcid = 4;
constexpr std::int32_t kNeutralisation = 5;
constexpr std::int32_t kPrecipitation = 6;

// A shake stays within 5 units of its centre.
constexpr double kShake = 5;

Moving shaking(const std::string& name) {
    Moving sprite = standing(name, 400, 330);
    sprite.shake = kShake;
    return sprite;
}

class HydrogenChloride : public ReactionTest {
  protected:
    HydrogenChloride() {
        addAllSprites();
        basin = "H2O-HCL\\WANNE";
    }
    static std::string named(const char* name) { return std::string("H2O-HCL\\") + name; }

    const std::string caption =
        "Hinreaktion: HCl + H<SUB>2</SUB>O -> H<SUB>3</SUB>O<SUP>+</SUP> + Cl<SUP>-</SUP>";
    const Sprites apart{standing(named("_H2O"), 245, 135, 65),
                        standing(named("_HCL"), 567, 110, 65), standing(named("H2O"), 250, 330),
                        standing(named("HCL"), 550, 330)};
    const Sprites meeting{{named("_H2O"), 65,
                           [](double g) {
                               return Point{345 - (100 - g), 135};
                           }},
                          {named("_HCL"), 65,
                           [](double g) {
                               return Point{467 + (100 - g), 110};
                           }},
                          {named("H2O"), 100,
                           [](double g) {
                               return Point{350 - (100 - g), 330};
                           }},
                          {named("HCL"), 100, [](double g) {
                               return Point{450 + (100 - g), 330};
                           }}};
    const Sprites joined{shaking(named("H2OHCL")), standing(named("_H2OHCL"), 410, 135, 65)};
    const Sprites parting{{named("_H3O"), 65,
                           [](double g) {
                               return Point{377 - g, 123};
                           }},
                          {named("_CL"), 65,
                           [](double g) {
                               return Point{498 + g, 124};
                           }},
                          {named("H3O"), 100,
                           [](double g) {
                               return Point{350 - g, 330};
                           }},
                          {named("CL"), 100, [](double g) {
                               return Point{450 + g, 330};
                           }}};
    const Sprites products{standing(named("_H3O"), 277, 123, 65),
                           standing(named("_CL"), 598, 124, 65), standing(named("H3O"), 250, 330),
                           standing(named("CL"), 550, 330)};

    // The scene once, with its first sounds to come.
    void expectRun(Film& film, std::size_t sounds) {
        expectWait(film, apart, {caption, kStepFooter, sounds});
        expectMotion(film, 1.4, meeting, {caption, "", sounds + 1});
        expectMotion(film, 2, joined, {caption, "", sounds + 1});
        expectMotion(film, 1, parting, {caption, "", sounds + 2});
        expectStill(film, products, {"Keine Rückreaktion!", "", sounds + 2});
        expectStill(film, products, {"Keine Rückreaktion!", kRepeat, sounds + 2});
    }
};

TEST_F(HydrogenChloride, PlaysFrameByFrame) {
    answerClick();
    play(kHydrogenChloride);
    EXPECT_EQ(waits, 2);
    Film film(shots);
    expectRun(film, 0);
    EXPECT_TRUE(film.atEnd());
    EXPECT_EQ(host.sounds.played, (std::vector<std::string>{kCollide, kReaction}));
    EXPECT_TRUE(logged.empty());
}

TEST_F(HydrogenChloride, PlaysAgainToTheSameEnd) {
    answerClick();
    answerClick(); // repeat
    answerClick();
    play(kHydrogenChloride);
    Film film(shots);
    expectRun(film, 0);
    const Shot first = shots[film.position() - 1];
    expectRun(film, 2);
    EXPECT_TRUE(film.atEnd());
    EXPECT_EQ(shots.back().sprites, first.sprites);
    EXPECT_EQ(shots.back().order, first.order);
    // Every picture was loaded once.
    std::vector<std::string> loads = graphics.loads;
    std::sort(loads.begin(), loads.end());
    EXPECT_EQ(std::adjacent_find(loads.begin(), loads.end()), loads.end());
    EXPECT_EQ(loads.size(), 11U);
}

TEST_F(HydrogenChloride, HasItsTitleAndTheSizesOfItsTexts) {
    std::vector<Mark> first;
    std::vector<Mark> last;
    eachShot = [&](const Shot&) { (first.empty() ? first : last) = paper.of(Mark::Kind::Text); };
    answerClick();
    play(kHydrogenChloride);
    ASSERT_GE(first.size(), 3U);
    const std::string title = "Säure-Base Reaktion: HCl in wässriger Lösung:";
    EXPECT_EQ(first[0].text, title);
    EXPECT_DOUBLE_EQ(first[0].font.size, 22.5); // 25 points of the design
    EXPECT_EQ(first[0].from, (Point{400 - 45 * 22.5 / 4, 24 - 22.5 * 1.25 / 2}));
    EXPECT_EQ(first[0].color, palette(15));
    EXPECT_EQ(first[1].text, kStepFooter);
    EXPECT_EQ(first[1].color, kBlack);
    EXPECT_EQ(first[2].text, "Hinreaktion: HCl + H");
    EXPECT_DOUBLE_EQ(first[2].font.size, 27); // 30 points
    EXPECT_EQ(first[2].color, palette(15));
    EXPECT_EQ(paper.cleared, 1);
    const auto end = std::find_if(last.begin(), last.end(), [](const Mark& mark) {
        return mark.text == "Keine Rückreaktion!";
    });
    ASSERT_NE(end, last.end());
    EXPECT_NEAR(end->font.size, 20 * 96 / 72.0, 1e-9);
}

TEST_F(HydrogenChloride, ShakesInAllDirectionsAndAnewInEachFrame) {
    answerClick();
    play(kHydrogenChloride);
    Film film(shots);
    film.still();
    film.still();
    film.motion(1.4);
    Placed least{1000, 1000, 0, 0};
    Placed most;
    int same = 0;
    int diagonal = 0;
    const std::vector<Shot> shake = film.motion(2);
    Placed before;
    for (const Shot& shot : shake) {
        const Placed& at = shot.sprites.at(named("H2OHCL"));
        least = {std::min(least.x, at.x), std::min(least.y, at.y), 0, 0};
        most = {std::max(most.x, at.x), std::max(most.y, at.y), 0, 0};
        same += at == before ? 1 : 0;
        diagonal += at.x - 400 == at.y - 330 ? 1 : 0;
        before = at;
    }
    const int frames = static_cast<int>(shake.size());
    EXPECT_LT(same, frames / 10);
    EXPECT_LT(diagonal, frames / 3); // both numbers are drawn anew
    for (const int reach : {least.x - 395, least.y - 325, 405 - most.x, 335 - most.y}) {
        EXPECT_GE(reach, 0);
        EXPECT_LE(reach, 1);
    }
}

TEST_F(HydrogenChloride, IsSilentOnceItIsBrokenOff) {
    play(kHydrogenChloride); // ESC in place of the click
    EXPECT_TRUE(host.sounds.played.empty());
    answerClick();
    play(kHydrogenChloride);
    Film film(shots);
    film.still();
    film.still();
    film.motion(1.4);
    const std::size_t start = film.position();
    film.motion(2);
    const std::size_t end = film.position();
    for (const std::size_t moment : {start, (start + end) / 2, end - 1}) {
        host.sounds.played.clear();
        answers.clear();
        answerClick();
        during(moment, [this] { stage.userKey(Key::Escape); });
        play(kHydrogenChloride);
        EXPECT_EQ(host.sounds.played, std::vector<std::string>{kCollide});
        EXPECT_EQ(shots.size(), moment + 2); // the frame that it was pressed in, and the question
        EXPECT_EQ(shots.back().footer, kRepeat);
    }
}

// A scene from the row that tells what it has of its own.
struct Equation {
    std::int32_t scene;
    const char* folder;
    const char* title;
    std::string forward;
    std::string back;
    const char* acid;    // besides water
    const char* base;    // besides the oxonium ion
    double acidFormulaY; // of "_..."
    double acidY;
    double baseY;
};

const Equation kEquations[] = {
    {kAutoprotolysis, "H2O-H2O\\", "Säure-Base Reaktion: Wasser mit Wasser (Autoprotolyse)",
     "Hinreaktion: H<SUB>2</SUB>O + H<SUB>2</SUB>O -> H<SUB>3</SUB>O<SUP>+</SUP> + "
     "OH<SUP>-</SUP>",
     "Rückreaktion: H<SUB>3</SUB>O<SUP>+</SUP> + OH<SUP>-</SUP> -> H<SUB>2</SUB>O + "
     "H<SUB>2</SUB>O",
     "H2O2", "OH", 140, 315, 315},
    {kWeakAcid, "H2O-HAC\\", "Säure-Base Reaktion: Schwache Säure mit Wasser",
     "Hinreaktion: HAc + H<SUB>2</SUB>O -> H<SUB>3</SUB>O<SUP>+</SUP> + Ac<SUP>-</SUP>",
     "Rückreaktion: H<SUB>3</SUB>O<SUP>+</SUP> + Ac<SUP>-</SUP> -> HAc + H<SUB>2</SUB>O", "HAC",
     "AC", 110, 325, 320},
};

class Equilibria : public ReactionTest, public testing::WithParamInterface<std::size_t> {
  protected:
    Equilibria() {
        addAllSprites();
        basin = named("WANNE");
    }
    const Equation& it() const { return kEquations[GetParam()]; }
    std::string named(const std::string& name) const { return it().folder + name; }
    std::string formula(const std::string& name) const { return named("_" + name); }
    ctl_Button& button() {
        return it().scene == kAutoprotolysis ? stage.but_Magnify : stage.but_Acid;
    }

    // `way` from 0, where the partners touch, to 100.
    Sprites educts(std::function<double(double done)> way) const {
        const Equation row = it();
        return {{formula("H2O"), 65,
                 [=](double g) {
                     return Point{345 - way(g), 140};
                 }},
                {formula(row.acid), 65,
                 [=](double g) {
                     return Point{466 + way(g), row.acidFormulaY};
                 }},
                {named("H2O"), 100,
                 [=](double g) {
                     return Point{350 - way(g), 330};
                 }},
                {named(row.acid), 100, [=](double g) {
                     return Point{450 + way(g), row.acidY};
                 }}};
    }
    Sprites products(std::function<double(double done)> way) const {
        const Equation row = it();
        return {{formula("H3O"), 65,
                 [=](double g) {
                     return Point{377 - way(g), 128};
                 }},
                {formula(row.base), 65,
                 [=](double g) {
                     return Point{498 + way(g), 129};
                 }},
                {named("H3O"), 100,
                 [=](double g) {
                     return Point{350 - way(g), 330};
                 }},
                {named(row.base), 100, [=](double g) {
                     return Point{450 + way(g), row.baseY};
                 }}};
    }
    Sprites joined() const {
        const std::string both = it().scene == kAutoprotolysis ? "H2OH2O" : "H2OHAC";
        return {shaking(named(both)), standing(formula(both), 404, 140, 65)};
    }
    static double together(double done) { return 100 - done; }
    static double apart(double done) { return done; }

    void expectRound(Film& film, std::size_t sounds) {
        const std::string& there = it().forward;
        const std::string& back = it().back;
        expectMotion(film, 1.4, educts(together), {there, kEscFooter, sounds + 1});
        expectMotion(film, 2, joined(), {there, kEscFooter, sounds + 1});
        expectMotion(film, 1, products(apart), {there, kEscFooter, sounds + 2});
        expectMotion(film, 1.4, products(together), {back, kEscFooter, sounds + 2});
        expectMotion(film, 2, joined(), {back, kEscFooter, sounds + 2});
        expectMotion(film, 1.4, educts(apart), {back, kEscFooter, sounds + 3});
        expectMotion(film, 3, educts([](double) { return 100.0; }), {back, kEscFooter, sounds + 3});
    }
    static constexpr double kRound = 1.4 + 2 + 1 + 1.4 + 2 + 1.4 + 3; // s
    // ESC so many seconds after the scene has begun.
    void breakOffAfter(double seconds) {
        eachShot = [this, seconds](const Shot& shot) {
            if (shot.time - shots.front().time > seconds && !stage.Aborted) {
                stage.userKey(Key::Escape);
            }
        };
    }
};

INSTANTIATE_TEST_SUITE_P(Both, Equilibria, testing::Values(0, 1));

TEST_P(Equilibria, GoThereAndBackForEver) {
    breakOffAfter(2 * kRound + 2);
    play(it().scene);
    EXPECT_EQ(waits, 0); // no click is asked for
    Film film(shots);
    expectRound(film, 0);
    expectRound(film, 3);
    expectMotion(film, 1.4, educts(together), {it().forward, kEscFooter, 7});
    EXPECT_EQ(host.sounds.played,
              (std::vector<std::string>{kCollide, kReaction, kReaction, kCollide, kReaction,
                                        kReaction, kCollide}));
    EXPECT_TRUE(logged.empty());
}

TEST_P(Equilibria, HaveTheirTitle) {
    std::vector<std::string> titles;
    eachShot = [&](const Shot&) { titles.push_back(paper.of(Mark::Kind::Text).front().text); };
    during(420, [this] { stage.userKey(Key::Escape); }); // in the second half
    play(it().scene);
    EXPECT_EQ(std::count(titles.begin(), titles.end(), it().title),
              static_cast<std::ptrdiff_t>(titles.size()));
    EXPECT_EQ(paper.cleared, 2);
    EXPECT_EQ(shots[420].caption, it().back);
}

TEST_P(Equilibria, ShowTheirButtonWhileTheyRun) {
    during(500, [this] {
        EXPECT_EQ(button().place(), (Rect{405, 545, 365, 30}));
        EXPECT_DOUBLE_EQ(button().font().size, 16.2); // 18 points of the design
        stage.userKey(Key::Escape);
    });
    play(it().scene);
    const bool water = it().scene == kAutoprotolysis;
    for (std::size_t i = 0; i <= 500; ++i) {
        ASSERT_EQ(shots[i].magnify, water) << i;
        ASSERT_EQ(shots[i].acid, !water) << i;
    }
    EXPECT_FALSE(shots.back().magnify || shots.back().acid);
    EXPECT_FALSE(stage.but_Magnify.visible() || stage.but_Acid.visible());
}

TEST_P(Equilibria, PlaceTheirButtonInPixels) {
    during(0, [this] { resize(stage, {1600, 900}); });
    breakOffAfter(1.4 + 2 + 1 + 0.5); // the second half has set it anew, for one of them
    play(it().scene);
    EXPECT_EQ(button().place(), (Rect{810, 818, 730, 45})); // 817.5
}

TEST_P(Equilibria, OpenTheLensByTheirButton) {
    int opened = 0;
    double since = 0;
    eachLook = [&] {
        auto* lens = dynamic_cast<frm_AppMagnify*>(host.windows.top());
        if (lens == nullptr) {
            return;
        }
        if (opened == 0) {
            since = host.clock.now;
            EXPECT_EQ(lens->ShowWater, it().scene == kAutoprotolysis);
            EXPECT_EQ(lens->ShowAcid, it().scene == kWeakAcid);
            EXPECT_EQ(lens->SourceLeft, 0);
            EXPECT_EQ(lens->SourceTop, 0);
            EXPECT_EQ(lens->SourceRight, 800);
            EXPECT_EQ(lens->SourceBottom, 600);
            EXPECT_EQ(lens->SourceScale, 1);
        }
        ++opened;
        if (host.clock.now > since + 2) {
            lens->userKey(Key::Escape);
        }
    };
    during(30, [this] { button().userClicked(); });
    during(31, [this] {
        EXPECT_FALSE(stage.Clicked); // the button's click isn't one on the stage
        EXPECT_FALSE(stage.Aborted);
        EXPECT_TRUE(button().visible());
    });
    during(60, [this] { stage.userKey(Key::Escape); });
    play(it().scene);
    EXPECT_GT(opened, 100);
    EXPECT_GT(shots[31].time, shots[30].time + 2);
    expectStage(shots[31], educts(together), 100); // time has gone on meanwhile
    EXPECT_EQ(shots.size(), 62U);
}

TEST_P(Equilibria, LeaveTheirButtonTheKeysThatPressIt) {
    int opened = 0;
    eachLook = [&] {
        if (auto* lens = dynamic_cast<frm_AppMagnify*>(host.windows.top())) {
            ++opened;
            lens->userKey(Key::Escape);
        }
    };
    during(30, [this] {
        stage.focusNext();
        EXPECT_EQ(stage.focus(), &button());
        EXPECT_TRUE(stage.userKey(Key::Enter, "\r"));
        EXPECT_TRUE(stage.userKey(Key::Other, " "));
        EXPECT_FALSE(stage.Clicked);
        EXPECT_TRUE(stage.userKey(Key::Other, "x"));
        EXPECT_TRUE(stage.Clicked);
        stage.userKey(Key::Escape);
    });
    play(it().scene);
    EXPECT_GT(opened, 0);
}

// Each scene with as many clicks as it asks for.
struct SceneRow {
    std::int32_t scene;
    int clicks;
};

constexpr SceneRow kScenes[] = {{kHydrogenChloride, 1},
                                {kAutoprotolysis, 0},
                                {kWeakAcid, 0},
                                {kNeutralisation, 3},
                                {kPrecipitation, 3}};

class Scenes : public ReactionTest, public testing::WithParamInterface<std::size_t> {
  protected:
    Scenes() { addAllSprites(); }
    const SceneRow& row() const { return kScenes[GetParam()]; }
    bool endless() const { return row().clicks == 0; }
    // The scene to its end, or for one round and a bit if it has none.
    void playOnce() {
        for (int i = 0; i < row().clicks; ++i) {
            answerClick();
        }
        const auto before = eachShot;
        eachShot = [this, before](const Shot& shot) {
            if (before) {
                before(shot);
            }
            if (endless() && shot.time - shots.front().time > 14) {
                stage.userKey(Key::Escape);
            }
        };
        play(row().scene);
        eachShot = before;
        answers.clear();
    }
    void expectSame(const std::vector<Shot>& one, const std::vector<Shot>& other, bool shake) {
        ASSERT_EQ(one.size(), other.size());
        for (std::size_t i = 0; i < one.size(); ++i) {
            ASSERT_NEAR(one[i].time - one[0].time, other[i].time - other[0].time, 1e-6) << i;
            ASSERT_EQ(one[i].order, other[i].order) << i;
            ASSERT_TRUE(shake || one[i].sprites == other[i].sprites) << i;
            ASSERT_EQ(one[i].caption, other[i].caption) << i;
            ASSERT_EQ(one[i].footer, other[i].footer) << i;
        }
    }
};

INSTANTIATE_TEST_SUITE_P(All, Scenes, testing::Range(std::size_t{0}, std::size(kScenes)));

TEST_P(Scenes, TakeAsLongWithoutSounds) {
    playOnce();
    const std::vector<Shot> loud = shots;
    const bool sounds = !host.sounds.played.empty();
    EXPECT_EQ(sounds, row().scene != kNeutralisation && row().scene != kPrecipitation);
    host.sounds.played.clear();
    host.soundOptions.Mode = 2;
    playOnce();
    EXPECT_TRUE(host.sounds.played.empty());
    expectSame(loud, shots, true);
}

TEST_P(Scenes, ShowTheSameTwice) {
    host.random.seed(7);
    playOnce();
    const std::vector<Shot> first = shots;
    host.random.seed(7);
    playOnce();
    expectSame(first, shots, false);
}

// Clicks and keys in every frame go for nothing: only a stage that waits takes them.
TEST_P(Scenes, ArentHurriedByAnImpatientLearner) {
    host.random.seed(7);
    playOnce();
    const std::vector<Shot> calm = shots;
    host.random.seed(7);
    eachShot = [this](const Shot& shot) {
        if (shot.footer != kGoOn) { // there a click counts
            host.windows.events.push_back([this] {
                stage.Form_MouseDown(400, 300, MouseButton::Left);
                stage.userKey(Key::Other, "x");
            });
        }
    };
    playOnce();
    expectSame(calm, shots, false);
}

TEST_P(Scenes, EndAtAnyMomentAndLeaveNothingBehind) {
    playOnce();
    const std::size_t frames = shots.size();
    for (std::size_t moment = 0; moment < frames; moment += 7) {
        host.sounds.played.clear();
        std::size_t sounds = 0;
        during(moment, [this, moment, &sounds] {
            sounds = host.sounds.played.size();
            switch (moment % 4) {
            case 0:
                stage.userKey(Key::Escape);
                break;
            case 1:
                stage.Form_MouseDown(5, 5, MouseButton::Right);
                break;
            case 2:
                host.windows.userClosed(stage);
                break;
            default:
                host.windows.Unload(stage);
                break;
            }
        });
        playOnce();
        // What is left is the question at the end, and before it the footer of a wait.
        ASSERT_LE(shots.size(), moment + 4) << moment;
        ASSERT_EQ(host.sounds.played.size(), sounds) << moment;
        ASSERT_FALSE(stage.loaded() || stage.shown()) << moment;
        ASSERT_FALSE(stage.tmr_Startup.enabled()) << moment;
        ASSERT_FALSE(stage.but_Magnify.visible() || stage.but_Acid.visible()) << moment;
        ASSERT_EQ(host.windows.top(), nullptr) << moment;
        host.windows.events.clear();
    }
}

TEST_P(Scenes, ScaleToASmallStage) {
    std::vector<Shot> large;
    host.random.seed(7);
    playOnce();
    large = shots;
    host.random.seed(7);
    host.windows.events.push_back([this] { resize(stage, {640, 480}); });
    playOnce();
    ASSERT_EQ(shots.size(), large.size());
    for (std::size_t i = 0; i < shots.size(); ++i) {
        ASSERT_EQ(shots[i].order, large[i].order);
        for (const auto& [name, placed] : shots[i].sprites) {
            const Placed& other = large[i].sprites.at(name);
            ASSERT_NEAR(placed.x, other.x * 0.8, 1) << name;
            ASSERT_NEAR(placed.y, other.y * 0.8, 1) << name;
            ASSERT_NEAR(placed.width, other.width * 0.8, 1) << name;
        }
    }
}

class BareScenes : public StageTest, public testing::WithParamInterface<std::size_t> {};

INSTANTIATE_TEST_SUITE_P(All, BareScenes, testing::Range(std::size_t{0}, std::size(kScenes)));

TEST_P(BareScenes, PlayWithoutAnyFile) {
    for (int i = 0; i < kScenes[GetParam()].clicks; ++i) {
        answerClick();
    }
    eachShot = [this](const Shot& shot) {
        if (shot.time > 20) {
            stage.userKey(Key::Escape);
        }
    };
    play(kScenes[GetParam()].scene);
    EXPECT_GT(shots.size(), 200U);
    const std::set<std::string> names(logged.begin(), logged.end());
    EXPECT_EQ(names.size(), logged.size()); // each missing sprite is told once
    EXPECT_GE(names.size(), 5U);
    EXPECT_TRUE(graphics.loads.empty());
}

} // namespace
} // namespace quendal::test
