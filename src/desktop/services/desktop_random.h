// Chance on the desktop: every run is another one.
#pragma once

#include "host/random_source.h"

namespace quendal {

class DesktopRandom final : public RandomSource {
  public:
    DesktopRandom() { Randomize(); }
    void Randomize() override;
};

} // namespace quendal
