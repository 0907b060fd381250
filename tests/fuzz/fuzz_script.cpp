#include "fuzz_input.h"
#include "script/json_line.h"
#include "script/script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    const std::string_view text = fuzzText(data, size);
    ScriptFault fault;
    const auto script = parseScript(text, fault);
    require(script.has_value() == fault.message.empty());
    require(!script || !script->steps.empty());
    for (const char c : jsonText(text)) {
        require(static_cast<unsigned char>(c) >= 0x20);
    }
    return 0;
}
