// A chart in words, for who doesn't see it.
#pragma once

#include <string>

namespace quendal {

class ChartView;

// The axes, and of each series that is shown how many points it has, its last one and where it
// rises or falls the most: German, in sentences.
std::string chartWords(const ChartView& view);

} // namespace quendal
