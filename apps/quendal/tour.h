// A whole task that plays by itself, to show the program and to try an installation.
#pragma once

#include <string>

namespace quendal {

// Plays the tour that lies beside the installed data: in real time on the screen or, when there is
// no screen or a folder is named, without one and on a clock of its own into PNG files and the log
// `tour.jsonl` in that folder ("quendal-tour" when none is named). The process is fresh: nothing of
// a window system has run in it. Gives the exit status of the script player.
int playTour(int argc, char** argv, const std::string& folder);

} // namespace quendal
