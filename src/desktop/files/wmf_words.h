// What stands in one record of a metafile: words of 16 bits, low byte first.
#pragma once

#include "host/color.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quendal {

// Looks at the bytes of the record. Every index must be less than size().
class WmfWords {
  public:
    explicit WmfWords(std::string_view bytes) : bytes_(bytes) {}

    std::size_t size() const { return bytes_.size() / 2; }
    unsigned unsignedAt(std::size_t index) const {
        return byte(2 * index) + 256U * byte(2 * index + 1);
    }
    int at(std::size_t index) const { return static_cast<std::int16_t>(unsignedAt(index)); }
    // Takes two words.
    Color colorAt(std::size_t index) const {
        return {byte(2 * index), byte(2 * index + 1), byte(2 * index + 2)};
    }
    std::string_view bytesFrom(std::size_t index) const { return bytes_.substr(2 * index); }

  private:
    std::uint8_t byte(std::size_t index) const { return static_cast<std::uint8_t>(bytes_[index]); }

    std::string_view bytes_;
};

} // namespace quendal
