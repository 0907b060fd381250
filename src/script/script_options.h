// The command line of the script player.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quendal {

enum class ScriptStatus {
    Held = 0,       // every expectation held
    Failed = 1,     // one did not
    Malformed = 2,  // the file is malformed or names what isn't there
    Impossible = 3, // a learner could not have done it, or the time is used up
};

// Random events in place of a file.
struct MonkeyRequest {
    std::uint64_t seed = 1;
    long events = 0;
    std::string form; // to stay on, empty for the whole program
};

struct ScriptOptions {
    std::vector<std::string> files;
    std::optional<MonkeyRequest> monkey;
    bool desktop = false;     // on the real windows
    bool scriptClock = false; // the real windows run on the script's clock
    bool byKeys = false;      // the learner has no mouse
    bool keepGoing = false;   // go on after a failed expectation
    bool help = false;
};

// nullopt, and the reason in `fault`, when the command line makes no sense.
std::optional<ScriptOptions> readScriptOptions(const std::vector<std::string>& arguments,
                                               std::string& fault);

// How the player is called, for --help.
std::string scriptUsage();

} // namespace quendal
