// Turns an array of variants into one text and back. The format is told in docs/stored-data.md.
#pragma once

#include "host/variant.h"

#include <optional>
#include <string>
#include <string_view>

namespace quendal {

class Packer {
  public:
    std::string Pack(const VariantArray& values) const;
    // nullopt for a text of another version, with anything unknown in it, cut short or nested more
    // than 32 deep.
    std::optional<VariantArray> Unpack(std::string_view text) const;
};

} // namespace quendal
