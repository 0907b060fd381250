// The steps, texts, places and rungs of chloride with silver ions as tables.
#pragma once

#include "weak_silver/case_guidance.h"

namespace quendal {

const GuidanceTables& silverTables();
const CasePanel& silverPanel();

} // namespace quendal
