#include "shell/forms/scoring.h"

#include "host/number_service.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr int kFullPoints = 5;
constexpr int kSolveCost = 10;
constexpr int kHelpCost = 5;
constexpr double kTimeLimit = 900.0; // seconds
// The grace is in seconds although it reads like minutes: whoever is over the limit ends in the
// worst mark, and that is meant.
constexpr double kTimeGrace = 15.0;
constexpr double kTimeCost = 5.0; // a second
constexpr double kMinute = 60.0;

} // namespace

int scoreOf(const TaskFigures& figures) {
    const int points = std::min(figures.points, kFullPoints);
    // In doubles, which hold these whole numbers exactly and can't run over.
    double score = roundToInt(static_cast<double>(figures.task) * points / kFullPoints);
    score -= static_cast<double>(kSolveCost) * figures.solveUsed;
    score -= static_cast<double>(kHelpCost) * figures.helpUsed;
    if (figures.duration > kTimeLimit) {
        score -= (figures.duration - kTimeGrace) * kTimeCost;
    }
    return roundToInt(score);
}

int markOf(int task, int score) {
    constexpr double kShares[] = {0.9, 0.8, 0.65, 0.4, 0.2};
    int mark = 1;
    for (const double share : kShares) {
        if (share * task <= score) {
            return mark;
        }
        ++mark;
    }
    return mark;
}

std::string durationText(double seconds, const NumberService& numbers) {
    if (seconds <= kMinute) {
        return numbers.text(seconds) + " Sekunden";
    }
    const int whole = roundToInt(seconds);
    return std::to_string(whole / 60) + " Minute/n und " + std::to_string(whole % 60) + " Sekunden";
}

} // namespace quendal
