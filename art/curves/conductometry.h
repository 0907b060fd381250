// Titrations that are followed by their conductivity.
#pragma once

#include "conductivity.h"
#include "equilibrium.h"
#include "titration.h"

#include <cstddef>
#include <span>
#include <vector>

namespace quendal::curves {

// An ion that carries current, and its place in Equilibrium::ions.
struct Carrier {
    Conductor ion;
    std::size_t place;
};

struct Conductometry {
    std::span<const Carrier> carriers; // in the order of the series
    Equilibrium (*state)(const Titration& titration, double addedMillilitres);
};

extern const Conductometry kStrongAcidConductometry; // H3O+, Cl-, Na+, OH-
extern const Conductometry kWeakAcidConductometry;   // H3O+, Ac-, Na+, OH-
// Cl-, Na+, NO3-, Ag+. The complexes of silver with chloride are left out: they carry less than
// 0.002 mS/cm. So are water's own ions, which carry less than 0.0001 mS/cm.
extern const Conductometry kSilverConductometry;

// The conductivity in mS/cm after `addedMillilitres` (0 or more) of reagent, then what each carrier
// has of it.
std::vector<double> totalAndShares(const Conductometry& conductometry, const Titration& titration,
                                   double addedMillilitres);

} // namespace quendal::curves
