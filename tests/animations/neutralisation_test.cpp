// Hydrochloric acid with sodium hydroxide, frame by frame.
#include "clicked_scene.h"

namespace quendal::test {
namespace {

using Sprites = std::vector<Moving>;

class Neutralisation : public ClickedScene {
  protected:
    Neutralisation() : ClickedScene(5, 3) {
        addAllSprites();
        basin = "H3O-CL\\WANNE4";
    }
    static std::string named(const char* name) { return std::string("H3O-CL\\") + name; }

    const std::string given = "Vorlage: H<SUB>3</SUB>O<SUP>+</SUP> und Cl<SUP>-</SUP>";
    const std::string added = "Zugabe von: Na<SUP>+</SUP> und OH<SUP>-</SUP>";
    const std::string reaction =
        "Reaktion von: H<SUB>3</SUB>O<SUP>+</SUP> und OH<SUP>-</SUP> zu 2H<SUB>2</SUB>O";
    const std::string water = "Das entstandene Wasser 'vermehrt' das umgebende Wasser";
    const std::string end =
        "Letztendlich wurde ein H<SUB>3</SUB>O<SUP>+</SUP> durch ein Na<SUP>+</SUP> ersetzt.";

    const Sprites acid{standing(named("H3O"), 300, 330), standing(named("CL"), 500, 330)};
    const Sprites falling{{named("OH"), 100,
                           [](double g) {
                               return Point{350, g * 2 + 120};
                           }},
                          {named("NA"), 100,
                           [](double g) {
                               return Point{450, g * 2 + 130};
                           }},
                          {named("H3O"), 100,
                           [](double g) {
                               return Point{300 - g, 330};
                           }},
                          {named("CL"), 100, [](double g) {
                               return Point{500 + g, 330};
                           }}};
    const Sprites fallen{standing(named("OH"), 350, 320), standing(named("NA"), 450, 330),
                         standing(named("H3O"), 200, 330), standing(named("CL"), 600, 330)};
    const Sprites meeting{{named("H3O"), 100,
                           [](double g) {
                               return Point{200 + 0.3 * g, 330};
                           }},
                          {named("OH"), 100,
                           [](double g) {
                               return Point{350 - 0.3 * g, 320};
                           }},
                          standing(named("CL"), 600, 330),
                          standing(named("NA"), 450, 330)};
    const Sprites parting{{named("H2O"), 100,
                           [](double g) {
                               return Point{230 - 0.1 * g, 330};
                           }},
                          {named("H2O-2"), 100,
                           [](double g) {
                               return Point{320 + 0.1 * g, 330};
                           }},
                          standing(named("CL"), 600, 330),
                          standing(named("NA"), 450, 330)};
    const Sprites parted{standing(named("H2O"), 220, 330), standing(named("H2O-2"), 330, 330),
                         standing(named("CL"), 600, 330), standing(named("NA"), 450, 330)};
    const Sprites left{standing(named("H2O"), 220, 330, 0), standing(named("H2O-2"), 330, 330, 0),
                       standing(named("CL"), 600, 330), standing(named("NA"), 450, 330)};

    // The water grows smaller from frame to frame.
    void expectShrinking(Film& film) {
        const std::vector<Shot> motion = film.motion(1);
        const double start = motion.front().time;
        for (const Shot& shot : motion) {
            const double zoom = 100 - std::min(shot.time - start, 1.0) * 100;
            Sprites sprites = parted;
            sprites[0].zoom = sprites[1].zoom = zoom;
            expectStage(shot, sprites, 0);
            expectLook(shot, {water, "", 0});
        }
        ASSERT_GE(motion.size(), 60U);
    }
    void expectRun(Film& film) override {
        expectWait(film, acid, {given, "", 0});
        expectMotion(film, 3, falling, {added, "", 0});
        expectWait(film, fallen, {added, "", 0});
        expectMotion(film, 1, meeting, {reaction, "", 0});
        expectMotion(film, 1, parting, {reaction, "", 0});
        expectStill(film, parted, {reaction, "", 0});
        expectWait(film, parted, {water, "", 0});
        expectShrinking(film);
        expectStill(film, left, {end, "", 0});
        expectStill(film, left, {end, kRepeat, 0});
    }
};

TEST_F(Neutralisation, PlaysFrameByFrame) {
    expectOneRun();
}

TEST_F(Neutralisation, PlaysAgainToTheSameEnd) {
    expectTwoRuns(7);
}

TEST_F(Neutralisation, HasItsTextsInTheirSizes) {
    std::map<std::string, double> sizes = textSizes();
    EXPECT_DOUBLE_EQ(sizes["Neutralisation: Salzsäure mit Natronlauge"], 22.5);
    EXPECT_DOUBLE_EQ(sizes["Vorlage: H"], 27);
    EXPECT_DOUBLE_EQ(sizes["Zugabe von: Na"], 27);
    EXPECT_DOUBLE_EQ(sizes["Reaktion von: H"], 27);
    EXPECT_DOUBLE_EQ(sizes[water], 18);                                   // 20 points of the design
    EXPECT_NEAR(sizes["Letztendlich wurde ein H"], 20 * 96 / 72.0, 1e-9); // the default
}

} // namespace
} // namespace quendal::test
