// The apparatus that two forms share: hydrochloric acid in 90 mL of water, titrated with a base.
#pragma once

#include "workbench/variant.h"

namespace quendal {

// Without what the forms calculate: captions, curve, texts of calculation and comparison.
WorkbenchVariant dilutedStrongAcid();

} // namespace quendal
