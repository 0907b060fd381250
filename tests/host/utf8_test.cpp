#include "host/utf8.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

TEST(Utf8, TellsLengthsOfCharacters) {
    const std::string_view text = "aä€\U0001F600";
    EXPECT_EQ(utf8Length(text, 0), 1U);
    EXPECT_EQ(utf8Length(text, 1), 2U);
    EXPECT_EQ(utf8Length(text, 2), 0U); // within a character
    EXPECT_EQ(utf8Length(text, 3), 3U);
    EXPECT_EQ(utf8Length(text, 6), 4U);
    EXPECT_EQ(utf8Length(text, 10), 0U);
    EXPECT_TRUE(isUtf8(text));
    EXPECT_TRUE(isUtf8(""));
}

TEST(Utf8, RefusesWhatIsNoCharacter) {
    for (const std::string_view bad :
         {"\xE4", "\xC3", "\x80", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
          "\xF8\x88\x80\x80\x80", "\xE2\x82"}) {
        EXPECT_FALSE(isUtf8(bad)) << bad;
    }
}

TEST(Utf8, NamesTheLineOfTheFirstForeignByte) {
    EXPECT_EQ(lineOfForeignByte("\xFF\na"), 1U);
    EXPECT_EQ(lineOfForeignByte("ä\nb\nSt\xE4rke\n\xFF"), 3U);
    EXPECT_EQ(lineOfForeignByte("a\nb"), 2U);
}

} // namespace
} // namespace quendal
