// What a finished task is worth.
#pragma once

#include <string>

namespace quendal {

class NumberService;

struct TaskFigures {
    double duration = 0; // seconds from the start of the task to the last point
    int task = 0;        // points that the task is worth
    int points = 0;      // calculated points of the curve
    int helpUsed = 0;
    int solveUsed = 0;
};

// May be negative. Wrong answers don't count.
int scoreOf(const TaskFigures& figures);
// From 1, the best, to 6.
int markOf(int task, int score);
// Up to a minute in seconds as they are, above in minutes and whole seconds.
std::string durationText(double seconds, const NumberService& numbers);

} // namespace quendal
