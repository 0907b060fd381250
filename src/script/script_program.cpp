#include "script/script_program.h"

#include <ostream>

namespace quendal {

std::optional<ReadyScript> readyScript(const std::string& file, const ProgramChooser& choose,
                                       std::ostream& err) {
    const auto refuse = [&](const ScriptFault& fault) {
        err << file << ':' << fault.line << ": " << fault.message << '\n';
        return std::nullopt;
    };
    ScriptFault fault;
    auto script = loadScript(file, fault);
    if (!script) {
        return refuse(fault);
    }
    ScriptProgram program = choose(script->settings, fault.message);
    if (!program) {
        return refuse({script->settings.form ? script->settings.form->line : 0, fault.message});
    }
    return ReadyScript{std::move(*script), std::move(program)};
}

} // namespace quendal
