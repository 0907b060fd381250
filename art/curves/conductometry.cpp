#include "conductometry.h"

#include "silver_chloride.h"
#include "strong_acid.h"
#include "weak_acid.h"

#include <array>
#include <numeric>

namespace quendal::curves {

namespace {

constexpr std::array kStrongAcidCarriers{
    Carrier{.ion = kOxonium, .place = 0}, Carrier{.ion = kChloride, .place = 3},
    Carrier{.ion = kSodium, .place = 2}, Carrier{.ion = kHydroxide, .place = 1}};

constexpr std::array kWeakAcidCarriers{
    Carrier{.ion = kOxonium, .place = 0}, Carrier{.ion = kAcetate, .place = 3},
    Carrier{.ion = kSodium, .place = 2}, Carrier{.ion = kHydroxide, .place = 1}};

constexpr std::array kSilverCarriers{
    Carrier{.ion = kChloride, .place = 1}, Carrier{.ion = kSodium, .place = 4},
    Carrier{.ion = kNitrate, .place = 5}, Carrier{.ion = kSilverIon, .place = 0}};

Equilibrium silverEquilibrium(const Titration& titration, double addedMillilitres) {
    return silverState(titration, addedMillilitres).equilibrium;
}

} // namespace

const Conductometry kStrongAcidConductometry{.carriers = kStrongAcidCarriers,
                                             .state = strongAcidState};
const Conductometry kWeakAcidConductometry{.carriers = kWeakAcidCarriers, .state = weakAcidState};
const Conductometry kSilverConductometry{.carriers = kSilverCarriers, .state = silverEquilibrium};

std::vector<double> totalAndShares(const Conductometry& conductometry, const Titration& titration,
                                   double addedMillilitres) {
    const Equilibrium state = conductometry.state(titration, addedMillilitres);
    std::vector<DissolvedConductor> solution;
    for (const Carrier& carrier : conductometry.carriers) {
        solution.push_back(
            {.ion = carrier.ion, .concentration = state.ions[carrier.place].concentration});
    }
    // S cm²/mol times mol/L is mS/cm.
    std::vector<double> values{0.0};
    const std::vector<double> conductivities = ionConductivities(solution);
    for (std::size_t i = 0; i < solution.size(); ++i) {
        values.push_back(conductivities[i] * solution[i].concentration);
    }
    values.front() = std::accumulate(values.begin() + 1, values.end(), 0.0);
    return values;
}

} // namespace quendal::curves
