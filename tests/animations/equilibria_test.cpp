// The two equilibria, there and back, frame by frame.
#include "particles/frm_AppMagnify.h"
#include "reaction_film.h"

#include <algorithm>

namespace quendal::test {
namespace {

using Sprites = std::vector<Moving>;

constexpr std::int32_t kAutoprotolysis = 3; // the scenes
constexpr std::int32_t kWeakAcid = 4;
constexpr const char* kEscFooter = "Mit ESC beenden";
constexpr const char* kCollide = "data/sounds\\collide.wav";
constexpr const char* kReaction = "data/sounds\\ex.wav";

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
        return {shaking(named(both), 400, 330), standing(formula(both), 404, 140, 65)};
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

} // namespace
} // namespace quendal::test
