// The desktop program.
#include "desktop/desktop_host.h"
#include "shell/entry.h"

#include <QApplication>

#include <iostream>

using namespace quendal;

namespace {

// What only prints and needs no window. True when that was all.
bool answered(const CommandLine& line) {
    if (line.help || line.version) {
        std::cout << (line.help ? helpText() : versionText());
    }
    return line.help || line.version;
}

} // namespace

int main(int argc, char** argv) {
    const std::string text = joinArguments({argv + 1, argv + argc});
    const CommandLine line = parseCommandLine(text);
    if (answered(line)) {
        return 0;
    }
    QApplication application(argc, argv);
    DesktopHost host(application, line);
    runSession(text);
}
