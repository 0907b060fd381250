#include "script/script_options.h"

namespace quendal {

namespace {

bool takeOption(const std::string& word, ScriptOptions& options) {
    if (word == "--desktop") {
        options.desktop = true;
    } else if (word == "--script-clock") {
        options.scriptClock = true;
    } else if (word == "--keep-going") {
        options.keepGoing = true;
    } else if (word == "--help" || word == "-h") {
        options.help = true;
    } else {
        return false;
    }
    return true;
}

} // namespace

std::optional<ScriptOptions> readScriptOptions(const std::vector<std::string>& arguments,
                                               std::string& fault) {
    ScriptOptions options;
    for (const std::string& word : arguments) {
        if (!word.starts_with('-')) {
            options.files.push_back(word);
        } else if (!takeOption(word, options)) {
            fault = "unknown option " + word;
            return std::nullopt;
        }
    }
    if (options.files.empty() && !options.help) {
        fault = "no script";
        return std::nullopt;
    }
    if (options.scriptClock && !options.desktop) {
        fault = "--script-clock goes with --desktop";
        return std::nullopt;
    }
    return options;
}

std::string scriptUsage() {
    return "quendal-script [--desktop [--script-clock]] [--keep-going] FILE...\n"
           "Plays each file's learner against the program and prints what the learner sees.\n"
           "  --desktop       on the real windows, with real mouse and key events\n"
           "  --script-clock  the real windows run on the script's clock\n"
           "  --keep-going    go on after a failed expectation\n"
           "Exit status: 0 all expectations held, 1 one did not, 2 a malformed file or name,\n"
           "3 something that a learner could not have done.\n";
}

} // namespace quendal
