// A value of the stored forms: what the packer and the stream carry.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace quendal {

struct Variant;
using VariantArray = std::vector<Variant>;

struct Variant {
    std::variant<std::monostate, bool, std::int32_t, double, std::string, VariantArray> value;

    friend bool operator==(const Variant&, const Variant&) = default;
};

} // namespace quendal
