#include "desktop/files/command_line.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    const auto words = splitArguments(fuzzText(data, size));
    require(splitArguments(joinArguments(words)) == words);
    const CommandLine line = parseCommandLine(fuzzText(data, size));
    require(line.faults.size() <= words.size());
    return 0;
}
