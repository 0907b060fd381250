#include "desktop/files/control_check.h"
#include "desktop/files/control_file.h"
#include "desktop/files/text_bytes.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    const std::string_view bytes = fuzzText(data, size);
    const ControlCheck check = checkControlText(bytes, "control.ini");
    require(!check.report.empty() && isUtf8(check.report));
    // No good word for what the program itself doesn't take.
    std::string fault;
    const bool taken = parseControlFile(bytes, fault).has_value();
    require(taken || check.verdict != ControlVerdict::Understood);
    return 0;
}
