// Silver ions with chloride ions, frame by frame.
#include "clicked_scene.h"

namespace quendal::test {
namespace {

using Sprites = std::vector<Moving>;

class Precipitation : public ClickedScene {
  protected:
    Precipitation() : ClickedScene(6, 3) {
        addAllSprites();
        basin = "FÄLLUNG\\WANNE";
    }
    static std::string named(const char* name) { return std::string("FÄLLUNG\\") + name; }

    const std::string given = "Vorlage von: Cl<SUP>-</SUP> und Na<SUP>+</SUP>";
    const std::string added = "Zugabe von: Ag<SUP>+</SUP> und NO<SUB>3</SUB><SUP>-</SUP>";
    const std::string reaction = "Reaktion von: Ag<SUP>+</SUP> und Cl<SUP>-</SUP>";
    const std::string end = "Das gebildete Silberchlorid setzt sich als Bodenkörper unten ab";

    const Sprites salt{{named("CL"), 100,
                        [](double g) {
                            return Point{300, 100 + 2 * g};
                        }},
                       {named("NA"), 100, [](double g) {
                            return Point{500, 100 + 2 * g};
                        }}};
    const Sprites fallen{standing(named("CL"), 300, 300), standing(named("NA"), 500, 300)};
    const Sprites silver{{named("AG"), 100,
                          [](double g) {
                              return Point{350, 100 + 2 * g};
                          }},
                         {named("NO3"), 100,
                          [](double g) {
                              return Point{450, 100 + 2 * g};
                          }},
                         {named("CL"), 100,
                          [](double g) {
                              return Point{300 - g, 300};
                          }},
                         {named("NA"), 100, [](double g) {
                              return Point{500 + g, 300};
                          }}};
    const Sprites all{standing(named("AG"), 350, 300), standing(named("NO3"), 450, 300),
                      standing(named("CL"), 200, 300), standing(named("NA"), 600, 300)};
    const Sprites meeting{{named("CL"), 100,
                           [](double g) {
                               return Point{200 + 0.35 * g, 300};
                           }},
                          {named("AG"), 100,
                           [](double g) {
                               return Point{350 - 0.35 * g, 300};
                           }},
                          standing(named("NA"), 600, 300),
                          standing(named("NO3"), 450, 300)};
    const Sprites sinking{{named("CL"), 100,
                           [](double g) {
                               return Point{235 + 115 * g / 100, 300 + 150 * g / 100};
                           }},
                          {named("AG"), 100,
                           [](double g) {
                               return Point{315 + 115 * g / 100, 300 + 150 * g / 100};
                           }},
                          {named("NA"), 100,
                           [](double g) {
                               return Point{600 - g * 2 / 3, 300};
                           }},
                          standing(named("NO3"), 450, 300)};
    const Sprites sunk{standing(named("CL"), 350, 450), standing(named("AG"), 430, 450),
                       standing(named("NA"), 600 - 200.0 / 3, 300),
                       standing(named("NO3"), 450, 300)};

    void expectRun(Film& film) override {
        expectMotion(film, 2, salt, {given, "", 0});
        expectWait(film, fallen, {given, "", 0});
        expectMotion(film, 2, silver, {added, "", 0});
        expectWait(film, all, {added, "", 0});
        expectMotion(film, 1, meeting, {reaction, "", 0});
        expectMotion(film, 2, sinking, {reaction, "", 0});
        expectWait(film, sunk, {end, "", 0});
        expectStill(film, sunk, {end, kRepeat, 0});
    }
};

TEST_F(Precipitation, PlaysFrameByFrame) {
    expectOneRun();
}

TEST_F(Precipitation, PlaysAgainToTheSameEnd) {
    expectTwoRuns(5);
}

TEST_F(Precipitation, HasItsTextsInTheirSizes) {
    std::map<std::string, double> sizes = textSizes();
    EXPECT_DOUBLE_EQ(sizes["Fällung: Silberionen mit Chloridionen"], 22.5);
    EXPECT_DOUBLE_EQ(sizes["Vorlage von: Cl"], 27);
    EXPECT_DOUBLE_EQ(sizes["Zugabe von: Ag"], 27);
    EXPECT_DOUBLE_EQ(sizes["Reaktion von: Ag"], 27);
    EXPECT_DOUBLE_EQ(sizes[end], 18); // 20 points of the design
}

} // namespace
} // namespace quendal::test
