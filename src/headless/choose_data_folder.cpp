#include "headless/choose_data_folder.h"

#include "host/log.h"

#include <filesystem>
#include <system_error>
#include <vector>

namespace quendal {

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> candidates() {
    std::error_code fault;
    const fs::path program = fs::read_symlink("/proc/self/exe", fault).parent_path();
    return {program / "data", program / ".." / "share" / "quendal" / "data",
            QUENDAL_INSTALLED_DATA};
}

bool isFolder(const fs::path& path) {
    std::error_code fault;
    return fs::is_directory(path, fault);
}

fs::path firstFolder(const std::vector<fs::path>& folders) {
    for (const fs::path& folder : folders) {
        if (isFolder(folder)) {
            return folder;
        }
    }
    return folders.front();
}

} // namespace

std::string chooseDataFolder(const std::string& asked) {
    const fs::path folder = asked.empty() ? firstFolder(candidates()) : fs::path(asked);
    std::error_code fault;
    const fs::path whole = fs::absolute(folder, fault).lexically_normal();
    if (!isFolder(whole)) {
        logLine("no data folder at " + whole.string());
    }
    const std::string text = whole.string();
    return text.ends_with('/') ? text : text + '/';
}

} // namespace quendal
