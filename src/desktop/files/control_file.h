// The teacher's control file: an INI file in UTF-8 with the section [QUENDAL_CONTROL].
#pragma once

#include <cstddef>
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

// Lines are `KEY = text` or `KEY = "text"`, comments begin with ";" or "#". Of a key that stands
// twice the first counts; other sections are skipped. nullopt, and the reason in German in `fault`,
// when the bytes are no such file: the whole file is then worth nothing, since half a lock would
// look like a lock.
std::optional<ControlKeys> parseControlFile(std::string_view bytes, std::string& fault);

} // namespace quendal
