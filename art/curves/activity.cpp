#include "activity.h"

#include <cmath>

namespace quendal::curves {

double activityCoefficient(int charge, double ionicStrength) {
    const double root = std::sqrt(ionicStrength);
    const double shape = root / (1.0 + root) - kDaviesLinearTerm * ionicStrength;
    return std::pow(10.0, -kDebyeHueckelSlope * charge * charge * shape);
}

} // namespace quendal::curves
