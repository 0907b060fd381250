// Files in memory.
#pragma once

#include "host/file_service.h"

#include <map>
#include <string>

namespace quendal::test {

// Names are compared with "\" as "/" and without regard to ASCII case, as a host does.
class MemoryFiles final : public FileService {
  public:
    FileList FindFiles(const std::string& pattern, int subfolders = 0, int = 0, int = -1,
                       const void* = nullptr) const override;
    bool FileExists(const std::string& name) const override;
    std::string realName(const std::string& name) const override { return name; }
    std::optional<std::string> read(const std::string& name,
                                    std::size_t limit = 64U << 20) const override;
    bool write(const std::string& name, const std::string& bytes) override;

    bool writable = true; // false: every write fails

  private:
    struct File {
        std::string name; // as it was written
        std::string bytes;
    };
    std::map<std::string, File> files_; // by comparable name
};

} // namespace quendal::test
