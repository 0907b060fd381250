// What the benchmarks of the desktop host share.
#pragma once

#include "desktop/desktop_host.h"

#include <benchmark/benchmark.h>

namespace quendal {

// The one host of the process, without a screen.
DesktopHost& benchHost();

} // namespace quendal
