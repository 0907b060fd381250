#include "desktop/files/control_check.h"
#include "desktop/files/control_file.h"
#include "desktop/files/nearest_word.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>

namespace quendal {
namespace {

ControlCheck check(std::string_view text) {
    return checkControlText(text, "10b.ini");
}

bool says(const ControlCheck& check, std::string_view text) {
    return check.report.find(text) != std::string::npos;
}

// Without the breaks of lines and their indents.
std::string onOneLine(std::string_view text) {
    std::string line;
    for (const char c : text) {
        const bool blank = c == ' ' || c == '\n';
        if (!blank) {
            line += c;
        } else if (!line.empty() && line.back() != ' ') {
            line += ' ';
        }
    }
    return line;
}

TEST(ControlCheck, TellsWhatAPlainFileFixes) {
    const ControlCheck found = check("[QUENDAL_CONTROL]\nMODUS = 3\nMODUS_CALC = 4\nCON = 5\n"
                                     "CALC = falsch\nPOINTS = wahr\n");
    EXPECT_EQ(found.verdict, ControlVerdict::Understood);
    EXPECT_EQ(found.report, "Steuerdatei „10b.ini“\n"
                            "\n"
                            "Was sie festlegt:\n"
                            "  MODUS = 3\n"
                            "      Nur der Reiter „Selbst rechnen“ lässt sich öffnen.\n"
                            "  MODUS_CALC = 4\n"
                            "      Auf diesem Reiter bleibt nur „pH: Starke Säure mit starker "
                            "Base“.\n"
                            "  CON = 5\n"
                            "      Aufgaben laufen mit 1.4 mol/L; die Liste ist gesperrt. "
                            "Klick-Demos laufen\n"
                            "      immer mit 1.0 mol/L.\n"
                            "  CALC = falsch\n"
                            "      Der Rechner öffnet sich ohne Formelzeilen; das Kästchen ist "
                            "gesperrt. Nur\n"
                            "      bei den Leitfähigkeiten von Salzsäure und Chlorid bietet er "
                            "sie immer an.\n"
                            "  POINTS = wahr\n"
                            "      Die Sollstellen müssen gerechnet werden; das Kästchen ist "
                            "gesperrt.\n"
                            "\n"
                            "Alles verstanden.\n");
}

TEST(ControlCheck, TellsWhatAnEmptySectionLeavesOpen) {
    const ControlCheck found = check("[QUENDAL_CONTROL]\nCON =\n");
    EXPECT_EQ(found.verdict, ControlVerdict::Understood);
    EXPECT_FALSE(says(found, "festlegt"));
    EXPECT_TRUE(says(found, "Alle vier Reiter"));
    EXPECT_TRUE(says(found, "Konzentration lässt sich frei wählen"));
}

TEST(ControlCheck, TellsWhatIsWrongFromTopToBottom) {
    ControlCheck found = check("[QUENDAL_CONTROL]\n"
                               "MODE = 3\n"
                               "KONZENTRATION = 5\n"
                               "MODUS_CALC = 4\n"
                               "CON = 0,8\n"
                               "CALC = vielleicht\n"
                               "CALC = wahr\n"
                               "[QUENDAL]\n"
                               "POINTS = 1\n");
    EXPECT_EQ(found.verdict, ControlVerdict::Findings);
    found.report = onOneLine(found.report);
    std::size_t at = 0;
    for (const char* text :
         {"Zeile 2: Den Schlüssel MODE gibt es nicht; er zählt nicht. Gemeint ist wohl MODUS.",
          "Zeile 3: Den Schlüssel KONZENTRATION gibt es nicht", "Zeile 4: MODUS_CALC = 4.",
          "Zeile 5: CON = 0,8.", "Zeile 6: CALC = vielleicht.",
          "Zeile 7: CALC steht schon in Zeile 6", "Zeile 9: POINTS steht unter [QUENDAL]",
          "7 Fundstellen."}) {
        at = found.report.find(text, at);
        EXPECT_NE(at, std::string::npos) << text << "\n" << found.report;
    }
}

TEST(ControlCheck, TakesTheFirstOfAKeyTwiceLikeTheProgram) {
    const ControlCheck found = check("[QUENDAL_CONTROL]\nCON = 1\ncon = 5\n");
    EXPECT_TRUE(says(found, "CON = 1\n"));
    EXPECT_TRUE(says(found, "0.6 mol/L"));
    EXPECT_EQ(found.verdict, ControlVerdict::Findings);
}

TEST(ControlCheck, SaysThatARefusedFileDoesNotCount) {
    struct Row {
        std::string bytes;
        const char* says;
    };
    for (const Row& row : {
             Row{"", "[QUENDAL_CONTROL] fehlt"},
             Row{"MODUS = 3\n", "Zeile 1 steht vor dem ersten Abschnitt"},
             Row{"[QUENDAL]\nMODUS = 3\n", "es gehört unter"},
             Row{"[QUENDAL_CONTROL]\nMODUS 3\n", "Zeile 2 ist kein Schlüssel"},
             Row{"[QUENDAL_CONTROL]\nCON = \"5\n", "Zeile 2 hat ein Anführungszeichen"},
             Row{"[QUENDAL_CONTROL]\n; f\xFCr 10b\n", "In Zeile 2 steht das erste fremde"},
             Row{std::string("\xFF\xFE[\0Q\0", 6), "UTF-16"},
             Row{std::string(kControlFileLimit + 1, '\n'), "größer als 1 MB"},
         }) {
        const ControlCheck found = check(row.bytes);
        EXPECT_EQ(found.verdict, ControlVerdict::Findings) << found.report;
        EXPECT_TRUE(says(found, row.says)) << row.says << "\n" << found.report;
        EXPECT_TRUE(says(found, "Die ganze Datei zählt nicht")) << found.report;
        EXPECT_FALSE(says(found, "festlegt")) << found.report;
    }
}

TEST(ControlCheck, ShowsNoMoreThanTwentyFindings) {
    std::string text = "[QUENDAL_CONTROL]\n";
    for (int i = 0; i < 1000; ++i) {
        text += "KONZENTRATION = 1\n";
    }
    const ControlCheck found = check(text);
    EXPECT_TRUE(says(found, "und 980 weitere"));
    EXPECT_TRUE(says(found, "1000 Fundstellen."));
    EXPECT_LT(found.report.size(), 6000U);
}

TEST(ControlCheck, ReadsAFile) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("für 10b.ini");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[QUENDAL_CONTROL]\nMODUS=2\n");
    file.close();
    const ControlCheck found = checkControlFile(path.toStdString());
    EXPECT_EQ(found.verdict, ControlVerdict::Understood);
    EXPECT_TRUE(says(found, "für 10b.ini"));
}

TEST(ControlCheck, CantReadWhatIsNoFile) {
    const QTemporaryDir folder;
    for (const std::string& path :
         {folder.filePath("fehlt.ini").toStdString(), folder.path().toStdString(),
          std::string("/dev/zero"), std::string(5000, 'x')}) {
        const ControlCheck found = checkControlFile(path);
        EXPECT_EQ(found.verdict, ControlVerdict::Unreadable) << path;
        EXPECT_TRUE(says(found, "nicht lesen")) << path;
    }
}

TEST(NearestWord, IsTheOneWithTheFewestChanges) {
    constexpr std::array<std::string_view, 4> kWords = {"MODUS", "MODUS_ANI", "CON", "CALC"};
    EXPECT_EQ(nearestWord("MODE", kWords), "MODUS");
    EXPECT_EQ(nearestWord("MODUSANI", kWords), "MODUS_ANI");
    EXPECT_EQ(nearestWord("CONC", kWords), "CON");
    EXPECT_EQ(nearestWord("CALK", kWords), "CALC");
    EXPECT_EQ(nearestWord("LAUTSTAERKE", kWords), "");
    EXPECT_EQ(nearestWord(std::string(1 << 20, 'M'), kWords), "");
    EXPECT_EQ(nearestWord("X", {}), "");
}

} // namespace
} // namespace quendal
