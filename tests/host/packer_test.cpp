#include "host/packer.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace quendal {
namespace {

const VariantArray kEverything = {
    {std::monostate{}},
    {true},
    {false},
    {std::int32_t{-7}},
    {0.1},
    {std::string("Säure \"1\"\\\n\r\t\x7f") + '\0'},
    {VariantArray{{std::int32_t{1}}, {VariantArray{}}}},
};

constexpr const char* kEverythingPacked =
    R"(quendal-pack 1 [n t f i-7 d0.1 s"Säure \"1\"\\\x0a\x0d\x09\x7f\x00" [i1 []]])";

TEST(Packer, WritesTheDocumentedFormat) {
    EXPECT_EQ(Packer().Pack(kEverything), kEverythingPacked);
    EXPECT_EQ(Packer().Pack({}), "quendal-pack 1 []");
}

TEST(Packer, ReadsTheExampleOfTheDocumentation) {
    const std::string text =
        R"(quendal-pack 1 [s"Säure \"1\"" i8 d0.25 t n [d-0 s"Zeile 1\x0aZeile 2"]])";
    const auto values = Packer().Unpack(text);
    ASSERT_TRUE(values);
    EXPECT_EQ(values->size(), 6U);
    EXPECT_EQ(Packer().Pack(*values), text);
    EXPECT_EQ(Packer().Pack({{1e-7}}), "quendal-pack 1 [d1e-07]");
}

TEST(Packer, ReadsWhatItWrote) {
    EXPECT_EQ(Packer().Unpack(kEverythingPacked), kEverything);
    EXPECT_EQ(Packer().Unpack("quendal-pack 1 []"), VariantArray{});
}

std::uint64_t bitsAfterPacking(double value) {
    const auto read = Packer().Unpack(Packer().Pack({{value}}));
    return read ? std::bit_cast<std::uint64_t>(std::get<double>(read->at(0).value)) : ~0ULL;
}

TEST(Packer, KeepsDoublesBitForBit) {
    using Limits = std::numeric_limits<double>;
    std::vector<double> values = {0.0,
                                  -0.0,
                                  1.0 / 3,
                                  1.4 * 0.01,
                                  Limits::max(),
                                  Limits::min(),
                                  Limits::denorm_min(),
                                  Limits::infinity(),
                                  -Limits::infinity(),
                                  Limits::quiet_NaN(),
                                  std::bit_cast<double>(0xfff0000000000123U)};
    std::mt19937_64 random(3);
    for (int i = 0; i < 20'000; ++i) {
        values.push_back(std::bit_cast<double>(random()));
    }
    for (const double value : values) {
        ASSERT_EQ(bitsAfterPacking(value), std::bit_cast<std::uint64_t>(value));
    }
}

TEST(Packer, KeepsEveryByteOfATextOnOneLine) {
    std::string bytes;
    for (int c = 0; c < 256; ++c) {
        bytes += static_cast<char>(c);
    }
    const std::string packed = Packer().Pack({{bytes}});
    EXPECT_EQ(packed.find_first_of(std::string("\n\r\0", 3)), std::string::npos);
    EXPECT_EQ(Packer().Unpack(packed), (VariantArray{{bytes}}));
}

std::string nested(int depth) {
    const auto count = static_cast<std::size_t>(depth);
    return "quendal-pack 1 " + std::string(count, '[') + std::string(count, ']');
}

TEST(Packer, NestingIsBounded) {
    EXPECT_TRUE(Packer().Unpack(nested(32)));
    EXPECT_FALSE(Packer().Unpack(nested(33)));
    EXPECT_FALSE(Packer().Unpack("quendal-pack 1 " + std::string(1 << 20, '[')));
}

const char* const kForeign[] = {
    "",
    "[]",
    "quendal-pack 1",
    "quendal-pack 1 ",
    "quendal-pack 2 []",
    "quendal-pack 1  []",
    "Quendal-pack 1 []",
    "quendal-pack 1 [",
    "quendal-pack 1 []]",
    "quendal-pack 1 [] ",
    "quendal-pack 1 []\n",
    "quendal-pack 1 [ ]",
    "quendal-pack 1 [n ]",
    "quendal-pack 1 [ n]",
    "quendal-pack 1 [n  n]",
    "quendal-pack 1 [nn]",
    "quendal-pack 1 [n,n]",
    "quendal-pack 1 [u]",
    "quendal-pack 1 [true]",
    "quendal-pack 1 [i]",
    "quendal-pack 1 [i1.5]",
    "quendal-pack 1 [i+1]",
    "quendal-pack 1 [i2147483648]",
    "quendal-pack 1 [d]",
    "quendal-pack 1 [d0,5]",
    "quendal-pack 1 [d1e999]",
    "quendal-pack 1 [dnan]",
    "quendal-pack 1 [dinfinity]",
    "quendal-pack 1 [d1x]",
    "quendal-pack 1 [x7ff8]",
    "quendal-pack 1 [x3ff0000000000000]",
    "quendal-pack 1 [xfffffffffffffffg]",
    "quendal-pack 1 [s]",
    "quendal-pack 1 [s\"]",
    "quendal-pack 1 [s\"a]",
    "quendal-pack 1 [s\"\\n\"]",
    "quendal-pack 1 [s\"\\x0\"]",
    "quendal-pack 1 [s\"\\xzz\"]",
    "quendal-pack 1 [s\"\\x-1\"]",
    "quendal-pack 1 [s\"a\tb\"]",
    "quendal-pack 1 [s\"a\"n]",
};

TEST(Packer, RejectsWhatItDoesNotKnow) {
    for (const char* text : kForeign) {
        EXPECT_FALSE(Packer().Unpack(text)) << text;
    }
}

TEST(Packer, RejectsEveryCutText) {
    const std::string whole = kEverythingPacked;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_FALSE(Packer().Unpack(whole.substr(0, size))) << size;
    }
}

} // namespace
} // namespace quendal
