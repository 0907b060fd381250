// Characters of UTF-8 in bytes.
#pragma once

#include <cstddef>
#include <string_view>

namespace quendal {

// True for the bytes of a character that come behind its first.
constexpr bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80U;
}

// The last place not behind `at` where a character begins, so that none is cut in two there.
constexpr std::size_t characterBegin(std::string_view text, std::size_t at) {
    while (at > 0 && at < text.size() && continuesCharacter(text[at])) {
        --at;
    }
    return at;
}

// Where the character that begins at `at` ends, whether well-formed or not.
constexpr std::size_t characterEnd(std::string_view text, std::size_t at) {
    do {
        ++at;
    } while (at < text.size() && continuesCharacter(text[at]));
    return at;
}

// Length in bytes of the well-formed UTF-8 character at `at`, 0 when there is none.
std::size_t utf8Length(std::string_view text, std::size_t at);

bool isUtf8(std::string_view text);

// The line, from 1, in which the first byte stands that is no UTF-8; the last one when all are.
std::size_t lineOfForeignByte(std::string_view text);

} // namespace quendal
