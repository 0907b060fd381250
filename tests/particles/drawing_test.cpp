#include "particles/cls_Molecule.h"
#include "shell/session/session.h"
#include "support/fake_roots.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quendal::test {
namespace {

using CircleMark = RecordingSurface::CircleMark;
using BoxMark = RecordingSurface::BoxMark;

class Drawing : public testing::Test {
  protected:
    Drawing() {
        session().ParticleBackColor = {153, 204, 204};
        host.clock.now = 0.3; // the dark half of a blink
    }
    ~Drawing() override { resetSession(); }

    FakeHost host{5};
    RecordingSurface surface{400, 300};
    cls_Molecule p;

    // The particle of this sort at (200, 150) px.
    void draw(int sort) {
        surface.Clear();
        p.setSORTREAL(sort);
        p.PosX = p.PosY = 50;
        p.DRAW(surface);
    }
    std::vector<CircleMark> only(double radius, Color fill) {
        return {{{200, 150}, radius, fill, kBlack}};
    }
};

const BoxMark kMinusOf10{{194, 149}, {206, 151}, kWhite};
const BoxMark kUprightOf10{{199, 144}, {201, 156}, kWhite};

BoxMark in(BoxMark mark, Color color) {
    mark.color = color;
    return mark;
}

TEST_F(Drawing, Water) {
    draw(1);
    const double h = 5;
    EXPECT_EQ(surface.circles,
              (std::vector<CircleMark>{{{200 - 10 - h / 3, 155}, 5, kWhite, kBlack},
                                       {{200 + 10 + h / 3, 155}, 5, kWhite, kBlack},
                                       {{200, 150}, 10, palette(1), kBlack}}));
    EXPECT_TRUE(surface.boxes.empty());
    draw(-1);
    EXPECT_TRUE(surface.boxes.empty());
    EXPECT_EQ(surface.fillStyle(), FillStyle::Solid);
}

TEST_F(Drawing, OneCircleKinds) {
    draw(3);
    EXPECT_EQ(surface.circles, only(8, palette(2)));
    draw(5);
    EXPECT_EQ(surface.circles, only(8, palette(9)));
    draw(12);
    EXPECT_EQ(surface.circles, only(10, palette(7)));
    draw(13);
    EXPECT_EQ(surface.circles, only(10, palette(14)));
}

TEST_F(Drawing, AtomAtTheRight) {
    for (const auto& [sort, body] : {std::pair{7, 2}, std::pair{10, 12}}) {
        draw(sort);
        EXPECT_EQ(surface.circles,
                  (std::vector<CircleMark>{{{212.5, 150}, 5, kWhite, kBlack},
                                           {{200, 150}, 10, palette(body), kBlack}}));
        EXPECT_TRUE(surface.boxes.empty());
    }
}

TEST_F(Drawing, HaloComesFirstAtTheSameCentres) {
    draw(9);
    const Color halo = palette(9);
    EXPECT_EQ(surface.circles, (std::vector<CircleMark>{{{212.5, 150}, 7, halo, halo},
                                                        {{200, 150}, 12, halo, halo},
                                                        {{212.5, 150}, 5, kWhite, kBlack},
                                                        {{200, 150}, 10, palette(1), kBlack}}));
    draw(11);
    EXPECT_EQ(surface.circles, (std::vector<CircleMark>{{{200, 150}, 10, halo, halo},
                                                        {{200, 150}, 8, palette(12), kBlack}}));
}

TEST_F(Drawing, HydroniumHasThreeAtoms) {
    draw(8);
    ASSERT_EQ(surface.circles.size(), 8u);
    EXPECT_EQ(surface.circles[2], (CircleMark{{200, 150 - 12.5}, 7, palette(12), palette(12)}));
    EXPECT_EQ(surface.circles[6], (CircleMark{{200, 150 - 12.5}, 5, kWhite, kBlack}));
    EXPECT_EQ(surface.circles[7], (CircleMark{{200, 150}, 10, palette(1), kBlack}));
    EXPECT_TRUE(surface.boxes.empty());
}

TEST_F(Drawing, SilverChlorideCarriesBothSigns) {
    for (const int sort : {14, -14}) {
        draw(sort);
        EXPECT_EQ(surface.circles,
                  (std::vector<CircleMark>{{{210.5, 150}, 10, palette(7), kBlack},
                                           {{189.5, 150}, 10, palette(2), kBlack}}));
        EXPECT_EQ(surface.boxes, (std::vector<BoxMark>{{{183.5, 149}, {195.5, 151}, kWhite},
                                                       {{204.5, 149}, {216.5, 151}, kWhite},
                                                       {{209.5, 144}, {211.5, 156}, kWhite}}));
        EXPECT_EQ(surface.order, "ccbbb");
    }
}

TEST_F(Drawing, SignsBySort) {
    const std::vector<BoxMark> none;
    const std::vector<BoxMark> plus{kMinusOf10, kUprightOf10};
    const std::vector<BoxMark> blackPlus{in(kMinusOf10, kBlack), in(kUprightOf10, kBlack)};
    for (const int sort : {5, 7, 8, 9, 10, 11, 13, -7, -10, -2}) {
        draw(sort);
        EXPECT_EQ(surface.boxes, none) << sort;
    }
    draw(-8);
    EXPECT_EQ(surface.boxes, plus);
    draw(-9);
    EXPECT_EQ(surface.boxes, std::vector{kMinusOf10});
    draw(-13);
    EXPECT_EQ(surface.boxes, std::vector{in(kMinusOf10, kBlack)});
    for (const int sort : {12, -12}) {
        draw(sort);
        EXPECT_EQ(surface.boxes, blackPlus);
    }
    draw(-5);
    ASSERT_EQ(surface.boxes.size(), 2u);
    EXPECT_EQ(surface.boxes[0].color, kWhite);
    EXPECT_DOUBLE_EQ(surface.boxes[0].from.x, 200 - 0.6 * 8);
    draw(-11);
    EXPECT_EQ(surface.boxes.size(), 1u);
}

TEST_F(Drawing, ChlorideHidesItsSignOnlyWherePlain) {
    draw(3);
    EXPECT_EQ(surface.boxes.size(), 1u);
    session().PlainChloride = true;
    draw(3);
    EXPECT_EQ(surface.boxes.size(), 0u);
    draw(-3);
    EXPECT_EQ(surface.boxes.size(), 1u);
}

TEST_F(Drawing, ReactedAwayIsABlackCircle) {
    draw(0);
    EXPECT_EQ(surface.circles, only(10, kBlack));
}

TEST_F(Drawing, KindsWithoutARuleNeitherBlinkNorFade) {
    host.clock.now = 0.1;
    p.Fade = 50;
    p.ReactFlash = 20;
    draw(4);
    ASSERT_EQ(surface.circles.size(), 1u);
    EXPECT_EQ(surface.circles[0].radius, 6);
    EXPECT_EQ(surface.circles[0].fill, (Color{255, 255, 0}));
    EXPECT_EQ(surface.circles[0].outline, blend(kBlack, 50, session().ParticleBackColor));
    EXPECT_EQ(p.ReactFlash, 15);
}

TEST_F(Drawing, FadeMixesBodyAtomsAndOutlineButNotTheHalo) {
    p.Fade = 24.5; // rounds to 24
    draw(9);
    const Color back = session().ParticleBackColor;
    EXPECT_EQ(surface.circles[0].fill, palette(9));
    EXPECT_EQ(surface.circles[2].fill, blend(kWhite, 24, back));
    EXPECT_EQ(surface.circles[3].fill, blend(palette(1), 24, back));
    EXPECT_EQ(surface.circles[3].outline, blend(kBlack, 24, back));
    EXPECT_EQ(p.Fade, 24.5);
}

TEST_F(Drawing, FadeIsCutAtOneHundred) {
    p.Fade = 180;
    draw(5);
    EXPECT_EQ(p.Fade, 100);
    EXPECT_EQ(surface.circles,
              (std::vector<CircleMark>{
                  {{200, 150}, 8, session().ParticleBackColor, session().ParticleBackColor}}));
}

TEST_F(Drawing, ScaleGrowsTheDrawingAndRoundsIt) {
    p.Scale = 1.25;
    draw(12);
    EXPECT_EQ(surface.circles[0].radius, 12); // 12.5, to the even one
    EXPECT_DOUBLE_EQ(surface.boxes[0].from.x, 200 - 0.6 * 12);
}

TEST_F(Drawing, PlacesRoundToWholePixels) {
    RecordingSurface odd(333.4, 201);
    p.setSORTREAL(5);
    p.PosX = 10;
    p.PosY = 50; // 100.5 px, to the even one
    p.DRAW(odd);
    EXPECT_EQ(odd.circles[0].centre, (Point{33, 100}));
}

TEST_F(Drawing, BlinksFourTimesASecond) {
    for (const auto& [now, bright] : {std::pair{0.0, true},
                                      {0.24, true},
                                      {0.25, false},
                                      {0.49, false},
                                      {0.5, true},
                                      {7.3, false}}) {
        host.clock.now = now;
        p.ReactFlash = 5;
        draw(5);
        EXPECT_EQ(surface.circles[0].fill, bright ? blend(palette(9), 50, kWhite) : palette(9))
            << now;
        EXPECT_EQ(p.ReactFlash, 0);
    }
}

TEST_F(Drawing, ContactAndFlashBothBrighten) {
    host.clock.now = 0;
    p.ContactCount = 3;
    p.ReactFlash = 3;
    draw(9);
    const Color once = blend(palette(1), 50, kWhite);
    EXPECT_EQ(surface.circles.back().fill, blend(once, 50, kWhite));
    EXPECT_EQ(p.ContactCount, 2);
    EXPECT_EQ(p.ReactFlash, 0);
}

TEST_F(Drawing, ShiveringTakesTwoRandomNumbersAndWholeUnits) {
    FakeHost* const h = &host;
    SeededRandom copy = h->random;
    p.setSORTREAL(5);
    p.PosX = 50.4;
    p.PosY = 20.5;
    p.ContactCount = 4;
    p.DRAW(surface);
    const double x = std::nearbyint(copy.next() * 0.5 + 50.4 - 0.25);
    const double y = std::nearbyint(copy.next() * 0.5 + 20.5 - 0.25);
    EXPECT_EQ(surface.circles[0].centre, (Point{x * 4, y * 3}));
    EXPECT_EQ(copy.next(), h->random.next());
}

TEST_F(Drawing, AParticleAtPeaceTakesNoRandomNumber) {
    SeededRandom copy = host.random;
    p.ReactFlash = 20;
    draw(8);
    EXPECT_EQ(copy.next(), host.random.next());
}

TEST_F(Drawing, ASurfaceWithoutSizeChangesNothingOfThis) {
    RecordingSurface nothing(0, 0);
    p.setSORTREAL(8);
    p.ContactCount = 4;
    SeededRandom copy = host.random;
    copy.next();
    copy.next();
    p.DRAW(nothing);
    EXPECT_EQ(p.ContactCount, 3);
    EXPECT_EQ(copy.next(), host.random.next());
}

} // namespace
} // namespace quendal::test
