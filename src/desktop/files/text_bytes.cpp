#include "desktop/files/text_bytes.h"

namespace quendal {

namespace {

// 0x80 to 0x9F of code page 1252; 0 where it has no character.
constexpr char16_t kCp1252[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                  0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

bool isCharacter(char32_t character) {
    return character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
}

void put(std::string& text, char32_t bits) {
    text += static_cast<char>(bits);
}

} // namespace

void appendUtf8(std::string& text, char32_t character) {
    const char32_t c = isCharacter(character) ? character : kReplacementCharacter;
    if (c < 0x80) {
        put(text, c);
    } else if (c < 0x800) {
        put(text, 0xC0 | (c >> 6));
        put(text, 0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        put(text, 0xE0 | (c >> 12));
        put(text, 0x80 | ((c >> 6) & 0x3F));
        put(text, 0x80 | (c & 0x3F));
    } else {
        put(text, 0xF0 | (c >> 18));
        put(text, 0x80 | ((c >> 12) & 0x3F));
        put(text, 0x80 | ((c >> 6) & 0x3F));
        put(text, 0x80 | (c & 0x3F));
    }
}

char32_t fromCp1252(unsigned char byte) {
    if (byte < 0x80 || byte > 0x9F) {
        return byte;
    }
    const char16_t character = kCp1252[byte - 0x80];
    return character != 0 ? character : kReplacementCharacter;
}

std::string repairedUtf8(std::string_view text) {
    std::string repaired;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = utf8Length(text, at);
        if (length == 0) {
            appendUtf8(repaired, kReplacementCharacter);
            ++at;
        } else {
            repaired.append(text, at, length);
            at += length;
        }
    }
    return repaired;
}

} // namespace quendal
