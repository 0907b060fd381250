// One particle's time step.
#include "particles/cls_Molecule.h"
#include "particles/cls_Molecules.h"
#include "support/fake_roots.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quendal::test {
namespace {

class Thinking : public testing::Test {
  protected:
    FakeHost host;
    cls_Molecules beaker;
    RecordingSurface surface{400, 300};

    cls_Molecule& still(int sort, double x, double y) { return beaker.CREATE(sort, x, y); }
    // Both think, then both are drawn, as in a frame.
    static void frame(cls_Molecule& a, cls_Molecule& b, Surface& surface) {
        a.THINK();
        b.THINK();
        a.DRAW(surface);
        b.DRAW(surface);
    }
};

TEST_F(Thinking, FreshParticleHasItsDefaults) {
    const cls_Molecule fresh;
    EXPECT_EQ(fresh.Parent, nullptr);
    EXPECT_EQ(fresh.SORTREAL(), 0);
    EXPECT_EQ(fresh.PosX, 0);
    EXPECT_EQ(fresh.TargetY, 0);
    EXPECT_EQ(fresh.Fade, 0);
    EXPECT_EQ(fresh.Scale, 0);
    EXPECT_EQ(fresh.BornAt, 0);
    EXPECT_FALSE(fresh.Solid || fresh.Reacting || fresh.Placed || fresh.Mark1 || fresh.Mark4);
    EXPECT_EQ(fresh.ContactCount + fresh.ReactFlash + fresh.Count1 + fresh.Count3, 0);
    EXPECT_EQ(fresh.tmp_Data.ClassName, "cls_Molecule.Quendal");
    EXPECT_EQ(beaker.tmp_Data.ClassName, "cls_Molecules.Quendal");
}

TEST_F(Thinking, FarFromTheTargetAStepIsOneUnit) {
    cls_Molecule& p = still(3, 20, 50);
    p.TargetX = 26;
    p.TargetY = 58;
    p.THINK();
    EXPECT_DOUBLE_EQ(p.PosX, 20.6);
    EXPECT_DOUBLE_EQ(p.PosY, 50.8);
}

TEST_F(Thinking, NearTheTargetAStepIsAFifthOfTheWay) {
    cls_Molecule& p = still(3, 50, 50);
    p.TargetX = 52.5;
    p.THINK();
    EXPECT_DOUBLE_EQ(p.PosX, 50.5);
}

TEST_F(Thinking, WithinATenthItRests) {
    cls_Molecule& p = still(3, 50, 50);
    p.TargetX = 50.09;
    p.THINK();
    EXPECT_EQ(p.PosX, 50);
}

TEST_F(Thinking, WallsHoldTheTargetTheTopOneTwiceAsFar) {
    cls_Molecule& p = still(9, 50, 50);
    p.Placed = true;
    p.TargetX = -30;
    p.TargetY = -30;
    p.THINK();
    EXPECT_EQ(p.TargetX, 5);
    EXPECT_EQ(p.TargetY, 10);
    p.TargetX = p.TargetY = 130;
    p.THINK();
    EXPECT_EQ(p.TargetX, 95);
    EXPECT_EQ(p.TargetY, 95);
}

TEST_F(Thinking, EqualKindsAtTheSamePlaceStay) {
    cls_Molecule& a = still(3, 50, 50);
    cls_Molecule& b = still(3, 50, 50);
    EXPECT_EQ(a.DIST(b), 0);
    EXPECT_TRUE(a.COLL(b));
    for (int i = 0; i < 50; ++i) {
        frame(a, b, surface);
    }
    EXPECT_EQ(a.PosX, 50);
    EXPECT_EQ(b.PosX, 50);
    EXPECT_EQ(a.TargetX, 50);
    EXPECT_EQ(a.ContactCount, 0);
}

TEST_F(Thinking, RepulsionMovesTheTargetOfAFreeParticle) {
    cls_Molecule& p = still(3, 50, 50);
    still(5, 54, 50);
    p.THINK();
    EXPECT_EQ(p.TargetX, 49);
    EXPECT_EQ(p.TargetY, 50);
    EXPECT_DOUBLE_EQ(p.PosX, 49.8);
}

TEST_F(Thinking, APlacedParticleKeepsItsTargetButIsPushedOffItsLine) {
    cls_Molecule& p = still(3, 50, 50);
    p.Placed = true;
    p.TargetX = 60;
    still(5, 50, 54);
    p.THINK();
    EXPECT_EQ(p.TargetX, 60);
    EXPECT_EQ(p.TargetY, 50);
    EXPECT_DOUBLE_EQ(p.PosX, 50 + 10 / std::sqrt(101));
    EXPECT_DOUBLE_EQ(p.PosY, 50 - 1 / std::sqrt(101));
}

TEST_F(Thinking, ATargetPushedOverAWallIsHeldOnlyInTheNextStep) {
    cls_Molecule& p = still(3, 4, 50);
    still(5, 8, 50);
    p.THINK();
    EXPECT_EQ(p.TargetX, 3);
    still(13, 90, 90);
    p.Placed = true;
    p.THINK();
    EXPECT_EQ(p.TargetX, 4);
}

TEST_F(Thinking, PartnersReactAfterTwentyFramesOfTouching) {
    cls_Molecule& acid = still(8, 50, 50);
    cls_Molecule& base = still(9, 50, 50);
    int steps = 0;
    for (; acid.SORT() == 8 && steps < 100; ++steps) {
        acid.THINK();
    }
    EXPECT_EQ(steps, 21);
    EXPECT_EQ(acid.SORTREAL(), 1);
    EXPECT_EQ(base.SORTREAL(), 1);
    EXPECT_EQ(acid.ContactCount, 0);
    EXPECT_EQ(base.ContactCount, 0);
    EXPECT_EQ(acid.ReactFlash, 20);
    EXPECT_EQ(base.ReactFlash, 20);
    for (int frames = 0; frames < 4; ++frames) {
        EXPECT_GT(acid.ReactFlash, 0);
        acid.DRAW(surface);
    }
    EXPECT_EQ(acid.ReactFlash, 0);
}

// Each pair counts twice a frame, once in each partner's step, and drawing takes 1 off.
TEST_F(Thinking, DrawnPairsReactInTheTwentiethFrame) {
    cls_Molecule& acid = still(8, 50, 50);
    cls_Molecule& base = still(9, 50, 50);
    int frames = 0;
    for (; acid.SORT() == 8 && frames < 100; ++frames) {
        frame(acid, base, surface);
    }
    EXPECT_EQ(frames, 20);
}

TEST_F(Thinking, AnAbandonedContactRunsDown) {
    cls_Molecule& p = still(8, 50, 50);
    p.ContactCount = 7;
    for (int i = 0; i < 7; ++i) {
        p.DRAW(surface);
    }
    EXPECT_EQ(p.ContactCount, 0);
    p.ContactCount = 300;
    p.DRAW(surface);
    EXPECT_EQ(p.ContactCount, 19);
}

TEST_F(Thinking, TheOtherPartnerReactsOnThisOne) {
    cls_Molecule& chloride = still(3, 50, 50);
    cls_Molecule& silver = still(12, 52, 50);
    chloride.ContactCount = silver.ContactCount = 20;
    const auto held = beaker.share(1);
    chloride.THINK();
    EXPECT_EQ(beaker.COUNT(), 1);
    EXPECT_EQ(&beaker.ITEM(1), &silver);
    EXPECT_EQ(silver.SORTREAL(), 14);
    EXPECT_TRUE(silver.Solid);
    EXPECT_EQ(chloride.SORTREAL(), 0);
    EXPECT_NE(chloride.PosX, 50); // it went on through its step
}

TEST_F(Thinking, AParticleOutlivesItsRemovalToTheEndOfItsStep) {
    still(3, 50, 50);
    still(12, 52, 50);
    for (int i = 1; i <= 2; ++i) {
        beaker.ITEM(i).ContactCount = 20;
    }
    const std::weak_ptr<cls_Molecule> chloride = beaker.share(1);
    beaker.ITEM(1).THINK(); // the collection holds the only share
    EXPECT_TRUE(chloride.expired());
    EXPECT_EQ(beaker.COUNT(), 1);
}

TEST_F(Thinking, AnyStepSweepsWhatHasReactedAway) {
    still(0, 10, 10);
    cls_Molecule& p = still(3, 50, 50);
    still(0, 90, 90);
    still(5, 30, 80);
    still(0, 90, 90);
    p.THINK();
    EXPECT_EQ(beaker.COUNT(), 2);
    EXPECT_EQ(beaker.COUNTSORT(0), 0);
}

TEST_F(Thinking, WithoutACollectionItOnlyMoves) {
    cls_Molecule alone;
    alone.setSORTREAL(5);
    alone.PosX = alone.PosY = 50;
    alone.TargetX = 80;
    alone.TargetY = 50;
    alone.THINK();
    EXPECT_EQ(alone.PosX, 51);
}

} // namespace
} // namespace quendal::test
