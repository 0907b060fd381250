// Reference values of one titration point, as a model gives them and the tutor checks against.
#pragma once

#include <array>

namespace quendal {

struct PointValues {
    double concentration = 0; // mol/L of the sample as given in the task
    double acidVol = 0;       // L of the sample
    double acidMol = 0;       // mol of the sample
    double baseConc = 0;      // mol/L of the reagent
    double baseVol = 0;       // L of the reagent
    double baseMol = 0;       // mol of the reagent
    double totalVol = 0;      // L in the beaker
    double conc = 0;          // mol/L of what is in excess
    double excess = 0;        // mol in excess, rounded to 3 decimals
    double pOH = 0;           // behind the equivalence point only
    double silverIon = 0;     // mol/L of Ag+ in the solution
    double reading = 0;       // pH or potential, the point's y

    // Conductivities count in mL and mmol, with the ions in the order of the tutor's rows.
    double titrantMl = 0;               // mL of the reagent
    double totalMl = 0;                 // mL in the beaker, its water included
    std::array<double, 4> ionAmounts{}; // mmol
    std::array<double, 4> ionValues{};  // mS/cm, two decimals
    double ionTotal = 0;                // mS/cm, their sum

    int choice = 0; // which option of the choice is right, from 0
    bool baseInExcess = false;

    // The choice as forms with cases count it, from 1.
    int caseNumber() const { return choice + 1; }
};

} // namespace quendal
