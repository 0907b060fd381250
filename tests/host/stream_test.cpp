#include "host/stream.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

const VariantArray kVersion = {{std::string("1.0")}};
const VariantArray kKey = {{std::string("Zeile 1\r\nZeile 2")}};
const VariantArray kNumber = {{0.5}};

std::string written() {
    Stream stream = Stream::writer();
    stream.WriteItem(kVersion);
    stream.WriteItem(kKey);
    stream.WriteItem(kNumber);
    return stream.bytes();
}

int itemsIn(std::string bytes) {
    Stream stream = Stream::reader(std::move(bytes));
    int count = 0;
    while (stream.ReadItem()) {
        ++count;
    }
    return count;
}

TEST(Stream, WritesOneLineAnItem) {
    EXPECT_EQ(written(), "quendal-stream 1\n"
                         "quendal-pack 1 [s\"1.0\"]\n"
                         "quendal-pack 1 [s\"Zeile 1\\x0d\\x0aZeile 2\"]\n"
                         "quendal-pack 1 [d0.5]\n");
}

TEST(Stream, ReadsTheItemsInOrder) {
    Stream stream = Stream::reader(written());
    EXPECT_EQ(stream.ReadItem(), kVersion);
    EXPECT_EQ(stream.ReadItem(), kKey);
    EXPECT_EQ(stream.ReadItem(), kNumber);
    EXPECT_EQ(stream.ReadItem(), std::nullopt);
    EXPECT_EQ(stream.ReadItem(), std::nullopt);
}

TEST(Stream, BearsForeignLineEnds) {
    std::string bytes = written();
    for (std::size_t at = bytes.find('\n'); at != std::string::npos;
         at = bytes.find('\n', at + 2)) {
        bytes.insert(at, 1, '\r');
    }
    EXPECT_EQ(itemsIn(bytes), 3);
}

TEST(Stream, AnEmptyStreamHasNoItems) {
    EXPECT_EQ(itemsIn(Stream::writer().bytes()), 0);
    EXPECT_EQ(itemsIn(""), 0);
}

TEST(Stream, RejectsAnotherVersion) {
    EXPECT_EQ(itemsIn("quendal-stream 2\nquendal-pack 1 []\n"), 0);
    EXPECT_EQ(itemsIn("quendal-pack 1 []\n"), 0);
    EXPECT_EQ(itemsIn("\nquendal-stream 1\nquendal-pack 1 []\n"), 0);
}

TEST(Stream, NothingIsReadBehindAMalformedItem) {
    const std::string header = "quendal-stream 1\n";
    const std::string good = "quendal-pack 1 []\n";
    EXPECT_EQ(itemsIn(header + good + good), 2);
    EXPECT_EQ(itemsIn(header + good + "quendal-pack 2 []\n" + good), 1);
    EXPECT_EQ(itemsIn(header + good + "\n" + good), 1);
    EXPECT_EQ(itemsIn(header + good + "quendal-pack 1 [\n" + good), 1);
}

TEST(Stream, ACutStreamGivesTheWholeItemsBeforeTheCut) {
    const std::string whole = written();
    int before = 0;
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        const int items = itemsIn(whole.substr(0, size));
        EXPECT_GE(items, before) << size;
        before = items;
    }
    EXPECT_EQ(before, 3);
}

TEST(Stream, EachModeDoesOnlyItsOwn) {
    Stream writer = Stream::writer();
    writer.WriteItem(kVersion);
    EXPECT_EQ(writer.mode(), Stream::Mode::Write);
    EXPECT_EQ(writer.ReadItem(), std::nullopt);
    Stream reader = Stream::reader(written());
    reader.WriteItem(kNumber);
    EXPECT_EQ(reader.mode(), Stream::Mode::Read);
    EXPECT_EQ(reader.bytes(), written());
}

} // namespace
} // namespace quendal
