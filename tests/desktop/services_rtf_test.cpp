#include "desktop/files/rtf_document.h"
#include "desktop/files/rtf_tokens.h"
#include "desktop/files/table_grid.h"
#include "desktop/files/text_bytes.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

std::string textOf(const RtfParagraph& paragraph) {
    std::string text;
    for (const RtfRun& run : paragraph.runs) {
        text += run.text;
    }
    return text;
}

std::vector<RtfParagraph> paragraphsOf(const std::string& body) {
    const RtfDocument document = readRtf("{\\rtf1\\ansi " + body + "}");
    EXPECT_EQ(document.fault, "");
    std::vector<RtfParagraph> paragraphs;
    for (const RtfBlock& block : document.blocks) {
        paragraphs.push_back(std::get<RtfParagraph>(block));
    }
    return paragraphs;
}

std::string onlyText(const std::string& body) {
    const auto paragraphs = paragraphsOf(body);
    EXPECT_EQ(paragraphs.size(), 1U) << body;
    return paragraphs.empty() ? "" : textOf(paragraphs.front());
}

struct TextRow {
    const char* rtf;
    const char* text;
};

TEST(Rtf, TextsInAllWritings) {
    const TextRow rows[] = {
        {"S\\'e4ure und L\\'f6sung", "Säure und Lösung"},
        {"\\'80\\'84\\'93\\'96", "€„“–"},
        {"\\u228?ther", "äther"},
        {"\\u-10179?\\u-8704?!", "\U0001F600!"},
        {"\\u8594 ?x", "→x"},
        {"\\u8594\\'3fx", "→x"},
        {"{\\uc2\\u181 ab}c", "µc"},
        {"\\uc0\\u916 c", "Δc"},
        {"{\\uc3\\u916 a}b", "Δb"},
        {"a\\~b\\_c", "a\u00A0b\u2011c"},
        {"\\{x\\}\\\\", "{x}\\"},
        {"a\\tab b\\line c", "a\tb\nc"},
        {"\\ldblquote x\\rdblquote\\endash\\emdash", "“x”–—"},
        {"Ze\r\nile", "Zeile"},
        {"{\\fonttbl{\\f0 Arial;}}{\\info{\\author X}}{\\*\\generator Y;}da", "da"},
        {"{\\pict\\wmetafile8 0123}{\\field{\\*\\fldinst HYPERLINK x}{\\fldrslt Wort}}", "Wort"},
        {"{\\*\\unknown text \\par mehr}gut", "gut"},
        {"\\bin4 }{}}x", "x"},
        {"\\foo123 x\\bar-4y", "xy"},
    };
    for (const TextRow& row : rows) {
        EXPECT_EQ(onlyText(row.rtf), row.text) << row.rtf;
    }
}

TEST(Rtf, StylesAreThoseOfTheirGroup) {
    const auto paragraph = paragraphsOf("{\\colortbl;\\red190\\green38\\blue38;}"
                                        "a{\\b b{\\i\\fs32 c}}\\cf1 d\\cf0\\b1 e\\b0 f")
                               .front();
    ASSERT_EQ(paragraph.runs.size(), 6U);
    EXPECT_TRUE(paragraph.runs[0].style == RtfStyle{});
    EXPECT_TRUE(paragraph.runs[1].style.bold && !paragraph.runs[1].style.italic);
    EXPECT_TRUE(paragraph.runs[2].style.bold && paragraph.runs[2].style.italic);
    EXPECT_EQ(paragraph.runs[2].style.points, 16);
    EXPECT_EQ(paragraph.runs[3].style.color, (Color{190, 38, 38}));
    EXPECT_TRUE(paragraph.runs[4].style.bold && !paragraph.runs[4].style.color);
    EXPECT_TRUE(paragraph.runs[5].style == RtfStyle{});
}

TEST(Rtf, SubAndSuperscripts) {
    const auto paragraph =
        paragraphsOf("H{\\sub 3}O{\\super +}\\up6 a\\up0 b\\dn4 c\\nosupersub d").front();
    std::vector<RtfScript> scripts;
    for (const RtfRun& run : paragraph.runs) {
        scripts.push_back(run.style.script);
    }
    using S = RtfScript;
    EXPECT_EQ(scripts, (std::vector<S>{S::Normal, S::Sub, S::Normal, S::Super, S::Normal, S::Sub,
                                       S::Normal}));
}

TEST(Rtf, LayoutOfParagraphs) {
    const auto paragraphs =
        paragraphsOf("\\qc\\li720\\fi-360\\ri100\\sb120\\sa60\\tx2000 a\\par\\pard b\\par");
    ASSERT_EQ(paragraphs.size(), 2U);
    EXPECT_EQ(paragraphs[0].layout.align, RtfAlign::Centre);
    EXPECT_EQ(paragraphs[0].layout.left, 720);
    EXPECT_EQ(paragraphs[0].layout.first, -360);
    EXPECT_EQ(paragraphs[0].layout.right, 100);
    EXPECT_EQ(paragraphs[0].layout.before, 120);
    EXPECT_EQ(paragraphs[0].layout.after, 60);
    EXPECT_EQ(paragraphs[0].layout.tabs, std::vector<int>{2000});
    EXPECT_EQ(paragraphs[1].layout.left, 0);
    EXPECT_EQ(paragraphs[1].layout.align, RtfAlign::Left);
}

TEST(Rtf, BulletsInTheirThreeWritings) {
    for (const char* sign :
         {"{\\pntext\\f1\\'B7\\tab}", "{\\listtext\\'95\\tab}", "\\bullet\\tab "}) {
        const auto paragraph =
            paragraphsOf(std::string("\\li360\\fi-360") + sign + "Punkt").front();
        EXPECT_TRUE(paragraph.bullet) << sign;
        EXPECT_EQ(textOf(paragraph), "Punkt") << sign;
    }
    EXPECT_FALSE(paragraphsOf("\\bullet x").front().bullet);
    EXPECT_FALSE(paragraphsOf("a \\bullet\\tab x").front().bullet);
}

TEST(Rtf, Tables) {
    const RtfDocument document =
        readRtf("{\\rtf1 vor\\par\\trowd\\trleft100\\clbrdrt\\brdrs\\clbrdrb\\brdrnone\\cellx1000"
                "\\clvertalc\\cellx3000\\pard\\intbl a\\par b\\cell{\\b c}\\cell\\row"
                "\\trowd\\cellx3000\\intbl d\\cell\\row\\pard nach}");
    EXPECT_EQ(document.fault, "");
    ASSERT_EQ(document.blocks.size(), 3U);
    const auto& table = std::get<RtfTable>(document.blocks[1]);
    ASSERT_EQ(table.rows.size(), 2U);
    ASSERT_EQ(table.rows[0].cells.size(), 2U);
    const RtfCell& first = table.rows[0].cells[0];
    ASSERT_EQ(first.paragraphs.size(), 2U);
    EXPECT_EQ(textOf(first.paragraphs[1]), "b");
    EXPECT_TRUE(first.layout.border.top);
    EXPECT_FALSE(first.layout.border.bottom);
    EXPECT_TRUE(table.rows[0].cells[1].layout.centred);
    EXPECT_EQ(table.rows[0].cells[1].layout.rightEdge, 3000);
    EXPECT_EQ(textOf(std::get<RtfParagraph>(document.blocks[2])), "nach");

    const TableGrid grid(table);
    EXPECT_EQ(grid.columns(), 3); // edges 0, 100, 1000, 3000
    EXPECT_EQ(grid.width(1), 900);
    ASSERT_EQ(grid.spans().size(), 3U);
    EXPECT_EQ(grid.spans()[2].columns, 3);
}

TEST(Rtf, CellsJoinTheOneAbove) {
    const RtfDocument document =
        readRtf("{\\rtf1\\trowd\\clvmgf\\cellx900\\cellx2000\\intbl pH =\\cell n\\cell\\row"
                "\\trowd\\clvmrg\\cellx900\\cellx2000\\intbl\\cell V\\cell\\row}");
    const TableGrid grid(std::get<RtfTable>(document.blocks[0]));
    ASSERT_EQ(grid.spans().size(), 3U);
    EXPECT_EQ(grid.spans()[0].rows, 2);
    EXPECT_EQ(grid.spans()[2].row, 1);
    EXPECT_EQ(grid.spans()[2].column, 1);
}

TEST(Rtf, BrokenTablesStillGiveTheirText) {
    const char* rows[] = {
        "{\\rtf1\\intbl a\\cell b\\cell\\row}",       // no row definition
        "{\\rtf1\\trowd\\cellx500\\intbl a\\cell b}", // no end of the row
        "{\\rtf1\\trowd\\cellx500\\intbl a\\par b\\row}",
        "{\\rtf1\\trowd\\cellx900\\cellx100\\cellx900\\intbl a\\cell b\\cell c\\cell\\row}",
    };
    for (const char* row : rows) {
        const RtfDocument document = readRtf(row);
        ASSERT_FALSE(document.blocks.empty()) << row;
        const auto* table = std::get_if<RtfTable>(&document.blocks[0]);
        ASSERT_NE(table, nullptr) << row;
        EXPECT_EQ(textOf(table->rows[0].cells[0].paragraphs[0]), "a") << row;
        const TableGrid grid(*table);
        EXPECT_GE(grid.columns(), 1) << row;
    }
}

TEST(Rtf, WhatIsNoRtfGivesNothingButAFault) {
    for (const char* bytes : {"", "Hallo", "{\\rt", "\x89PNG", "<html>"}) {
        const RtfDocument document = readRtf(bytes);
        EXPECT_TRUE(document.blocks.empty());
        EXPECT_NE(document.fault, "");
    }
}

TEST(Rtf, ATruncatedTextKeepsWhatIsThere) {
    const std::string whole = "{\\rtf1\\ansi Anfang\\par{\\b Mitte\\u228?}\\par\\'e4Ende}";
    EXPECT_EQ(readRtf(whole).fault, "");
    for (std::size_t length = 6; length < whole.size(); ++length) {
        EXPECT_NE(readRtf(whole.substr(0, length)).fault, "") << length;
    }
    const RtfDocument cut = readRtf(whole.substr(0, 20));
    ASSERT_EQ(cut.blocks.size(), 1U);
    EXPECT_EQ(textOf(std::get<RtfParagraph>(cut.blocks[0])), "Anfang");
}

TEST(Rtf, DepthAndLengthAreBounded) {
    const auto nested = [](std::size_t depth) {
        return "{\\rtf1 a" + std::string(depth, '{') + "b" + std::string(depth, '}') + "}";
    };
    EXPECT_EQ(readRtf(nested(99)).fault, "");
    EXPECT_NE(readRtf(nested(100)).fault, "");
    EXPECT_NE(readRtf(nested(1000000)).fault, "");
    EXPECT_NE(readRtf("{\\rtf1 " + std::string(kRtfFileLimit, 'x') + "}").fault, "");

    for (const char* part :
         {"x\\par ", "\\b x\\b0 y", "\\trowd\\cellx99\\intbl a\\cell\\row ", "abcdefghijklmnop"}) {
        std::string many = "{\\rtf1 ";
        for (int i = 0; i < 100000; ++i) {
            many += part;
        }
        const RtfDocument document = readRtf(many + "}");
        EXPECT_EQ(document.fault, "der Text ist zu lang") << part;
        ASSERT_FALSE(document.blocks.empty());
        const auto* last = std::get_if<RtfParagraph>(&document.blocks.back());
        EXPECT_TRUE(last == nullptr || textOf(*last).size() < 30000) << part;
        EXPECT_LE(document.blocks.size(), 6000U) << part;
    }
}

TEST(Rtf, TheTokenizerAlwaysEnds) {
    for (const char* bytes :
         {"\\", "\\'", "\\'4", "\\'zz", "\\u", "\\b-", "\\bin999999999 x", "}}}"}) {
        RtfTokenizer tokens(bytes);
        int count = 0;
        while (tokens.next().kind != RtfToken::Kind::End && count < 100) {
            ++count;
        }
        EXPECT_LT(count, 10) << bytes;
    }
}

TEST(TextBytes, Utf8IsJudgedStrictly) {
    EXPECT_TRUE(isUtf8("aä€\U0001F600"));
    for (const char* bad : {"\x80", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                            "\xF0\x9F\x98", "\xC3", "\xFF"}) {
        EXPECT_FALSE(isUtf8(bad)) << bad;
        EXPECT_TRUE(isUtf8(repairedUtf8(bad)));
    }
    EXPECT_EQ(repairedUtf8("a\xFFz"), "a\uFFFDz");
}

} // namespace
} // namespace quendal
