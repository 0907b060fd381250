// Bytes to Unicode and back, for the readers of text files.
#pragma once

#include "host/utf8.h"

#include <string>
#include <string_view>

namespace quendal {

inline constexpr char32_t kReplacementCharacter = 0xFFFD;

// Appends one character in UTF-8; what is no character becomes the replacement character.
void appendUtf8(std::string& text, char32_t character);

// The character of a byte of the Windows code page 1252; its five holes give the replacement
// character.
char32_t fromCp1252(unsigned char byte);

// `text` with every byte that is no part of a character replaced.
std::string repairedUtf8(std::string_view text);

} // namespace quendal
