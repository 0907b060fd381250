// The shipped form against the plain one, bit for bit, over thousands of random populations.
#include "particles/drive.h"
#include "particles/grid_tables.h"
#include "particles/populations.h"
#include "shell/session/session.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quendal::test {
namespace {

class Property : public testing::Test {
  protected:
    ~Property() override { resetSession(); }

    // Every third population meets tables without jitter, so that cells lie evenly and ties abound.
    void chooseTables(int round) {
        if (round % 300 == 0) {
            fillGridTables(host.random);
        } else if (round % 300 == 200) {
            resetSession();
        }
    }

    FakeHost host{20240817};
};

TEST_F(Property, GridIsTheSame) {
    for (int round = 0; round < 1500; ++round) {
        chooseTables(round);
        Twins twins(randomPopulation(host.random, round % 4 == 0 ? 200 : 60));
        twins.shipped.GRID();
        twins.plain.grid();
        ASSERT_EQ(difference(twins), "") << "round " << round;
        twins.liquid.volume = ++twins.plain.volume;
        twins.shipped.GRID();
        twins.plain.grid();
        ASSERT_EQ(difference(twins), "") << "second grid of round " << round;
    }
}

TEST_F(Property, SnapIsTheSame) {
    for (int round = 0; round < 500; ++round) {
        Twins twins(randomPopulation(host.random, round % 10 == 0 ? 220 : 50));
        twins.shipped.SNAP();
        twins.plain.snap();
        ASSERT_EQ(difference(twins), "") << "round " << round;
    }
}

TEST_F(Property, ReactIsTheSame) {
    for (int round = 0; round < 3000; ++round) {
        Twins twins(randomPopulation(host.random, round % 4 == 0 ? 200 : 40));
        ASSERT_EQ(twins.shipped.REACT(), twins.plain.react());
        ASSERT_EQ(difference(twins), "") << "round " << round;
    }
}

TEST_F(Property, ThinkingIsTheSame) {
    for (int round = 0; round < 1500; ++round) {
        Twins twins(randomPopulation(host.random, round % 4 == 0 ? 200 : 60));
        for (int i = 1; i <= twins.plain.count(); ++i) {
            const auto held = twins.plain.mol[static_cast<std::size_t>(i - 1)];
            twins.shipped.share(i)->THINK();
            held->think();
            ASSERT_EQ(twins.shipped.COUNT(), twins.plain.count());
        }
        ASSERT_EQ(difference(twins), "") << "round " << round;
    }
}

TEST_F(Property, WholeFramesAreTheSame) {
    for (int round = 0; round < 180; ++round) {
        chooseTables(round);
        Twins twins(randomPopulation(host.random, round % 5 == 0 ? 160 : 50));
        Shipped shipped(twins.shipped);
        Plain plain(twins.plain);
        const bool calm = round % 8 != 7;
        for (int frame = 0; frame < 60 && twins.plain.count() <= 180; ++frame) {
            const SeededRandom before = host.random;
            driveFrame(shipped, calm);
            const double afterShipped = host.random.next();
            host.random = before;
            driveFrame(plain, calm);
            ASSERT_EQ(afterShipped, host.random.next()) << "random numbers taken, round " << round;
            ASSERT_EQ(difference(twins), "") << "frame " << frame << " of round " << round;
        }
    }
}

// Both leave the same behind when the tables end: solids sunk, nothing placed.
TEST_F(Property, TooManyParticlesAreTheSameFault) {
    Population crowd;
    for (int i = 0; i < 201; ++i) {
        crowd.seedlings.push_back({.sort = 3, .x = i * 0.4, .placed = true});
    }
    Twins twins(crowd);
    EXPECT_THROW(twins.shipped.GRID(), std::out_of_range);
    EXPECT_THROW(twins.plain.grid(), std::out_of_range);
    EXPECT_EQ(difference(twins), "");
}

} // namespace
} // namespace quendal::test
