#include "headless/play_headless.h"

#include "headless/choose_data_folder.h"
#include "headless/headless_actor.h"
#include "headless/headless_host.h"
#include "script/keyboard_actor.h"
#include "script/script_player.h"
#include "shell/session/session.h"

#include <iostream>

namespace quendal {

int playHeadless(const Script& script, const ScriptOptions& options,
                 const std::function<void()>& program, std::ostream& out, std::ostream& err) {
    resetSession();
    HeadlessHost host(script.settings, chooseDataFolder(script.settings.data));
    HeadlessActor actor;
    KeyboardActor keyboard(actor);
    ScriptActor& hands = options.byKeys ? static_cast<ScriptActor&>(keyboard) : actor;
    ScriptPlayer player(script, hands, {.keepGoing = options.keepGoing, .realClock = false}, out,
                        err);
    host.watch(&player, &player);
    try {
        program();
        // A program that comes back has ended all the same.
        host.windows().EndProcess();
    } catch (const ProcessEnded&) {
        return player.exitStatus();
    }
}

int playHeadlessFile(const ScriptOptions& options, const ProgramChooser& choose) {
    const std::string& file = options.files.front();
    const auto ready = readyScript(file, choose, std::cerr);
    if (!ready) {
        return static_cast<int>(ScriptStatus::Malformed);
    }
    const auto program = [&] { ready->program("quendal-script " + file); };
    return playHeadless(ready->script, options, program, std::cout, std::cerr);
}

} // namespace quendal
