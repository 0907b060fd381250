// The program's options. They are handed to the host as one text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quendal {

struct CommandLine {
    std::string dataFolder;  // --data, empty when not given
    std::string controlFile; // --control
    std::string reportFile;  // --report
    std::string tourFolder;  // of --tour, empty when not given
    bool tour = false;
    std::string checkedFile; // --check-control
    bool check = false;      // true also when --check-control has no file
    bool help = false;
    bool version = false;
    // One German sentence for each word that is no option; the program goes on without it.
    std::vector<std::string> faults;

    friend bool operator==(const CommandLine&, const CommandLine&) = default;
};

// One text out of single arguments and back. Blanks separate; what holds blanks stands in double
// quotes, inside which \" and \\ stand for a quote and a backslash and any other backslash for
// itself.
std::string joinArguments(const std::vector<std::string>& arguments);
std::vector<std::string> splitArguments(std::string_view text);

// The text without the program's name. `--data DIR` and `--data=DIR` mean the same, the last of
// several counts.
CommandLine parseCommandLine(std::string_view text);

// What --help and --version print, in German, with line ends.
std::string helpText();
std::string versionText();

} // namespace quendal
