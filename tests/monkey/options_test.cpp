#include "monkey/play_monkey.h"
#include "script/script_options.h"

#include <gtest/gtest.h>

namespace quendal::test {
namespace {

std::optional<ScriptOptions> read(const std::vector<std::string>& words) {
    std::string fault;
    auto options = readScriptOptions(words, fault);
    EXPECT_EQ(fault.empty(), options.has_value());
    return options;
}

TEST(MonkeyOptions, AreASeedEventsAndPerhapsAForm) {
    const auto whole = read({"--monkey", "18446744073709551615", "10000000"});
    ASSERT_TRUE(whole && whole->monkey);
    EXPECT_EQ(whole->monkey->seed, 18446744073709551615U);
    EXPECT_EQ(whole->monkey->events, 10000000);
    EXPECT_EQ(whole->monkey->form, "");
    EXPECT_TRUE(whole->files.empty());
    const auto form = read({"--monkey", "1", "5", "frm_AppIntro"});
    ASSERT_TRUE(form && form->monkey);
    EXPECT_EQ(form->monkey->form, "frm_AppIntro");
}

TEST(MonkeyOptions, AnythingElseIsRefused) {
    EXPECT_FALSE(read({"--monkey"}));
    EXPECT_FALSE(read({"--monkey", "1"}));
    EXPECT_FALSE(read({"--monkey", "x", "10"}));
    EXPECT_FALSE(read({"--monkey", "1", "10x"}));
    EXPECT_FALSE(read({"--monkey", "1", "0"}));
    EXPECT_FALSE(read({"--monkey", "-1", "5"}));
    EXPECT_FALSE(read({"--monkey", "1", "5", "frm_AppIntro", "more"}));
    EXPECT_FALSE(read({"--monkey", "--desktop", "1", "5"}));
    EXPECT_FALSE(read({"--monkey", "--keep-going", "1", "5"}));
    EXPECT_FALSE(read({"--monkey", "--by-keys", "1", "5"}));
}

TEST(MonkeyOptions, HelpAndFilesStayWhatTheyWere) {
    EXPECT_TRUE(read({"--help"})->help);
    EXPECT_FALSE(read({"a.qs"})->monkey);
}

TEST(MonkeyOptions, OnlyFormsOfTheProgramAreKnown) {
    EXPECT_TRUE(monkeyKnows("frm_AppMainStrong"));
    EXPECT_FALSE(monkeyKnows("frm_Nowhere"));
}

} // namespace
} // namespace quendal::test
