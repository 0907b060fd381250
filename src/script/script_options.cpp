#include "script/script_options.h"

#include <charconv>
#include <utility>

namespace quendal {

namespace {

constexpr const char* kMonkey = "--monkey";

bool takeOption(const std::string& word, ScriptOptions& options) {
    if (word == "--desktop") {
        options.desktop = true;
    } else if (word == "--script-clock") {
        options.scriptClock = true;
    } else if (word == "--by-keys") {
        options.byKeys = true;
    } else if (word == "--keep-going") {
        options.keepGoing = true;
    } else if (word == kMonkey) {
        options.monkey.emplace();
    } else if (word == "--help" || word == "-h") {
        options.help = true;
    } else {
        return false;
    }
    return true;
}

template <class T>
bool readWhole(const std::string& word, T& value) {
    const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), value);
    return !word.empty() && fault == std::errc{} && end == word.data() + word.size();
}

// The words without a dash are seed, events and perhaps a form. False when they aren't.
bool takeMonkey(ScriptOptions& options) {
    const std::vector<std::string> words = std::exchange(options.files, {});
    MonkeyRequest& monkey = *options.monkey;
    const bool numbers = (words.size() == 2 || words.size() == 3) &&
                         readWhole(words[0], monkey.seed) && readWhole(words[1], monkey.events);
    if (words.size() == 3) {
        monkey.form = words[2];
    }
    const bool alone = !options.desktop && !options.keepGoing && !options.byKeys;
    return numbers && monkey.events > 0 && alone;
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
    if (options.monkey && !options.help && !takeMonkey(options)) {
        fault = "--monkey goes with a seed, a number of events and perhaps a form";
        return std::nullopt;
    }
    if (options.files.empty() && !options.help && !options.monkey) {
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
    return "quendal-script [--desktop [--script-clock]] [--by-keys] [--keep-going] FILE...\n"
           "quendal-script --monkey SEED EVENTS [FORM]\n"
           "Plays each file's learner against the program and prints what the learner sees.\n"
           "  --desktop       on the real windows, with real mouse and key events\n"
           "  --script-clock  the real windows run on the script's clock\n"
           "  --by-keys       the learner has no mouse and does everything with keys\n"
           "  --keep-going    go on after a failed expectation\n"
           "  --monkey        no file, but a learner who does anything, on the whole program or\n"
           "                  on one form; a failure is written as a script\n"
           "Exit status: 0 all expectations held, 1 one did not, 2 a malformed file or name,\n"
           "3 something that a learner could not have done.\n";
}

} // namespace quendal
