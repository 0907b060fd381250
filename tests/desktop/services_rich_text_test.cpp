#include "desktop/services/rich_text_reader.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

#include <gtest/gtest.h>

namespace quendal {
namespace {

class RichTextTest : public testing::Test {
  protected:
    bool load(const QByteArray& bytes, double scale = 1) {
        QFile file(folder_.filePath("t.rtf"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        return loadRichText(file.fileName(), document_, fault_, scale);
    }
    QTextCharFormat formatOf(const QString& word) {
        return document_.find(word, 0, QTextDocument::FindCaseSensitively).charFormat();
    }

    QTemporaryDir folder_;
    QTextDocument document_;
    QString fault_;
};

TEST_F(RichTextTest, TextAndStylesArrive) {
    ASSERT_TRUE(load("{\\rtf1\\ansi\\fs40\\b Titel\\b0\\fs24\\par\\qr H{\\sub 3}O{\\super +} "
                     "S\\'e4ure}"));
    EXPECT_EQ(document_.toPlainText(), QString::fromUtf8("Titel\nH3O+ Säure"));
    EXPECT_TRUE(formatOf("Titel").font().bold());
    EXPECT_EQ(formatOf("Titel").font().pixelSize(), 27); // 20 points
    EXPECT_EQ(formatOf("3").verticalAlignment(), QTextCharFormat::AlignSubScript);
    EXPECT_EQ(formatOf("+").verticalAlignment(), QTextCharFormat::AlignSuperScript);
    EXPECT_EQ(document_.lastBlock().blockFormat().alignment(), Qt::AlignRight);
}

TEST_F(RichTextTest, EverythingGrowsWithTheScale) {
    ASSERT_TRUE(load("{\\rtf1\\li1500\\fs24 a}", 2));
    EXPECT_EQ(formatOf("a").font().pixelSize(), 32);
    EXPECT_EQ(document_.firstBlock().blockFormat().leftMargin(), 200);
}

TEST_F(RichTextTest, BulletsHangBeforeTheirText) {
    ASSERT_TRUE(load("{\\rtf1 vor\\par\\li360\\fi-360{\\pntext\\'B7\\tab}eins\\par"
                     "{\\pntext\\'B7\\tab}zwei\\par\\pard nach}"));
    EXPECT_EQ(document_.toPlainText(), "vor\n\u2022\teins\n\u2022\tzwei\nnach");
    const QTextBlockFormat format = document_.findBlockByNumber(1).blockFormat();
    EXPECT_EQ(format.leftMargin(), 24);
    EXPECT_EQ(format.textIndent(), -24);
    EXPECT_EQ(document_.lastBlock().blockFormat().textIndent(), 0);
}

TEST_F(RichTextTest, TablesBecomeTables) {
    ASSERT_TRUE(load("{\\rtf1 vor\\par\\trowd\\clvmgf\\cellx1500\\cellx3000\\intbl a\\cell b\\cell"
                     "\\row\\trowd\\clvmrg\\cellx1500\\cellx3000\\intbl\\cell c\\cell\\row"
                     "\\pard nach}"));
    QTextTable* table = document_.find("b").currentTable();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->rows(), 2);
    EXPECT_EQ(table->columns(), 2);
    EXPECT_EQ(table->cellAt(0, 0).rowSpan(), 2);
    EXPECT_EQ(document_.find("c").currentTable(), table);
    EXPECT_EQ(document_.find("nach").currentTable(), nullptr);
}

TEST_F(RichTextTest, AFileThatIsMissingLeavesASentence) {
    document_.setPlainText("alt");
    EXPECT_FALSE(loadRichText(folder_.filePath("fehlt.rtf"), document_, fault_));
    EXPECT_NE(fault_, "");
    EXPECT_EQ(document_.toPlainText(), "Dieser Hilfetext kann leider nicht angezeigt werden.");
    EXPECT_FALSE(loadRichText("/dev/zero", document_, fault_));
    EXPECT_FALSE(loadRichText(folder_.path(), document_, fault_));
}

TEST_F(RichTextTest, ATruncatedFileShowsItsBeginning) {
    EXPECT_FALSE(load("{\\rtf1 Der Anfang\\par und {\\b mehr"));
    EXPECT_TRUE(document_.toPlainText().startsWith("Der Anfang\nund mehr"));
    EXPECT_TRUE(document_.toPlainText().endsWith("Der Rest dieses Hilfetextes fehlt leider."));
}

TEST_F(RichTextTest, NoiseLeavesASentence) {
    EXPECT_FALSE(load(QByteArray(100000, '\xA7')));
    EXPECT_FALSE(load(QByteArray("{\\rtf1") + QByteArray(5 << 20, 'a')));
    EXPECT_FALSE(document_.isEmpty());
}

} // namespace
} // namespace quendal
