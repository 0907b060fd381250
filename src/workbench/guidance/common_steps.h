// Rows that the step tables of all forms begin with: the amount of the sample, the amount of the
// reagent, then a choice.
#pragma once

#include "workbench/guidance/steps.h"

namespace quendal {

// Steps 1 to 7: what is given and what follows from it exactly, the volume and the amount of the
// reagent to `digits` decimals (below 0: exactly).
std::vector<StepRow> amountSteps(int digits);

// What is shown at steps 1 to 6, with the headings lab_CalcStep(firstHeading) and the next one.
std::vector<ShownRow> amountRows(int firstHeading);

template <class Row>
std::vector<Row> joined(std::vector<Row> first, std::span<const Row> second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace quendal
