#include "shell/required_points.h"

namespace quendal {

namespace {

struct Row {
    double concentration; // mol/L
    const char* points;   // mL
};

constexpr Row kRows[] = {
    {0.6, "0,1,3,5,6,7,12"},    {0.8, "0,1,4,7,8,9,16"},    {1.0, "0,1,5,9,10,11,20"},
    {1.2, "0,1,6,11,12,13,20"}, {1.4, "0,1,7,13,14,15,20"},
};

} // namespace

const char* requiredPointsFor(double concentration) {
    for (const Row& row : kRows) {
        if (row.concentration == concentration) {
            return row.points;
        }
    }
    return nullptr;
}

} // namespace quendal
