#include "activity.h"

#include <cmath>

namespace quendal::curves {

namespace {

// √I / (1 + √I): what the attraction of all other ions does, whatever they are.
double longRange(double ionicStrength) {
    const double root = std::sqrt(ionicStrength);
    return root / (1.0 + root);
}

} // namespace

double activityCoefficient(int charge, double ionicStrength) {
    const double shape = longRange(ionicStrength) - kDaviesLinearTerm * ionicStrength;
    return std::pow(10.0, -kDebyeHueckelSlope * charge * charge * shape);
}

double activityCoefficientInSalt(double linearTerm, double counterIon, double ionicStrength) {
    return std::pow(10.0, linearTerm * counterIon - kDebyeHueckelSlope * longRange(ionicStrength));
}

} // namespace quendal::curves
