#include "particles/grid_pattern.h"
#include "particles/grid_tables.h"
#include "particles/populations.h"
#include "shell/session/session.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <stdexcept>

namespace quendal::test {
namespace {

class Grid : public testing::Test {
  protected:
    Grid() { beaker.Parent = &liquid; }
    ~Grid() override { resetSession(); }

    FakeHost host{3};
    Liquid liquid;
    cls_Molecules beaker;

    static GridPattern::Counts counts(std::initializer_list<std::pair<int, int>> kinds) {
        GridPattern::Counts result{};
        for (const auto& [kind, count] : kinds) {
            result[static_cast<std::size_t>(kind)] = count;
        }
        return result;
    }
    static std::vector<int> kinds(const GridPattern& pattern) {
        std::vector<int> result;
        for (int cell = 1; cell <= pattern.cells(); ++cell) {
            result.push_back(pattern.kindAt(cell));
        }
        return result;
    }
};

struct ShapeRow {
    int volume;
    int total;
    int rows;
    int columns;
};

TEST_F(Grid, VolumeDecidesTheRows) {
    const ShapeRow rows[] = {
        {0, 4, 2, 2},                   // as 5 mL, but at least two rows
        {5, 4, 2, 2},    {20, 5, 5, 1}, // 4 rows of 1 hold only 4
        {20, 6, 4, 2},                  // 6 / 4 to the even one
        {30, 60, 6, 10}, {-3, 9, 3, 4}, // below 0 for a moment; 9 / 2 rounds to 4, then a third row
        {12, 0, 2, 1},   {13, 30, 3, 10}, {1000, 3, 200, 1},
    };
    for (const ShapeRow& row : rows) {
        GridPattern pattern;
        pattern.plan(counts({{1, row.total}}), row.total, row.volume);
        EXPECT_EQ(pattern.rows(), row.rows) << row.volume << " mL, " << row.total;
        EXPECT_EQ(pattern.columns(), row.columns) << row.volume << " mL, " << row.total;
        EXPECT_EQ(pattern.cells(), row.total);
    }
}

TEST_F(Grid, RareKindsAreSpreadEvenly) {
    GridPattern pattern;
    pattern.plan(counts({{3, 6}, {5, 2}, {8, 1}}), 9, 10);
    // 8 takes the ninth cell, 5 every fourth of the eight left, 3 the rest.
    EXPECT_EQ(kinds(pattern), (std::vector{3, 3, 3, 5, 3, 3, 3, 5, 8}));
}

TEST_F(Grid, StepsRoundAndTheRestFillsUp) {
    GridPattern pattern;
    pattern.plan(counts({{1, 2}, {2, 3}}), 5, 10);
    // 5 / 2 rounds to 2: cells 2 and 4; then 3 / 3 = 1.
    EXPECT_EQ(kinds(pattern), (std::vector{2, 1, 2, 1, 2}));
    pattern.plan(counts({{1, 4}, {2, 7}}), 11, 10);
    // 11 / 4 rounds to 3: cells 3, 6 and 9, and the fourth goes to the first free one.
    EXPECT_EQ(kinds(pattern), (std::vector{1, 2, 1, 2, 2, 1, 2, 2, 1, 2, 2}));
}

TEST_F(Grid, KindsAboveTwentyGetNoCell) {
    GridPattern pattern;
    pattern.plan(counts({{21, 2}, {3, 1}}), 3, 10);
    EXPECT_EQ(kinds(pattern), (std::vector{0, 0, 3}));
}

TEST_F(Grid, ShuffleAndJitterComeFromTheTables) {
    session().GridShuffle[3] = {0, 3, 2, 9};
    session().GridJitterX[3][2] = 1.5;
    session().GridJitterY[3][2] = -0.25;
    GridPattern pattern;
    pattern.plan(counts({{1, 1}, {2, 2}}), 3, 10);
    EXPECT_EQ(kinds(pattern), (std::vector{1, 2, 2})); // cells 1 and 3 changed places
    EXPECT_EQ(pattern.columns(), 2);
    EXPECT_DOUBLE_EQ(pattern.place(2).x, 200.0 / 3 + 1.5);
    EXPECT_DOUBLE_EQ(pattern.place(2).y, 100.0 / 3 - 0.25);
}

TEST_F(Grid, TheTablesEndAtTwoHundred) {
    GridPattern pattern;
    pattern.plan(counts({{1, 200}}), 200, 30);
    EXPECT_THROW(pattern.plan(counts({{1, 201}}), 201, 30), std::out_of_range);
}

TEST_F(Grid, TargetsAreWholeAndEveryOneHasACell) {
    fillGridTables(host.random);
    liquid.volume = 20;
    for (int i = 0; i < 40; ++i) {
        beaker.CREATE(i % 3 + 3, host.random.next() * 100, host.random.next() * 100);
    }
    beaker.GRID();
    std::set<std::pair<double, double>> targets;
    for (const auto& p : beaker.particles()) {
        EXPECT_EQ(p->TargetX, std::trunc(p->TargetX));
        EXPECT_EQ(p->TargetY, std::trunc(p->TargetY));
        EXPECT_TRUE(p->Placed);
        targets.insert({p->TargetX, p->TargetY});
    }
    EXPECT_EQ(targets.size(), 40u);
}

TEST_F(Grid, PrecipitateSinksAndGoesToTheEnd) {
    beaker.CREATE(14, 50, 50).Solid = true;
    beaker.CREATE(3, 20, 20);
    beaker.CREATE(14, 60, 50).Solid = true;
    beaker.CREATE(5, 30, 30);
    beaker.GRID();
    EXPECT_EQ(beaker.ITEM(1).SORT(), 3);
    EXPECT_EQ(beaker.ITEM(2).SORT(), 5);
    for (int i = 3; i <= 4; ++i) {
        EXPECT_TRUE(beaker.ITEM(i).Solid);
        EXPECT_EQ(beaker.ITEM(i).TargetY, 100);
        EXPECT_FALSE(beaker.ITEM(i).Placed);
    }
    EXPECT_TRUE(beaker.ITEM(1).Placed);
}

TEST_F(Grid, PrecipitateAloneOnlySinks) {
    for (int i = 0; i < 3; ++i) {
        cls_Molecule& p = beaker.CREATE(14, 20 + i, 30);
        p.Solid = p.Placed = true;
    }
    beaker.GRID();
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(beaker.ITEM(i).TargetX, 19 + i);
        EXPECT_EQ(beaker.ITEM(i).TargetY, 100);
        EXPECT_FALSE(beaker.ITEM(i).Placed);
    }
}

TEST_F(Grid, AReactingParticleTakesACellButKeepsItsTarget) {
    cls_Molecule& p = beaker.CREATE(8, 10, 10);
    p.Reacting = true;
    beaker.GRID();
    EXPECT_TRUE(p.Placed);
    EXPECT_EQ(p.TargetX, 10);
}

TEST_F(Grid, WithoutAnOwnerTheLiquidCountsAsNone) {
    beaker.Parent = nullptr;
    for (int i = 0; i < 4; ++i) {
        beaker.CREATE(3, 10 * i, 50);
    }
    beaker.GRID(); // two rows of two
    EXPECT_EQ(beaker.ITEM(1).TargetX, 33);
}

TEST_F(Grid, CellsGoToTheNearestOfTheirKind) {
    beaker.CREATE(3, 90, 90);
    beaker.CREATE(3, 10, 10);
    beaker.CREATE(3, 90, 10);
    beaker.CREATE(3, 10, 90);
    beaker.GRID(); // two rows of two
    EXPECT_EQ(beaker.ITEM(2).TargetX, 33);
    EXPECT_EQ(beaker.ITEM(2).TargetY, 33);
    EXPECT_EQ(beaker.ITEM(1).TargetX, 66);
    EXPECT_EQ(beaker.ITEM(1).TargetY, 66);
}

TEST_F(Grid, KindsAboveOneHundredAreAFault) {
    beaker.CREATE(100, 0, 0);
    beaker.GRID();
    beaker.CREATE(101, 0, 0);
    EXPECT_THROW(beaker.GRID(), std::out_of_range);
}

TEST_F(Grid, SnapLaysAnyKindOnEvenCells) {
    for (int i = 0; i < 5; ++i) {
        beaker.CREATE(i + 1, 20 * i, 50).Solid = i == 0;
    }
    beaker.SNAP(); // sqrt 5 rounds to 2 columns, so 3 rows
    std::multiset<std::pair<double, double>> targets;
    for (const auto& p : beaker.particles()) {
        EXPECT_TRUE(p->Placed);
        targets.insert({p->TargetX, p->TargetY});
    }
    EXPECT_EQ(
        targets,
        (std::multiset<std::pair<double, double>>{
            {100.0 / 3, 25}, {200.0 / 3, 25}, {100.0 / 3, 50}, {200.0 / 3, 50}, {100.0 / 3, 75}}));
}

TEST_F(Grid, TablesAreFilledInTheirOrder) {
    SeededRandom copy = host.random;
    fillGridTables(host.random);
    const SessionState& s = session();
    EXPECT_EQ(s.GridShuffle[1][1], 1);
    for (int count = 1; count <= kGridLimit; ++count) {
        for (int i = 1; i <= kGridLimit; ++i) {
            ASSERT_EQ(s.GridShuffle[count][i], static_cast<int>(copy.next() * count) + 1);
        }
    }
    for (int count = 1; count <= kGridLimit; ++count) {
        for (int i = 1; i <= kGridLimit; ++i) {
            ASSERT_EQ(s.GridJitterX[count][i], copy.next() * 4 - 2);
            ASSERT_EQ(s.GridJitterY[count][i], copy.next() * 4 - 2);
        }
    }
    EXPECT_EQ(copy.next(), host.random.next());
    EXPECT_EQ(s.GridShuffle[0][5], 0);
    EXPECT_EQ(s.GridJitterX[5][0], 0);
}

} // namespace
} // namespace quendal::test
