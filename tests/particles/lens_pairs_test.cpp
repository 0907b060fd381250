#include "lens_script.h"
#include "particles/lens_pairs.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>

namespace quendal::test {
namespace {

constexpr double kNever = 0.999; // no chance below a whole comes true

// A scene of which only the first pair is looked at; all others stand still, `others` of them as
// ions that nothing happens to.
class Pairs : public testing::TestWithParam<PairKind> {
  protected:
    ScriptedLens script;
    PairScene scene{GetParam(), script.world()};

    LensParticle& pair() { return scene.particles()[0]; }
    bool water() const { return GetParam() == PairKind::Water; }
    int limit() const { return water() ? 3 : 5; }

    void keepActive(int others) {
        for (int i = 1; i <= others; ++i) {
            scene.particles()[static_cast<std::size_t>(i)].State = 2;
        }
    }
    // One step of the first pair with these numbers for it.
    void step(std::deque<double> numbers) {
        script->numbers = std::move(numbers);
        script->otherwise = kNever;
        script->sounds.clear();
        scene.step();
    }
};

INSTANTIATE_TEST_SUITE_P(Both, Pairs, testing::Values(PairKind::Water, PairKind::AceticAcid));

TEST_P(Pairs, StartWithTheChanceOfTenInThousandsOfThoseActive) {
    for (int active = 0; active <= 6; ++active) {
        for (const double offset : {-1e-9, 1e-9}) {
            for (LensParticle& each : scene.particles()) {
                each = {};
            }
            keepActive(active);
            pair().Gap = 2;
            step({10.0 / (active * 1000 + 1500) + offset});
            const bool starts = offset < 0 && active < limit();
            EXPECT_EQ(pair().State, starts ? 1 : 0) << active << " active, offset " << offset;
            EXPECT_EQ(pair().Gap, 5);
            EXPECT_EQ(script->sounds, starts ? kCollide : kNoSound);
        }
    }
}

TEST_P(Pairs, OneThatStartsCountsForThoseAfterIt) {
    script->otherwise = 0; // everybody wants to start at once
    scene.step();
    EXPECT_EQ(scene.active(), limit());
    EXPECT_EQ(script->sounds.size(), static_cast<std::size_t>(limit()));
    EXPECT_EQ(script->drawn, PairScene::kPairs); // the number is drawn even when none may start
}

TEST_P(Pairs, CloseUpAndStayTogetherForSixFrames) {
    for (const auto& [from, next] : {std::pair{1, 2}, std::pair{4, 5}}) {
        pair() = {.State = from, .Gap = 5, .Wait = 3};
        for (int gap = 4; gap >= 0; --gap) {
            step({});
            EXPECT_EQ(pair().Gap, gap);
            EXPECT_EQ(pair().Wait, 0);
            EXPECT_EQ(pair().State, from);
        }
        for (int wait = 1; wait <= 5; ++wait) {
            step({});
            EXPECT_EQ(pair().Wait, wait);
            EXPECT_EQ(pair().State, from);
            EXPECT_EQ(script->sounds, kNoSound);
        }
        step({});
        EXPECT_EQ(pair().State, next);
        EXPECT_EQ(script->sounds, kBurst);
    }
}

TEST_P(Pairs, MoveApartUntilTheGapIsFive) {
    for (const auto& [from, next] : {std::pair{2, 3}, std::pair{5, 0}}) {
        pair() = {.State = from, .Gap = 0, .Wait = 6};
        for (int gap = 1; gap <= 5; ++gap) {
            step({});
            EXPECT_EQ(pair().Gap, gap);
            EXPECT_EQ(pair().State, from);
        }
        step({});
        EXPECT_EQ(pair().State, next);
        EXPECT_EQ(pair().Wait, 0);
        EXPECT_EQ(script->sounds, kNoSound);
    }
}

TEST_P(Pairs, StayIonsForSixFramesAtLeast) {
    keepActive(2); // three with the pair itself
    pair() = {.State = 3, .Gap = 5, .Wait = 0};
    for (int wait = 1; wait <= 5; ++wait) {
        step({kNever}); // the number goes to the pair behind: none is drawn for this one yet
        EXPECT_EQ(pair().Wait, wait);
        EXPECT_EQ(pair().State, 3);
    }
    step({0.1}); // not below ten in a hundred
    EXPECT_EQ(pair().State, 3);
    step({0.0999});
    EXPECT_EQ(pair().State, 4);
    EXPECT_EQ(pair().Wait, 7);
    EXPECT_EQ(script->sounds, kCollide);
}

TEST_P(Pairs, DrawNoNumberBeforeTheSixthFrameAsIons) {
    pair() = {.State = 3, .Gap = 5, .Wait = 4};
    step({});
    EXPECT_EQ(script->drawn, PairScene::kPairs - 1);
    step({});
    EXPECT_EQ(script->drawn, 2 * PairScene::kPairs - 1);
}

TEST_P(Pairs, OfAcidStayDissociatedUnlessThreeAreActive) {
    for (int others = 0; others <= 3; ++others) {
        for (LensParticle& each : scene.particles()) {
            each = {};
        }
        keepActive(others);
        pair() = {.State = 3, .Gap = 5, .Wait = 10};
        step({0});
        const bool returns = water() || others + 1 >= 3;
        EXPECT_EQ(pair().State, returns ? 4 : 3) << others + 1 << " active";
    }
}

TEST_P(Pairs, NeverExceedTheLimitAndComeBackToRest) {
    std::mt19937_64 engine(7);
    std::uniform_real_distribution<double> uniform(0, 1);
    bool returned = false;
    std::vector<LensSound> sounds;
    PairScene lively(GetParam(), {[&] { return uniform(engine); },
                                  [&](LensSound sound) { sounds.push_back(sound); }});
    lively.place();
    int most = 0;
    for (int i = 0; i < 20000; ++i) {
        const int before = lively.active();
        lively.step();
        returned = returned || lively.active() < before;
        most = std::max(most, lively.active());
        for (const LensParticle& each : lively.particles()) {
            ASSERT_TRUE(each.State >= 0 && each.State <= 5);
            ASSERT_TRUE(each.Gap >= 0 && each.Gap <= 5);
        }
    }
    EXPECT_EQ(most, limit());
    EXPECT_TRUE(returned);
    EXPECT_GT(sounds.size(), 100U);
}

TEST_P(Pairs, ArePlacedApart) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        std::mt19937_64 engine(seed);
        std::uniform_real_distribution<double> uniform(0, 1);
        PairScene placed(GetParam(), {[&] { return uniform(engine); }, [](LensSound) {}});
        placed.place();
        const auto pairs = placed.particles();
        ASSERT_EQ(pairs.size(), 50U);
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            ASSERT_TRUE(pairs[i].PX >= 20 && pairs[i].PX < 260) << pairs[i].PX;
            ASSERT_TRUE(pairs[i].PY >= 20 && pairs[i].PY < 240) << pairs[i].PY;
            ASSERT_EQ(pairs[i].State, 0);
            ASSERT_EQ(pairs[i].Gap, 5);
            for (std::size_t j = 0; j < i; ++j) {
                ASSERT_TRUE(std::abs(pairs[i].PX - pairs[j].PX) > 30 ||
                            std::abs(pairs[i].PY - pairs[j].PY) > 15)
                    << "seed " << seed;
            }
        }
    }
}

TEST_P(Pairs, TakeTheirPlaceFromTwoNumbersAndDrawAgainWhereAnotherStands) {
    script->numbers = {0.5, 0.25, 0.51, 0.26, 0.999, 0.999};
    script->otherwise = 0;
    scene.place();
    EXPECT_EQ(scene.particles()[0].PX, 140);
    EXPECT_EQ(scene.particles()[0].PY, 75);
    EXPECT_EQ(scene.particles()[1].PX, 259); // (142, 77) was too near
    EXPECT_EQ(scene.particles()[1].PY, 239);
}

TEST_P(Pairs, CountAsTooNearWithinThirtyAndFifteen) {
    // (20, 20), then (50, 35): still within; (51, 20): apart.
    script->numbers = {0, 0, 30.5 / 240, 15.5 / 220, 31.5 / 240, 0};
    script->otherwise = 0.9;
    scene.place();
    EXPECT_EQ(scene.particles()[1].PX, 51);
    EXPECT_EQ(scene.particles()[1].PY, 20);
}

TEST_P(Pairs, FindPlacesWhenChanceRepeatsItself) {
    for (const double stuck : {0.0, 0.5, 0.9999}) {
        script->numbers.clear();
        script->otherwise = stuck;
        scene.place(); // must come back
        const auto pairs = scene.particles();
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            EXPECT_TRUE(pairs[i].PX >= 20 && pairs[i].PX < 260);
            EXPECT_TRUE(pairs[i].PY >= 20 && pairs[i].PY < 240);
            for (std::size_t j = 0; j < i; ++j) {
                EXPECT_TRUE(std::abs(pairs[i].PX - pairs[j].PX) > 30 ||
                            std::abs(pairs[i].PY - pairs[j].PY) > 15);
            }
        }
    }
}

TEST_P(Pairs, BeginAnewWhenTheyArePlacedAgain) {
    pair() = {.State = 3, .Gap = 1, .Wait = 9};
    std::mt19937_64 engine(3);
    std::uniform_real_distribution<double> uniform(0, 1);
    for (int i = 0; i < 5000; ++i) {
        script->numbers.push_back(uniform(engine));
    }
    scene.place();
    EXPECT_EQ(scene.active(), 0);
    EXPECT_EQ(pair().Wait, 0);
}

using CircleMark = RecordingSurface::CircleMark;

class PairDrawing : public testing::Test {
  protected:
    ScriptedLens script;
    PairScene scene{PairKind::AceticAcid, script.world()};
    RecordingSurface surface{280, 249};

    // The circles of the first pair at (100, 80).
    std::vector<CircleMark> draw(int state, int gap) {
        for (LensParticle& each : scene.particles()) {
            each = {.PX = -500, .PY = -500};
        }
        scene.particles()[0] = {.PX = 100, .PY = 80, .State = state, .Gap = gap};
        surface.Clear();
        scene.draw(surface, {1, 1});
        std::vector<CircleMark> circles = surface.circles;
        circles.resize(circles.size() - 49 * 5); // the others follow
        return circles;
    }
};

std::vector<CircleMark> plainPair(int gap, double proton, int atoms, int partner) {
    const double g = gap;
    return {{{93 - g, 74}, 3, palette(atoms), kBlack},
            {{93 - g, 86}, 3, palette(atoms), kBlack},
            {{94 - g, 80}, 5, palette(1), kBlack},
            {{106 + g, 80}, 5, palette(partner), kBlack},
            {{proton, 80}, 3, palette(atoms), kBlack}};
}

TEST_F(PairDrawing, AtRestIsDullAndHasItsProtonOnTheRight) {
    EXPECT_EQ(draw(0, 5), plainPair(5, 105, 7, 4));
}

TEST_F(PairDrawing, IsBrightWithoutHaloWhileTheProtonIsOnTheRight) {
    for (const int state : {1, 5}) {
        for (const int gap : {0, 3, 5}) {
            EXPECT_EQ(draw(state, gap), plainPair(gap, 100 + gap, 15, 12));
        }
    }
}

TEST_F(PairDrawing, HasHalosAndTheProtonOnTheLeftWhenItHasMoved) {
    for (const int state : {2, 3, 4}) {
        for (const int gap : {0, 5}) {
            const auto plain = plainPair(gap, 94 - gap, 15, 12);
            const std::vector<CircleMark> circles = draw(state, gap);
            ASSERT_EQ(circles.size(), 15U);
            for (std::size_t i = 0; i < 5; ++i) {
                const Color halo = palette(i == 3 ? 9 : 12);
                EXPECT_EQ(circles[2 * i],
                          (CircleMark{plain[i].centre, plain[i].radius + 2, halo, halo}));
                EXPECT_EQ(circles[2 * i + 1], plain[i]);
                EXPECT_EQ(circles[10 + i], plain[i]);
            }
        }
    }
    EXPECT_TRUE(surface.boxes.empty());
    EXPECT_EQ(surface.fillStyle(), FillStyle::None);
}

} // namespace
} // namespace quendal::test
