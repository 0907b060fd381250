#include "fuzz_input.h"
#include "host/number_service.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    const std::string_view text = fuzzText(data, size);
    const NumberService numbers;
    const auto value = numbers.ParseVariant(text);
    require(std::isnan(numbers.Parse(text)) == !value);
    if (value) {
        require(std::isfinite(*value));
        const std::string shown = numbers.text(*value);
        require(numbers.ParseVariant(shown).has_value() || std::fabs(*value) > 1.79e308);
        for (const int places : {0, 3, 15}) {
            require(numbers.ParseVariant(numbers.Format(*value, places)).has_value());
        }
    }
    require(!std::isnan(leadingNumber(text)));
    return 0;
}
