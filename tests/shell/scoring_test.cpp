#include "shell/forms/scoring.h"

#include "host/number_service.h"

#include <gtest/gtest.h>

#include <limits>

namespace quendal {
namespace {

struct ScoreRow {
    TaskFigures figures;
    int score;
    int mark;
};

class Scores : public testing::TestWithParam<ScoreRow> {};

TEST_P(Scores, FollowTheFigures) {
    const ScoreRow& row = GetParam();
    EXPECT_EQ(scoreOf(row.figures), row.score);
    EXPECT_EQ(markOf(row.figures.task, row.score), row.mark);
}

TaskFigures figures(int points, int helpUsed, int solveUsed, double duration) {
    return {.duration = duration,
            .task = 1000,
            .points = points,
            .helpUsed = helpUsed,
            .solveUsed = solveUsed};
}

INSTANTIATE_TEST_SUITE_P(
    Tasks, Scores,
    testing::Values(
        ScoreRow{figures(5, 0, 0, 600), 1000, 1}, ScoreRow{figures(7, 0, 0, 600), 1000, 1},
        ScoreRow{figures(3, 2, 1, 600), 580, 4}, ScoreRow{figures(5, 20, 0, 600), 900, 1},
        ScoreRow{figures(5, 21, 0, 600), 895, 2}, ScoreRow{figures(5, 0, 0, 900), 1000, 1},
        ScoreRow{figures(5, 0, 0, 901), -3430, 6},
        // 885.25 * 5 = 4426.25, and 1000 - 4426.25 is nearest to -3426.
        ScoreRow{figures(5, 0, 0, 900.25), -3426, 6},
        // Just over the limit costs at least 4425.
        ScoreRow{figures(5, 0, 0, 900.001), -3425, 6}, ScoreRow{figures(0, 0, 0, 10), 0, 6},
        ScoreRow{figures(1, 0, 0, 10), 200, 5}, ScoreRow{figures(2, 0, 0, 10), 400, 4},
        ScoreRow{figures(4, 0, 0, 10), 800, 2}, ScoreRow{figures(0, 3, 2, 10), -35, 6}));

TEST(Score, RoundsHalvesToTheEvenNeighbour) {
    // The product of two whole numbers over five has no halves; the penalty for time has.
    TaskFigures late = figures(5, 0, 0, 900.1);
    late.duration = 900.1; // 885.1 * 5 = 4425.5
    EXPECT_EQ(scoreOf(late), -3426);
    late.duration = 900.3; // 885.3 * 5 = 4426.5
    EXPECT_EQ(scoreOf(late), -3426);
}

TEST(Score, BearsFiguresOfAnySize) {
    constexpr int kMost = std::numeric_limits<int>::max();
    TaskFigures huge = figures(5, kMost, kMost, 1e300);
    EXPECT_EQ(scoreOf(huge), std::numeric_limits<int>::min());
    huge.duration = 0;
    EXPECT_EQ(scoreOf(huge), std::numeric_limits<int>::min());
}

TEST(Mark, ChangesExactlyAtItsLimits) {
    struct Limit {
        int score;
        int mark;
    };
    for (const Limit& limit :
         {Limit{1000, 1}, Limit{900, 1}, Limit{899, 2}, Limit{800, 2}, Limit{799, 3}, Limit{650, 3},
          Limit{649, 4}, Limit{400, 4}, Limit{399, 5}, Limit{200, 5}, Limit{199, 6}, Limit{0, 6},
          Limit{-4000, 6}}) {
        EXPECT_EQ(markOf(1000, limit.score), limit.mark) << limit.score;
    }
}

TEST(Duration, ReadsInSecondsUpToAMinute) {
    const NumberService comma(DecimalSign::Comma);
    const NumberService point(DecimalSign::Point);
    EXPECT_EQ(durationText(60, comma), "60 Sekunden");
    EXPECT_EQ(durationText(12.25, comma), "12,25 Sekunden");
    EXPECT_EQ(durationText(12.25, point), "12.25 Sekunden");
    EXPECT_EQ(durationText(0, comma), "0 Sekunden");
}

TEST(Duration, ReadsInMinutesAbove) {
    const NumberService comma(DecimalSign::Comma);
    EXPECT_EQ(durationText(61, comma), "1 Minute/n und 1 Sekunden");
    EXPECT_EQ(durationText(60.25, comma), "1 Minute/n und 0 Sekunden");
    EXPECT_EQ(durationText(119.75, comma), "2 Minute/n und 0 Sekunden");
    EXPECT_EQ(durationText(120.5, comma), "2 Minute/n und 0 Sekunden");
    EXPECT_EQ(durationText(121.5, comma), "2 Minute/n und 2 Sekunden");
    EXPECT_EQ(durationText(3725, comma), "62 Minute/n und 5 Sekunden");
}

} // namespace
} // namespace quendal
