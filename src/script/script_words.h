// The words of a script's line.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendal {

// Blanks separate; a word that begins with a double quote runs to the next one, with \", \\, \n and
// \r inside. nullopt, and the reason in `fault`, for a quote that isn't closed, an unknown sign
// behind a backslash, or anything but a blank behind a closing quote.
std::optional<std::vector<std::string>> splitWords(std::string_view line, std::string& fault);

} // namespace quendal
