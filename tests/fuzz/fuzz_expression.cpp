#include "fuzz_input.h"
#include "host/expression.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    const ExpressionResult result = evaluateExpression(fuzzText(data, size));
    require(!result || std::isfinite(result.value));
    require(result || !faultText(result.fault).empty());
    return 0;
}
