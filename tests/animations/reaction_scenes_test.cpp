// What all reaction scenes have in common.
#include "reaction_film.h"

#include <iterator>
#include <set>

namespace quendal::test {
namespace {

constexpr std::int32_t kHydrogenChloride = 1;
constexpr std::int32_t kAutoprotolysis = 3;
constexpr std::int32_t kWeakAcid = 4;
constexpr std::int32_t kNeutralisation = 5;
constexpr std::int32_t kPrecipitation = 6;

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
