// The signs that an RTF text is made of.
#pragma once

#include <cstddef>
#include <string_view>

namespace quendal {

struct RtfToken {
    enum class Kind {
        GroupOpen,
        GroupClose,
        Word,   // a control word, its name in `text`
        Symbol, // a control sign such as \~, the sign in `text`
        Byte,   // \'xx, the byte in `number`
        Text,   // plain bytes in `text`, without line ends
        End
    };
    Kind kind = Kind::End;
    std::string_view text;
    int number = 0; // parameter of a word, cut to one million either way
    bool hasNumber = false;
};

// Gives the signs of any bytes one by one; nothing is refused, and every call but the one that
// gives End goes on by at least one byte. Bytes behind \binN are skipped.
class RtfTokenizer {
  public:
    explicit RtfTokenizer(std::string_view bytes) : bytes_(bytes) {}
    RtfToken next();

  private:
    RtfToken control();
    RtfToken word();
    RtfToken hexByte();
    RtfToken plain();
    int parameter();

    std::string_view bytes_;
    std::size_t at_ = 0;
};

} // namespace quendal
