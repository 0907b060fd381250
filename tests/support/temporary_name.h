#pragma once

#include <filesystem>
#include <string>

#include <unistd.h>

namespace quendal::test {

// A path in the folder for temporary files that no other test process uses: tests run side by side.
inline std::filesystem::path temporaryName(const std::string& stem,
                                           const std::string& extension = {}) {
    return std::filesystem::temp_directory_path() /
           (stem + '-' + std::to_string(getpid()) + extension);
}

} // namespace quendal::test
