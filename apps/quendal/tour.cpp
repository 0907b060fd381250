#include "tour.h"

#include "headless/choose_data_folder.h"
#include "script/desktop_script.h"
#include "script/script_options.h"
#include "shell/entry.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace quendal {

namespace {

namespace fs = std::filesystem;

constexpr const char* kUsualFolder = "quendal-tour";

bool isSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

bool hasScreen() {
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
}

// Beside the data folder. Without resolving links: the build folder's data are one.
std::string tourScript() {
    return (fs::path(chooseDataFolder({})) / ".." / "tour.qs").lexically_normal().string();
}

// Pictures that a script takes land in the working folder. False, and one line, when there is no
// such folder and none can be made.
bool enterFolder(const std::string& folder) {
    std::error_code fault;
    fs::create_directories(folder, fault);
    if (!fault) {
        fs::current_path(folder, fault);
    }
    if (fault) {
        std::cerr << "In den Ordner \"" << folder << "\" kann ich nichts legen: " << fault.message()
                  << '\n';
    }
    return !fault;
}

// The log would only bury what is said here. It lives until the process ends.
void keepLog() {
    static std::ofstream log("tour.jsonl");
    std::cout.rdbuf(log.rdbuf());
}

} // namespace

int playTour(int argc, char** argv, const std::string& folder) {
    const bool pictures = !folder.empty() || !hasScreen();
    if (pictures) {
        const std::string& target = folder.empty() ? kUsualFolder : folder;
        if (!enterFolder(target)) {
            return EXIT_FAILURE;
        }
        std::cout << "Eine ganze Aufgabe spielt sich von selbst; ihre Bilder liegen dann in "
                  << target << ".\n"
                  << std::flush;
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        keepLog();
    } else {
        std::cout.rdbuf(nullptr); // who watches needs no log
    }
    const ScriptOptions options{.files = {tourScript()}, .desktop = true, .scriptClock = pictures};
    return runDesktopScript(argc, argv, options,
                            [](const ScriptSettings&, std::string&) { return runSession; });
}

} // namespace quendal
