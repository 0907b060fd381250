// A strong acid (HCl) titrated with a strong base (NaOH), both fully dissociated.
#pragma once

#include "equilibrium.h"
#include "titration.h"

namespace quendal::curves {

// The solution after `addedMillilitres` (0 or more) of base; its leading ion is H+.
Equilibrium strongAcidState(const Titration& titration, double addedMillilitres);

// pH = -lg a(H+), as a glass electrode shows it.
// Source of the definition: IUPAC, Measurement of pH, 2002.
double strongAcidPh(const Titration& titration, double addedMillilitres);

// -lg a of the ions, as pH is defined.
struct IonExponents {
    double pH = 0;
    double pOH = 0;
    double pCl = 0;
    double pNa = 0;
};

// There is no Na+ before the first drop and so no pNa: below 0.1 mL it is that of 0.1 mL.
IonExponents strongAcidExponents(const Titration& titration, double addedMillilitres);

} // namespace quendal::curves
