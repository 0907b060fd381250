// Files below the data folder. Names with "\" and in any letter case are found on any system.
#pragma once

#include "host/key_list.h"

#include <cstddef>
#include <optional>
#include <string>

namespace quendal {

class FileService {
  public:
    virtual ~FileService() = default;
    // All files whose name matches `pattern`, a folder followed by a name with "*" and "?".
    // `subfolders` 1 also looks below the folder. A folder that isn't there gives an empty list.
    // The other arguments are always 0, -1 and none.
    virtual FileList FindFiles(const std::string& pattern, int subfolders = 0, int = 0, int = -1,
                               const void* = nullptr) const = 0;
    virtual bool FileExists(const std::string& name) const = 0;
    // The name under which the system knows the file; `name` itself when nothing is found. Umlauts
    // are found in composed and in decomposed form.
    virtual std::string realName(const std::string& name) const = 0;
    // The bytes of the file, nullopt when it can't be read or is longer than `limit`.
    virtual std::optional<std::string> read(const std::string& name,
                                            std::size_t limit = 64U << 20) const = 0;
    // False when the file can't be written whole.
    virtual bool write(const std::string& name, const std::string& bytes) = 0;
};

} // namespace quendal
