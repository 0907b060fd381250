// Plays scripts of a learner's actions against the program.
#include "headless/play_headless.h"
#include "script/desktop_script.h"
#include "script/play_each.h"
#include "script/script_options.h"
#include "shell/entry.h"
#include "shell/single_forms.h"

#include <iostream>

using namespace quendal;

namespace {

ScriptProgram chooseProgram(const ScriptSettings& settings, std::string& fault) {
    return settings.form ? singleFormProgram(singleForms(), settings.form->name,
                                             settings.form->fields, runSingleForm, fault)
                         : runSession;
}

int playOne(int argc, char** argv, const ScriptOptions& options) {
    return options.desktop ? runDesktopScript(argc, argv, options, chooseProgram)
                           : playHeadlessFile(options, chooseProgram);
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
