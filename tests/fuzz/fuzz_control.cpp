#include "desktop/files/control_file.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    std::string fault;
    const auto keys = parseControlFile(fuzzText(data, size), fault);
    require(keys.has_value() == fault.empty());
    if (!keys) {
        return 0;
    }
    for (const auto& [key, text] : *keys) {
        require(!key.empty() && key == controlKeyName(key));
        require(!text.empty() && text.find_first_of("\r\n") == std::string::npos);
    }
    return 0;
}
