// Tells a teacher in German what a control file locks, what it leaves open and what isn't
// understood in it, with the reader and the table of keys that the program itself uses.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quendal {

// Also the exit status of the program.
enum class ControlVerdict { Understood = 0, Findings = 1, Unreadable = 2 };

struct ControlCheck {
    ControlVerdict verdict = ControlVerdict::Understood;
    std::string report; // German, lines of at most 80 characters unless a word is longer
};

// `name` is what the report calls the file.
ControlCheck checkControlText(std::string_view bytes, std::string_view name);

// Reads the file first; a folder, a device or a file without the right to read is Unreadable.
ControlCheck checkControlFile(const std::filesystem::path& path);

} // namespace quendal
