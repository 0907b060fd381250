// The desktop program.
#include "desktop/desktop_host.h"
#include "desktop/files/control_check.h"
#include "shell/entry.h"
#include "tour.h"

#include <QApplication>

#include <iostream>
#include <optional>

using namespace quendal;

namespace {

// The exit status when the options only ask for something to be printed, which needs no window.
std::optional<int> answered(const CommandLine& line) {
    if (line.help || line.version) {
        std::cout << (line.help ? helpText() : versionText());
        return 0;
    }
    if (!line.check) {
        return std::nullopt;
    }
    for (const std::string& fault : line.faults) {
        std::cerr << fault << '\n';
    }
    if (!line.faults.empty()) {
        return static_cast<int>(ControlVerdict::Unreadable);
    }
    const ControlCheck check = checkControlFile(line.checkedFile);
    std::cout << check.report;
    return static_cast<int>(check.verdict);
}

} // namespace

int main(int argc, char** argv) {
    const std::string text = joinArguments({argv + 1, argv + argc});
    const CommandLine line = parseCommandLine(text);
    if (const auto status = answered(line)) {
        return *status;
    }
    if (line.tour) {
        return playTour(argc, argv, line.tourFolder);
    }
    QApplication application(argc, argv);
    DesktopHost host(application, line);
    host.useKeptSettings();
    runSession(text);
}
