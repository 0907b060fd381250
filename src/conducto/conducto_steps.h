// The six steps of the conductometric forms as rows.
#pragma once

#include "workbench/guidance/steps.h"

namespace quendal {

// Total volume, four ions by their conductivity, the sum.
const GuidanceTables& conductivityTables();
// Total volume, then concentrations and logarithms, which are shown and not asked.
const GuidanceTables& logarithmTables();

} // namespace quendal
