// HCl in water, frame by frame.
#include "reaction_film.h"

#include <algorithm>

namespace quendal::test {
namespace {

using Sprites = std::vector<Moving>;

constexpr std::int32_t kHydrogenChloride = 1; // the scene
constexpr const char* kStepFooter = "Mit Mausklick weiter zum nächsten Schritt. Mit ESC beenden";
constexpr const char* kCollide = "data/sounds\\collide.wav";
constexpr const char* kReaction = "data/sounds\\ex.wav";

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
    const Sprites joined{shaking(named("H2OHCL"), 400, 330),
                         standing(named("_H2OHCL"), 410, 135, 65)};
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

} // namespace
} // namespace quendal::test
