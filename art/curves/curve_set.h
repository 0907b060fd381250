// All curve files of the data folder.
#pragma once

#include "curve_file.h"

#include <vector>

namespace quendal::curves {

std::vector<CurveFile> allCurveFiles();

} // namespace quendal::curves
