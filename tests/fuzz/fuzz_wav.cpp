#include "desktop/files/wav_check.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    constexpr std::size_t kLeast = 44; // bytes of a sound without a sample
    const std::string_view bytes = fuzzText(data, size);
    if (wavFault(bytes).empty()) {
        require(size >= kLeast && bytes.starts_with("RIFF"));
        require(!wavFault(bytes.substr(0, kLeast - 1)).empty());
    }
    return 0;
}
