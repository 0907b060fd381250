// Commands are read in any letter case.
#pragma once

#include <algorithm>
#include <string>

namespace quendal {

inline std::string upperCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
    return text;
}

} // namespace quendal
