// The file service over the machine's own file system, for every host that has one.
#pragma once

#include "host/file_service.h"

namespace quendal {

class DiskFileService final : public FileService {
  public:
    FileList FindFiles(const std::string& pattern, int subfolders = 0, int = 0, int = -1,
                       const void* = nullptr) const override;
    bool FileExists(const std::string& name) const override;
    std::string realName(const std::string& name) const override;
    std::optional<std::string> read(const std::string& name,
                                    std::size_t limit = 64U << 20) const override;
    bool write(const std::string& name, const std::string& bytes) override;
};

} // namespace quendal
