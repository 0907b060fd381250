#include "host/disk_file_service.h"

#include "host/file_name_match.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <vector>

namespace quendal {

namespace {

namespace fs = std::filesystem;

constexpr int kMaxFolderDepth = 16;

std::string withSlashes(std::string name) {
    std::replace(name.begin(), name.end(), '\\', '/');
    return name;
}

// A name that the system would cut at a zero byte names no file.
bool isUsable(const std::string& name) {
    return !name.empty() && name.find('\0') == std::string::npos;
}

bool isThere(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

bool isFile(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

// Names in `folder` in the order of their bytes; empty when it can't be read.
std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        names.push_back(entry->path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<fs::path> findIn(const fs::path& folder, const std::string& name) {
    if (isThere(folder / name)) {
        return folder / name;
    }
    const std::string folded = foldName(name);
    for (const std::string& candidate : namesIn(folder.empty() ? "." : folder)) {
        if (foldName(candidate) == folded) {
            return folder / candidate;
        }
    }
    return std::nullopt;
}

std::optional<fs::path> locate(const std::string& name) {
    if (!isUsable(name)) {
        return std::nullopt;
    }
    const fs::path wanted(withSlashes(name));
    if (isThere(wanted)) {
        return wanted;
    }
    fs::path found = wanted.root_path();
    for (const fs::path& part : wanted.relative_path()) {
        const auto next = part.empty() ? found / part : findIn(found, part.string());
        if (!next) {
            return std::nullopt;
        }
        found = *next;
    }
    return found;
}

void collect(const fs::path& folder, const std::string& pattern, int depth, FileList& files) {
    for (const std::string& name : namesIn(folder)) {
        const fs::path path = folder / name;
        std::error_code error;
        if (isFile(path) && matchesPattern(name, pattern)) {
            files.Add(path.string(), path.string());
        } else if (depth > 0 && fs::is_directory(fs::symlink_status(path, error))) {
            collect(path, pattern, depth - 1, files);
        }
    }
}

// Where a new file of this name belongs: in the folder that is there, whatever the case it is
// written in.
fs::path placeFor(const std::string& name) {
    const fs::path wanted(withSlashes(name));
    const auto folder = locate(wanted.parent_path().string());
    return folder ? *folder / wanted.filename() : wanted;
}

bool writeWhole(const fs::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file.good();
}

} // namespace

FileList DiskFileService::FindFiles(const std::string& pattern, int subfolders, int, int,
                                    const void*) const {
    FileList files;
    const fs::path wanted(withSlashes(pattern));
    const fs::path folder = wanted.parent_path();
    const auto found = locate(folder.empty() ? "." : folder.string());
    if (isUsable(pattern) && found) {
        collect(*found, wanted.filename().string(), subfolders == 1 ? kMaxFolderDepth : 0, files);
    }
    return files;
}

bool DiskFileService::FileExists(const std::string& name) const {
    const auto path = locate(name);
    return path && isFile(*path);
}

std::string DiskFileService::realName(const std::string& name) const {
    const auto path = locate(name);
    return path ? path->string() : name;
}

std::optional<std::string> DiskFileService::read(const std::string& name, std::size_t limit) const {
    const auto path = locate(name);
    if (!path || !isFile(*path)) {
        return std::nullopt;
    }
    std::ifstream file(*path, std::ios::binary);
    std::string bytes;
    std::vector<char> block(1U << 16);
    while (file) {
        file.read(block.data(), static_cast<std::streamsize>(block.size()));
        bytes.append(block.data(), static_cast<std::size_t>(file.gcount()));
        if (bytes.size() > limit) {
            return std::nullopt;
        }
    }
    return file.eof() ? std::optional(std::move(bytes)) : std::nullopt;
}

bool DiskFileService::write(const std::string& name, const std::string& bytes) {
    if (!isUsable(name)) {
        return false;
    }
    const fs::path path = locate(name).value_or(placeFor(name));
    // Written beside it first, so that a full disk doesn't cost what stood there before.
    fs::path beside = path;
    beside += ".part";
    std::error_code error;
    if (writeWhole(beside, bytes)) {
        fs::rename(beside, path, error);
        if (!error) {
            return true;
        }
    }
    fs::remove(beside, error);
    return false;
}

} // namespace quendal
