// Plays scripts of a learner's actions against the program.
#include "headless/play_headless.h"
#include "monkey/play_monkey.h"
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

int letMonkeyPlay(const MonkeyRequest& monkey) {
    if (!monkey.form.empty() && !monkeyKnows(monkey.form)) {
        std::cerr << "quendal-script: the monkey knows no form " << monkey.form << '\n';
        return static_cast<int>(ScriptStatus::Malformed);
    }
    return playMonkey({.seed = monkey.seed, .events = monkey.events, .form = monkey.form},
                      chooseProgram, std::cout, std::cerr);
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
    if (options->monkey) {
        return letMonkeyPlay(*options->monkey);
    }
    return playEach(options->files, [&](const std::string& file) {
        ScriptOptions one = *options;
        one.files = {file};
        return playOne(argc, argv, one);
    });
}
