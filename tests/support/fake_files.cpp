#include "support/fake_files.h"

#include <algorithm>
#include <string_view>

namespace quendal::test {

namespace {

std::string comparable(std::string_view name) {
    std::string text(name);
    std::transform(text.begin(), text.end(), text.begin(), [](char c) {
        const char slash = c == '\\' ? '/' : c;
        return slash >= 'A' && slash <= 'Z' ? static_cast<char>(slash - 'A' + 'a') : slash;
    });
    return text;
}

bool matches(std::string_view pattern, std::string_view name) {
    if (pattern.empty()) {
        return name.empty();
    }
    if (pattern.front() == '*') {
        return matches(pattern.substr(1), name) ||
               (!name.empty() && matches(pattern, name.substr(1)));
    }
    return !name.empty() && (pattern.front() == '?' || pattern.front() == name.front()) &&
           matches(pattern.substr(1), name.substr(1));
}

// Length of the folder in front of the last separator, separator included.
std::size_t folderLength(std::string_view name) {
    const auto slash = name.rfind('/');
    return slash == std::string_view::npos ? 0 : slash + 1;
}

} // namespace

FileList MemoryFiles::FindFiles(const std::string& pattern, int subfolders, int, int,
                                const void*) const {
    const std::string wanted = comparable(pattern);
    const std::string_view folder = std::string_view(wanted).substr(0, folderLength(wanted));
    const std::string_view base = std::string_view(wanted).substr(folder.size());
    FileList found;
    for (const auto& [name, file] : files_) {
        const std::string_view place = std::string_view(name).substr(0, folderLength(name));
        const bool here =
            subfolders == 1 ? place.substr(0, folder.size()) == folder : place == folder;
        if (here && matches(base, std::string_view(name).substr(place.size()))) {
            found.Add(file.name, file.name);
        }
    }
    return found;
}

bool MemoryFiles::FileExists(const std::string& name) const {
    return files_.count(comparable(name)) != 0;
}

std::optional<std::string> MemoryFiles::read(const std::string& name, std::size_t limit) const {
    const auto file = files_.find(comparable(name));
    if (file == files_.end() || file->second.bytes.size() > limit) {
        return std::nullopt;
    }
    return file->second.bytes;
}

bool MemoryFiles::write(const std::string& name, const std::string& bytes) {
    if (writable) {
        files_[comparable(name)] = {name, bytes};
    }
    return writable;
}

} // namespace quendal::test
