// Item-wise writing and reading of stored data. One item is an array of variants on one line, in
// the packer's format, behind a header line; see docs/stored-data.md.
#pragma once

#include "host/variant.h"

#include <cstddef>
#include <optional>
#include <string>

namespace quendal {

class FileService;

class Stream {
  public:
    enum class Mode { Read, Write };

    // In memory: writing starts empty, reading reads `bytes`.
    static Stream writer();
    static Stream reader(std::string bytes);

    Mode mode() const { return mode_; }
    void WriteItem(const VariantArray& item);
    // The next item; nullopt at the end, in the wrong mode and behind anything malformed.
    std::optional<VariantArray> ReadItem();
    // What has been written, header included.
    const std::string& bytes() const { return bytes_; }

  private:
    Stream(Mode mode, std::string bytes);

    Mode mode_;
    std::string bytes_;
    std::size_t position_ = 0;
    bool good_ = true;
};

} // namespace quendal
