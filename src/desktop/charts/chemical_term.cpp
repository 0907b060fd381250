#include "desktop/charts/chemical_term.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr const char* kMinus = "\xE2\x88\x92"; // as long as a plus
constexpr std::string_view kBetweenWords = " ()[],;:/";

bool isUpper(char c) {
    return c >= 'A' && c <= 'Z';
}
bool isLower(char c) {
    return c >= 'a' && c <= 'z';
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Symbols of elements, or such as "Ac", with numbers behind them and a charge at the end.
bool isIon(std::string_view word) {
    if (word.size() < 2 || (word.back() != '+' && word.back() != '-') || !isUpper(word[0])) {
        return false;
    }
    word.remove_suffix(1);
    for (std::size_t i = 1; i < word.size(); ++i) {
        const bool second = isLower(word[i]) && isUpper(word[i - 1]);
        if (!second && !isUpper(word[i]) && !isDigit(word[i])) {
            return false;
        }
    }
    return true;
}

// The numbers behind a single symbol belong to the charge: "Ca2+".
std::string typeset(std::string_view ion) {
    const std::size_t symbol = isLower(ion[1]) ? 2 : 1;
    const bool single = ion.find_first_not_of("0123456789", symbol) == ion.size() - 1;
    const std::size_t charge = single ? symbol : ion.size() - 1;
    std::string term;
    for (std::size_t i = 0; i < charge; ++i) {
        const bool lowered = i > 0 && isDigit(ion[i - 1]);
        if (isDigit(ion[i]) && !lowered) {
            term += "µ";
        } else if (!isDigit(ion[i]) && lowered) {
            term += '|';
        }
        term += ion[i];
    }
    term += '^' + std::string(ion.substr(charge, ion.size() - charge - 1));
    return term + (ion.back() == '-' ? kMinus : "+") + '|';
}

} // namespace

std::string chemicalTerm(std::string_view text) {
    std::string term;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(kBetweenWords), text.size());
        const std::string_view word = text.substr(0, end);
        term += isIon(word) ? typeset(word) : std::string(word);
        if (end < text.size()) {
            term += text[end];
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return term;
}

} // namespace quendal
