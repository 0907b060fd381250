#include "fuzz_input.h"
#include "host/term_markup.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    const std::string_view text = fuzzText(data, size);
    const std::string plain = plainTerm(text);
    // Only marks are left out, and a fraction's "/" gains two blanks.
    require(plain.size() <= 2 * text.size());
    if (text.find_first_of("|^(\xC2\xCE") == std::string_view::npos) {
        require(plain == text);
    }
    return 0;
}
