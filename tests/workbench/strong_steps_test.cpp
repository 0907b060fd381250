#include "workbench/strong_steps.h"

#include "workbench/strong_acid.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

namespace quendal {
namespace {

TEST(StrongSteps, EachStepStandsOnceAndInOrder) {
    int step = 0;
    for (const StepRow& row : strongTables().steps) {
        EXPECT_EQ(row.step, ++step);
        EXPECT_EQ(row.check == Check::Choice, row.step == strongTables().choiceStep);
        EXPECT_EQ(row.expected == nullptr, row.check == Check::Choice);
    }
    EXPECT_EQ(step, strongTables().lastStep);
}

TEST(StrongSteps, LayoutRowsAreUnique) {
    std::set<std::tuple<Part, int, int>> seen;
    for (const ShownRow& row : strongTables().shown) {
        EXPECT_TRUE(seen.insert({row.part, row.index, row.step}).second)
            << static_cast<int>(row.part) << " " << row.index << " at " << row.step;
    }
}

TEST(StrongSteps, RungsLeadBack) {
    for (const RungRow& rung : strongTables().rungs) {
        EXPECT_LT(rung.backTo, rung.step);
    }
}

TEST(StrongSteps, ExpectedValuesBehindTheEquivalencePoint) {
    const PointValues point = strongAcidPoint(0.8, 0.012, 0.022);
    const double expected[] = {0.8, 0.01, 0.8 * 0.01, 1.0, 0.012, 0.012, 0};
    for (const StepRow& row : strongTables().steps) {
        if (row.step < 7) {
            EXPECT_EQ(row.expected(point), expected[row.step - 1]) << row.step;
        }
    }
    const auto valueOf = [&](int step) {
        return strongTables().steps[static_cast<std::size_t>(step - 1)].expected(point);
    };
    EXPECT_EQ(valueOf(8), 0.004);
    EXPECT_EQ(valueOf(9), 0.022);
    EXPECT_NEAR(valueOf(10), 0.004 / 0.022, 1e-15);
    EXPECT_EQ(valueOf(11), point.pOH);
    EXPECT_EQ(valueOf(12), 14.0 - point.pOH);
}

TEST(StrongSteps, StepElevenAsksForThePhUpToTheEquivalencePoint) {
    const PointValues point = strongAcidPoint(0.8, 0.003, 0.013);
    EXPECT_EQ(strongTables().steps[10].expected(point), point.reading);
}

} // namespace
} // namespace quendal
