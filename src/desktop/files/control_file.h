// The teacher's control file: an INI file in UTF-8 with the section [QUENDAL_CONTROL].
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace quendal {

inline constexpr std::size_t kControlFileLimit = 1U << 20; // bytes

// Keys in capitals with their texts; a key with an empty text counts as not set and is left out.
using ControlKeys = std::map<std::string, std::string>;

// Key in any case as ControlKeys holds it.
std::string controlKeyName(std::string_view key);

// A line that sets a key.
struct ControlEntry {
    int line = 0;        // from 1
    std::string section; // in capitals, like the key
    std::string key;
    std::string text; // an empty one sets nothing
};
using ControlVisitor = std::function<void(const ControlEntry&)>;

// Hands on every such line from top to bottom; of other sections those that can be read as one.
// False, and the reason in German in `fault`, when the bytes are no control file; what was handed
// on before is then worth nothing.
bool readControlFile(std::string_view bytes, const ControlVisitor& visit, std::string& fault);

// Lines are `KEY = text` or `KEY = "text"`, comments begin with ";" or "#". Of a key that stands
// twice the first counts; other sections are skipped. nullopt, and the reason in German in `fault`,
// when the bytes are no such file: the whole file is then worth nothing, since half a lock would
// look like a lock.
std::optional<ControlKeys> parseControlFile(std::string_view bytes, std::string& fault);

} // namespace quendal
