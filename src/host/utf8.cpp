#include "host/utf8.h"

#include <algorithm>

namespace quendal {

namespace {

bool isUnicode(char32_t character) {
    return character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
}

std::size_t expectedLength(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 2;
    }
    if ((lead & 0xF0) == 0xE0) {
        return 3;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

// Where the well-formed text at the beginning ends.
std::size_t wellFormed(std::string_view text) {
    std::size_t at = 0;
    while (const std::size_t length = utf8Length(text, at)) {
        at += length;
    }
    return at;
}

} // namespace

std::size_t utf8Length(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[at + i]); };
    const std::size_t length = at < text.size() ? expectedLength(byte(0)) : 0;
    if (length < 2) {
        return length;
    }
    if (at + length > text.size()) {
        return 0;
    }
    char32_t value = byte(0) & (0x7F >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80) {
            return 0;
        }
        value = (value << 6) | (byte(i) & 0x3F);
    }
    constexpr char32_t kLeast[5] = {0, 0, 0x80, 0x800, 0x10000};
    return value >= kLeast[length] && isUnicode(value) ? length : 0;
}

bool isUtf8(std::string_view text) {
    return wellFormed(text) == text.size();
}

std::size_t lineOfForeignByte(std::string_view text) {
    const std::string_view good = text.substr(0, wellFormed(text));
    return 1 + static_cast<std::size_t>(std::count(good.begin(), good.end(), '\n'));
}

} // namespace quendal
