// The weak acid's steps, texts, places and rungs as tables.
#pragma once

#include "weak_silver/case_guidance.h"

namespace quendal {

const GuidanceTables& weakTables();
const CasePanel& weakPanel();

} // namespace quendal
