// Several scripts, each in a process of its own.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quendal {

// Plays one file and gives its exit status.
using PlayOne = std::function<int(const std::string& file)>;

// One file is played in this process, several one after the other in processes of their own, so
// that each finds the program as it is after its start. Gives the largest status; a process that
// a signal has ended counts as 128 and the signal's number.
int playEach(const std::vector<std::string>& files, const PlayOne& play);

} // namespace quendal
