#include "host/file_name_match.h"

#include "host/utf8.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace quendal {

namespace {

struct Folding {
    std::string_view written;
    std::string_view folded;
};

constexpr Folding kFoldings[] = {
    {"\u00C4", "\u00E4"},  {"\u00D6", "\u00F6"},  {"\u00DC", "\u00FC"},  {"\u1E9E", "\u00DF"},
    {"A\u0308", "\u00E4"}, {"O\u0308", "\u00F6"}, {"U\u0308", "\u00FC"}, {"a\u0308", "\u00E4"},
    {"o\u0308", "\u00F6"}, {"u\u0308", "\u00FC"},
};

const Folding* foldingAt(std::string_view rest) {
    for (const Folding& folding : kFoldings) {
        if (rest.starts_with(folding.written)) {
            return &folding;
        }
    }
    return nullptr;
}

constexpr char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool matchesFolded(std::string_view name, std::string_view pattern) {
    std::size_t n = 0;
    std::size_t p = 0;
    std::size_t star = std::string_view::npos; // of the last "*", to which a mismatch goes back
    std::size_t starName = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            starName = n;
        } else if (p < pattern.size() && pattern[p] == '?') {
            n = characterEnd(name, n);
            ++p;
        } else if (p < pattern.size() && pattern[p] == name[n]) {
            ++n;
            ++p;
        } else if (star != std::string_view::npos) {
            starName = characterEnd(name, starName);
            n = starName;
            p = star + 1;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

} // namespace

std::string foldName(std::string_view name) {
    std::string folded;
    folded.reserve(name.size());
    while (!name.empty()) {
        const Folding* folding = foldingAt(name);
        if (folding != nullptr) {
            folded += folding->folded;
            name.remove_prefix(folding->written.size());
        } else {
            folded += lower(name.front());
            name.remove_prefix(1);
        }
    }
    return folded;
}

std::string upperName(std::string_view name) {
    const std::string folded = foldName(name);
    std::string upper;
    for (std::string_view rest = folded; !rest.empty();) {
        const auto* capital =
            std::find_if(std::begin(kFoldings), std::end(kFoldings), [&](const Folding& folding) {
                return folding.written.size() == folding.folded.size() &&
                       rest.starts_with(folding.folded);
            });
        if (capital != std::end(kFoldings)) {
            upper += capital->written;
            rest.remove_prefix(capital->folded.size());
        } else {
            const char c = rest.front();
            upper += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
            rest.remove_prefix(1);
        }
    }
    return upper;
}

bool matchesPattern(std::string_view name, std::string_view pattern) {
    return pattern == "*.*" || matchesFolded(foldName(name), foldName(pattern));
}

} // namespace quendal
