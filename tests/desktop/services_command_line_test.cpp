#include "desktop/files/command_line.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

TEST(CommandLineWords, JoiningAndSplittingKeepsEveryArgument) {
    const std::vector<std::vector<std::string>> rows = {
        {},
        {"--data", "/home/mia/Meine Daten"},
        {""},
        {"a\"b", "c\\d", "e \\ f\"", "\\"},
        {"--report=C:\\Schule\\b c.jsonl"},
        {"Titration \xC3\xBC"
         "ben"},
        {"\t", "x\ny"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(splitArguments(joinArguments(row)), row) << joinArguments(row);
    }
}

TEST(CommandLineWords, QuotesMayStandInsideAWordAndStayOpen) {
    EXPECT_EQ(splitArguments("--data=\"a b\"c"), std::vector<std::string>{"--data=a bc"});
    EXPECT_EQ(splitArguments("\"offen und"), std::vector<std::string>{"offen und"});
    EXPECT_EQ(splitArguments("\"\\"), std::vector<std::string>{"\\"});
    EXPECT_EQ(splitArguments("  \r\n "), std::vector<std::string>{});
}

TEST(CommandLine, TakesAllOptions) {
    const CommandLine line =
        parseCommandLine("--data /d --control=\"/etc/a b.ini\" --report r.jsonl --help --version");
    EXPECT_EQ(line.dataFolder, "/d");
    EXPECT_EQ(line.controlFile, "/etc/a b.ini");
    EXPECT_EQ(line.reportFile, "r.jsonl");
    EXPECT_TRUE(line.help);
    EXPECT_TRUE(line.version);
    EXPECT_TRUE(line.faults.empty());
}

TEST(CommandLine, EmptyTextAsksForNothing) {
    const CommandLine line = parseCommandLine("");
    EXPECT_EQ(line.dataFolder + line.controlFile + line.reportFile, "");
    EXPECT_FALSE(line.help || line.version);
}

TEST(CommandLine, TheLastOfSeveralCounts) {
    EXPECT_EQ(parseCommandLine("--data a --data=b").dataFolder, "b");
}

TEST(CommandLine, TheTourMayHaveAFolder) {
    EXPECT_FALSE(parseCommandLine("").tour);
    for (const char* text : {"--tour", "--tour=", "--tour --data x"}) {
        const CommandLine line = parseCommandLine(text);
        EXPECT_TRUE(line.tour) << text;
        EXPECT_EQ(line.tourFolder, "") << text;
        EXPECT_TRUE(line.faults.empty()) << text;
    }
    EXPECT_EQ(parseCommandLine("--tour bilder").tourFolder, "bilder");
    EXPECT_EQ(parseCommandLine("--tour=bilder --data x").tourFolder, "bilder");
    EXPECT_FALSE(parseCommandLine("--tourist").tour);
}

TEST(CommandLine, ACheckIsAskedForEvenWithoutAFile) {
    EXPECT_FALSE(parseCommandLine("--control a.ini").check);
    for (const char* text : {"--check-control a.ini", "--check-control=a.ini"}) {
        const CommandLine line = parseCommandLine(text);
        EXPECT_TRUE(line.check) << text;
        EXPECT_EQ(line.checkedFile, "a.ini") << text;
        EXPECT_EQ(line.controlFile, "") << text;
    }
    const CommandLine line = parseCommandLine("--check-control");
    EXPECT_TRUE(line.check);
    EXPECT_EQ(line.faults.size(), 1U);
}

TEST(CommandLine, WhatItDoesNotKnowIsAFaultAndTheRestCounts) {
    const CommandLine line = parseCommandLine("--vollbild --data x unfug");
    EXPECT_EQ(line.dataFolder, "x");
    ASSERT_EQ(line.faults.size(), 2U);
    EXPECT_NE(line.faults[0].find("--vollbild"), std::string::npos);
    EXPECT_NE(line.faults[1].find("unfug"), std::string::npos);
}

TEST(CommandLine, AMissingValueIsAFault) {
    for (const char* text : {"--data", "--data=", "--data \"\"", "--data --help"}) {
        const CommandLine line = parseCommandLine(text);
        EXPECT_EQ(line.dataFolder, "") << text;
        EXPECT_EQ(line.faults.size(), 1U) << text;
    }
    EXPECT_TRUE(parseCommandLine("--data --help").help);
}

TEST(CommandLine, HelpNamesEveryOption) {
    for (const char* option :
         {"--data", "--control", "--report", "--check-control", "--help", "--version"}) {
        EXPECT_NE(helpText().find(option), std::string::npos) << option;
    }
    EXPECT_EQ(versionText(), "Quendal 3.0 (GPL-3.0-or-later)\n");
}

} // namespace
} // namespace quendal
