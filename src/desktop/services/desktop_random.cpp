#include "desktop/services/desktop_random.h"

#include <chrono>

namespace quendal {

void DesktopRandom::Randomize() {
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    seed(static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::nanoseconds>(sinceEpoch).count()));
}

} // namespace quendal
