// File names compared the way learners and schools write them.
#pragma once

#include <string>
#include <string_view>

namespace quendal {

// Lower case, umlauts and sharp s in composed form: two names that fold alike are the same file.
// Letters beyond A to Z, umlauts and sharp s stay as they are.
std::string foldName(std::string_view name);

// The same in capitals; the sharp s stays as it is.
std::string upperName(std::string_view name);

// `name` and `pattern` folded; "*" stands for any characters, "?" for exactly one. "*.*" matches
// names without a point too.
bool matchesPattern(std::string_view name, std::string_view pattern);

} // namespace quendal
