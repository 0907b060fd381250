// Whether a sound file can be played, told from its bytes before a device is asked.
#pragma once

#include <string_view>

namespace quendal {

// What is wrong with the bytes as a whole WAV file with plain samples, in German; empty when
// nothing is.
std::string_view wavFault(std::string_view bytes);

} // namespace quendal
