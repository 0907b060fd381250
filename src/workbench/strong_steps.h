// The strong acid's steps, layout and rungs as tables.
#pragma once

#include "workbench/guidance/steps.h"

namespace quendal {

const GuidanceTables& strongTables();

} // namespace quendal
