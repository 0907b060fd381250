// Plays scripts of a learner's actions against the program.
#include "headless/play_headless.h"
#include "script/desktop_script.h"
#include "script/play_each.h"
#include "script/script_options.h"
#include "shell/entry.h"

#include <iostream>

using namespace quendal;

namespace {

int playOne(int argc, char** argv, const ScriptOptions& options) {
    if (options.desktop) {
        return runDesktopScript(argc, argv, options);
    }
    return playHeadlessFile(options,
                            [&] { runSession("quendal-script " + options.files.front()); });
}

} // namespace

int main(int argc, char** argv) {
    std::string fault;
    const auto options = readScriptOptions({argv + 1, argv + argc}, fault);
    if (!options) {
        std::cerr << "quendal-script: " << fault << '\n' << scriptUsage();
        return static_cast<int>(ScriptStatus::Malformed);
    }
    if (options->help) {
        std::cout << scriptUsage();
        return 0;
    }
    return playEach(options->files, [&](const std::string& file) {
        ScriptOptions one = *options;
        one.files = {file};
        return playOne(argc, argv, one);
    });
}
