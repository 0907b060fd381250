#include "particles/cls_Molecules.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quendal::test {
namespace {

class Collection : public testing::Test {
  protected:
    FakeHost host;
    cls_Molecules beaker;
};

TEST_F(Collection, NewIsEmpty) {
    EXPECT_EQ(beaker.COUNT(), 0);
    EXPECT_FALSE(beaker.EXISTS(1));
    EXPECT_FALSE(beaker.EXISTS(std::string("a")));
    EXPECT_FALSE(beaker.REMOVE(1));
    EXPECT_FALSE(beaker.REACT());
    beaker.GRID();
    beaker.SNAP();
    EXPECT_EQ(beaker.COUNT(), 0);
    EXPECT_FALSE(beaker.hasPairThatCanReact());
}

TEST_F(Collection, CreateStandsAtItsTarget) {
    cls_Molecule& p = beaker.CREATE(-9, 12.5, 80);
    EXPECT_EQ(p.SORTREAL(), -9);
    EXPECT_EQ(p.PosX, 12.5);
    EXPECT_EQ(p.TargetX, 12.5);
    EXPECT_EQ(p.PosY, 80);
    EXPECT_EQ(p.TargetY, 80);
    EXPECT_EQ(p.Fade, 0);
    EXPECT_EQ(p.Parent, &beaker);
    EXPECT_EQ(p.tmp_Data.Key, "");
    EXPECT_EQ(&beaker.ITEM(1), &p);
}

TEST_F(Collection, OutOfRangeIsAFault) {
    beaker.CREATE(3, 0, 0);
    EXPECT_THROW(beaker.ITEM(0), std::out_of_range);
    EXPECT_THROW(beaker.ITEM(2), std::out_of_range);
    EXPECT_THROW(beaker.ITEM(std::string("x")), std::out_of_range);
    EXPECT_THROW(beaker.share(2), std::out_of_range);
    EXPECT_THROW(beaker.DATABASE_DatabaseItem(-1), std::out_of_range);
    EXPECT_THROW(beaker.DATABASE_DatabaseRemove(2), std::out_of_range);
}

TEST_F(Collection, RemovalPutsTheLastIntoTheGap) {
    for (int sort = 1; sort <= 5; ++sort) {
        beaker.CREATE(sort, 0, 0);
    }
    EXPECT_TRUE(beaker.REMOVE(3));
    EXPECT_EQ(beaker.COUNT(), 4);
    EXPECT_EQ(beaker.ITEM(3).SORT(), 5);
    EXPECT_TRUE(beaker.REMOVE(4));
    EXPECT_EQ(beaker.COUNT(), 3);
    EXPECT_EQ(beaker.ITEM(1).SORT(), 1);
    EXPECT_FALSE(beaker.REMOVE(4));
}

TEST_F(Collection, RemovalByIdentity) {
    cls_Molecule& first = beaker.CREATE(1, 0, 0);
    cls_Molecule& last = beaker.CREATE(2, 0, 0);
    beaker.REMOVE(1);
    EXPECT_TRUE(beaker.removeParticle(last));
    EXPECT_FALSE(beaker.removeParticle(last));
    EXPECT_FALSE(beaker.removeParticle(first));
    EXPECT_EQ(beaker.COUNT(), 0);
}

TEST_F(Collection, ASharedParticleOutlivesItsRemoval) {
    beaker.CREATE(7, 3, 4);
    const auto held = beaker.share(1);
    beaker.REMOVE(1);
    EXPECT_EQ(held->SORT(), 7);
}

TEST_F(Collection, KeysCompareTrimmedInAnyCase) {
    beaker.ADD(std::make_shared<cls_Molecule>(), "Alpha");
    beaker.ADD(std::make_shared<cls_Molecule>(), "beta");
    beaker.ADD(std::make_shared<cls_Molecule>(), "BETA");
    EXPECT_EQ(beaker.DATABASE_DatabaseSearch("  alpha "), 1);
    EXPECT_EQ(beaker.DATABASE_DatabaseSearch("Beta"), 2);
    EXPECT_EQ(beaker.DATABASE_DatabaseSearch("gamma"), 0);
    EXPECT_TRUE(beaker.EXISTS(std::string("ALPHA")));
    EXPECT_EQ(&beaker.ITEM(std::string("beta")), &beaker.ITEM(2));
    EXPECT_TRUE(beaker.REMOVE(std::string("alpha")));
    EXPECT_EQ(beaker.ITEM(1).tmp_Data.Key, "BETA");
    EXPECT_FALSE(beaker.REMOVE(std::string("alpha")));
}

TEST_F(Collection, AddKeepsTheKeyUnlessOneIsGiven) {
    auto particle = std::make_shared<cls_Molecule>();
    particle->tmp_Data.Key = "own";
    EXPECT_EQ(&beaker.ADD(particle), particle.get());
    EXPECT_EQ(particle->tmp_Data.Key, "own");
    beaker.ADD(particle, "new");
    EXPECT_EQ(particle->tmp_Data.Key, "new");
}

TEST_F(Collection, AnEmptyCellIsReadAsANewParticle) {
    cls_Molecule& p = beaker.ADD(nullptr);
    EXPECT_EQ(p.SORTREAL(), 0);
    EXPECT_EQ(p.Parent, &beaker);
}

TEST_F(Collection, ItemTakesTheParticleAsItsOwn) {
    cls_Molecules drops;
    auto particle = std::make_shared<cls_Molecule>();
    drops.ADD(particle);
    beaker.ADD(particle);
    EXPECT_EQ(particle->Parent, &beaker);
    EXPECT_EQ(drops.ITEM(1).Parent, &drops);
}

TEST_F(Collection, CountsKindsWhateverTheirSign) {
    for (const int sort : {9, -9, 8, 9}) {
        beaker.CREATE(sort, 0, 0);
    }
    EXPECT_EQ(beaker.COUNTSORT(-9), 3);
    EXPECT_EQ(beaker.COUNTSORT(9), 3);
    EXPECT_EQ(beaker.COUNTSORT(1), 0);
}

TEST_F(Collection, ClearRemovesAll) {
    beaker.CREATE(9, 0, 0);
    beaker.DATABASE_DatabaseClear();
    EXPECT_EQ(beaker.COUNT(), 0);
}

TEST_F(Collection, PartnersMeetInTheMiddle) {
    cls_Molecule& acid = beaker.CREATE(8, 20, 30);
    cls_Molecule& chloride = beaker.CREATE(3, 21, 30);
    cls_Molecule& base = beaker.CREATE(9, 40, 50);
    chloride.Placed = chloride.Reacting = true;
    EXPECT_TRUE(beaker.hasPairThatCanReact());
    EXPECT_TRUE(beaker.REACT());
    EXPECT_EQ(acid.TargetX, 29);
    EXPECT_EQ(acid.TargetY, 40);
    EXPECT_EQ(base.TargetX, 31);
    EXPECT_EQ(base.TargetY, 40);
    EXPECT_TRUE(acid.Placed && acid.Reacting && base.Placed && base.Reacting);
    EXPECT_FALSE(chloride.Placed || chloride.Reacting);
}

TEST_F(Collection, AFadingPartnerIsBespokenButNobodyIsSent) {
    cls_Molecule& acid = beaker.CREATE(7, 20, 30);
    cls_Molecule& water = beaker.CREATE(1, 40, 50);
    water.Fade = 99;
    EXPECT_TRUE(beaker.REACT());
    EXPECT_EQ(acid.TargetX, 20);
    EXPECT_EQ(water.TargetX, 40);
    EXPECT_TRUE(acid.Reacting && water.Reacting);
}

TEST_F(Collection, OfEquallyNearPartnersTheFirstIsTaken) {
    beaker.CREATE(8, 50, 50);
    cls_Molecule& left = beaker.CREATE(9, 30, 50);
    cls_Molecule& right = beaker.CREATE(9, 70, 50);
    beaker.REACT();
    EXPECT_TRUE(left.Reacting);
    EXPECT_FALSE(right.Reacting);
}

TEST_F(Collection, TheNearestPartnerIsTakenOnce) {
    beaker.CREATE(8, 50, 50);
    beaker.CREATE(8, 51, 50);
    cls_Molecule& far = beaker.CREATE(9, 30, 50);
    cls_Molecule& near = beaker.CREATE(9, 60, 50);
    EXPECT_TRUE(beaker.REACT());
    EXPECT_EQ(near.TargetX, 56);
    EXPECT_EQ(far.TargetX, 41.5);
}

} // namespace
} // namespace quendal::test
