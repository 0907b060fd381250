// Where the program's data lie, for a host without a window system.
#pragma once

#include <string>

namespace quendal {

// `asked`, or else the first that is there of: beside the program, where a package installs it, the
// source tree. Absolute, with a separator at the end; one logged line when there is no such folder.
std::string chooseDataFolder(const std::string& asked);

} // namespace quendal
