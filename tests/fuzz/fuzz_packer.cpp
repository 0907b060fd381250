#include "fuzz_input.h"
#include "host/packer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    const Packer packer;
    if (const auto values = packer.Unpack(fuzzText(data, size))) {
        // Compared as texts: a value that is no number doesn't equal itself.
        const std::string packed = packer.Pack(*values);
        const auto again = packer.Unpack(packed);
        require(again.has_value() && packer.Pack(*again) == packed);
    }
    return 0;
}
