#include "host/file_name_match.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

TEST(FoldName, CaseAndFormOfUmlautsDontCount) {
    EXPECT_EQ(foldName("PhStark08.CRV"), "phstark08.crv");
    EXPECT_EQ(foldName("Säure"), foldName("SÄURE"));
    EXPECT_EQ(foldName("Sa\u0308ure"), foldName("Säure"));
    EXPECT_EQ(foldName("A\u0308O\u0308U\u0308a\u0308o\u0308u\u0308"), "äöüäöü");
    EXPECT_EQ(foldName("ÄÖÜ\u1E9E"), "äöüß");
    EXPECT_NE(foldName("Saure"), foldName("Säure"));
    EXPECT_EQ(foldName("e\u0308"), "e\u0308");
    EXPECT_EQ(foldName("\xFF\xCC"), "\xFF\xCC");
    EXPECT_EQ(foldName("A\xCC"), "a\xCC");
}

TEST(UpperName, CapitalsOfLettersAndUmlauts) {
    EXPECT_EQ(upperName("h2o-hcl\\_h2o"), "H2O-HCL\\_H2O");
    EXPECT_EQ(upperName("fällung"), "FÄLLUNG");
    EXPECT_EQ(upperName("äöüÄÖÜ"), "ÄÖÜÄÖÜ");
    EXPECT_EQ(upperName("a\u0308o\u0308u\u0308A\u0308O\u0308U\u0308"), "ÄÖÜÄÖÜ");
    EXPECT_EQ(upperName("Straße"), upperName("STRA\u1E9EE"));
    EXPECT_NE(upperName("Straße"), upperName("STRASSE"));
    EXPECT_EQ(upperName("grün1.wmf"), "GRÜN1.WMF");
    EXPECT_EQ(upperName("é[1]~"), "é[1]~");
    EXPECT_EQ(upperName(""), "");
    EXPECT_EQ(upperName("\xC3"), "\xC3"); // half an umlaut
    EXPECT_EQ(upperName("z\xFF\x80"), "Z\xFF\x80");
}

TEST(UpperName, IsTheSameForNamesThatMeanTheSame) {
    for (const char* name : {"Säure.WMF", "säure.wmf", "SA\u0308URE.wmf", "sa\u0308ure.WMF"}) {
        EXPECT_EQ(upperName(name), "SÄURE.WMF") << name;
        EXPECT_EQ(upperName(upperName(name)), upperName(name));
        EXPECT_EQ(foldName(upperName(name)), foldName(name));
    }
}

struct PatternRow {
    const char* name;
    const char* pattern;
    bool matches;
};

const PatternRow kPatterns[] = {
    {"bur01.gif", "*.gif", true},
    {"BUR01.GIF", "*.gif", true},
    {"bur01.gif", "bur*.gif", true},
    {"bur01.gif", "bur??.gif", true},
    {"bur1.gif", "bur??.gif", false},
    {"bur01.gifx", "*.gif", false},
    {"bur01.gif", "*", true},
    {"bur01", "*.*", true},
    {"bur01.gif", "*.*", true},
    {"bur01", "b*.*", false},
    {"", "*", true},
    {"", "", true},
    {"a", "", false},
    {"", "?", false},
    {"abcabd", "*abd", true},
    {"abcabd", "a*b*d", true},
    {"abc", "a*b", false},
    {"Säure.rtf", "s?ure.rtf", true},
    {"Sa\u0308ure.rtf", "s?ure.rtf", true},
    {"Sa\u0308ure.rtf", "SÄURE.*", true},
    {"[a].gif", "[a].gif", true},
    {"a.gif", "[a].gif", false},
    {"a*b", "a*b", true},
    {"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaab", "*a*a*a*a*a*a*a*a*a*a*a*c", false},
};

TEST(MatchesPattern, LikeTheTable) {
    for (const PatternRow& row : kPatterns) {
        EXPECT_EQ(matchesPattern(row.name, row.pattern), row.matches)
            << row.name << " against " << row.pattern;
    }
}

} // namespace
} // namespace quendal
