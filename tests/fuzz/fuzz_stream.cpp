#include "fuzz_input.h"
#include "host/packer.h"
#include "host/stream.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    Stream from = Stream::reader(std::string(fuzzText(data, size)));
    Stream copy = Stream::writer();
    int items = 0;
    while (const auto item = from.ReadItem()) {
        copy.WriteItem(*item);
        ++items;
    }
    Stream again = Stream::reader(copy.bytes());
    Stream twice = Stream::writer();
    for (; items > 0; --items) {
        const auto item = again.ReadItem();
        require(item.has_value());
        twice.WriteItem(*item);
    }
    require(twice.bytes() == copy.bytes());
    return 0;
}
