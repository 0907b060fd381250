#include "titration.h"

namespace quendal::curves {

namespace {

constexpr int kPointsPerMillilitre = 10;
constexpr int kBuretteMillilitres = 20;

} // namespace

Mixture mix(const Titration& titration, double addedMillilitres) {
    const double total = titration.sampleVolume + titration.waterVolume + addedMillilitres;
    return {.sample = titration.sampleConcentration * titration.sampleVolume / total,
            .reagent = titration.reagentConcentration * addedMillilitres / total};
}

std::vector<double> burettePoints() {
    constexpr int kLast = kBuretteMillilitres * kPointsPerMillilitre;
    std::vector<double> points;
    points.reserve(kLast + 1);
    for (int i = 0; i <= kLast; ++i) {
        points.push_back(static_cast<double>(i) / kPointsPerMillilitre);
    }
    return points;
}

} // namespace quendal::curves
