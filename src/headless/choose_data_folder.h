// Where the program's data lie, for a host without a window system.
#pragma once

#include <string>

namespace quendal {

// `asked`, or else the first that is there of: beside the program, in the share folder of its own
// prefix (a build folder has one too), where the package was meant to go. Absolute, with a
// separator at the end; one logged line when there is no such folder.
std::string chooseDataFolder(const std::string& asked);

} // namespace quendal
