#include "host/calc_presets.h"
#include "host/key_list.h"
#include "host/string_list.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

using Texts = std::vector<std::string>;

Texts split(std::string_view text) {
    StringList list;
    list.Split(text, ',');
    return list.items();
}

TEST(StringList, Splits) {
    EXPECT_EQ(split("1,5,9,10,11,15"), (Texts{"1", "5", "9", "10", "11", "15"}));
    EXPECT_EQ(split(""), Texts{});
    EXPECT_EQ(split("1"), Texts{"1"});
    EXPECT_EQ(split(","), (Texts{"", ""}));
    EXPECT_EQ(split("1,,2,"), (Texts{"1", "", "2", ""}));
    EXPECT_EQ(split("1, 2"), (Texts{"1", " 2"}));
}

TEST(StringList, SplitAppends) {
    StringList list;
    list.Split("1,5", ',');
    list.Split("9;10", ';');
    EXPECT_EQ(list.items(), (Texts{"1", "5", "9", "10"}));
}

TEST(StringList, ContainsWholeItemsOnly) {
    StringList list;
    list.Split("0,5,11,15", ',');
    EXPECT_TRUE(list.Contains("11"));
    EXPECT_TRUE(list.Contains("0"));
    EXPECT_FALSE(list.Contains("1"));
    EXPECT_FALSE(list.Contains(""));
    EXPECT_FALSE(list.Contains("5,11"));
    list.Clear();
    EXPECT_FALSE(list.Contains("11"));
}

TEST(KeyList, CountsFromOne) {
    KeyList list;
    list.Add("b", "second");
    list.Add("a", "first");
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Item(1), "second");
    EXPECT_EQ(list.Item(2), "first");
    for (const int index : {0, 3, -1}) {
        EXPECT_EQ(list.Item(index), "");
        EXPECT_FALSE(list.Exists(index));
    }
    EXPECT_TRUE(list.Exists(1));
    EXPECT_TRUE(list.Exists("a"));
    EXPECT_FALSE(list.Exists("first"));
    EXPECT_FALSE(list.Exists(""));
}

TEST(KeyList, RemovesTheFirstWithTheKey) {
    KeyList list;
    list.Add("a", "1");
    list.Add("b", "2");
    list.Add("a", "3");
    EXPECT_TRUE(list.Remove("a"));
    EXPECT_EQ(list.Item(1), "2");
    EXPECT_EQ(list.Item(2), "3");
    EXPECT_FALSE(list.Remove("c"));
    list.Clear();
    EXPECT_EQ(list.Count(), 0);
}

TEST(KeyList, SortsByTheBytesOfTheItems) {
    FileList files;
    for (const char* name : {"bur10", "bur02", "Bur01", "bur1"}) {
        files.Add(name, name);
    }
    files.Sort(-1);
    EXPECT_EQ(files.Item(1), "Bur01");
    EXPECT_EQ(files.Item(2), "bur02");
    EXPECT_EQ(files.Item(3), "bur1");
    EXPECT_EQ(files.Item(4), "bur10");
}

TEST(CalcPresets, TakesLinesUpToItsCapacity) {
    CalcPresets presets;
    presets.Add(" ", "before Init");
    presets.Init(2);
    for (const char* term : {"1+1", "2+2", "3+3"}) {
        presets.Add(" ", term);
    }
    EXPECT_EQ(presets.lines(), (Texts{"1+1", "2+2"}));
}

TEST(CalcPresets, TakesNothingBehindFinish) {
    CalcPresets presets;
    presets.Init(8);
    presets.Add(" ", "1+1");
    presets.Finish();
    presets.Add(" ", "2+2");
    EXPECT_EQ(presets.lines(), Texts{"1+1"});
    presets.Clear();
    EXPECT_TRUE(presets.lines().empty());
    presets.Init(8);
    presets.Add(" ", "3+3");
    EXPECT_EQ(presets.lines(), Texts{"3+3"});
}

TEST(CalcPresets, InitEmptiesTheList) {
    CalcPresets presets;
    presets.Init(8);
    presets.Add(" ", "1+1");
    presets.Init(-1);
    presets.Add(" ", "2+2");
    EXPECT_TRUE(presets.lines().empty());
}

} // namespace
} // namespace quendal
