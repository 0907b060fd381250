// What the handbook says is held against the program.
#include "handbook_text.h"

#include "conducto/conductivity.h"
#include "desktop/files/control_check.h"
#include "desktop/files/report_record.h"
#include "host/chart.h"
#include "host/number_service.h"
#include "shell/exercise_table.h"
#include "shell/forms/scoring.h"
#include "shell/required_points.h"
#include "shell/teacher_keys.h"
#include "weak_silver/silver_potential.h"
#include "weak_silver/weak_acid.h"
#include "workbench/strong_acid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

namespace quendal::test {
namespace {

const std::filesystem::path kDocs = std::filesystem::path(QUENDAL_SOURCE_DIR) / "docs";

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

const HandbookText& handbook() {
    static const HandbookText text(contentOf(kDocs / "handbuch.md"));
    return text;
}

std::string germanNumber(double value, int places) {
    return NumberService(DecimalSign::Comma).Format(value, places);
}

TEST(HandbookControlFile, EachExampleIsUnderstood) {
    const auto blocks = handbook().blocks("ini");
    EXPECT_GE(blocks.size(), 7U);
    for (const FencedBlock& block : blocks) {
        const ControlCheck check = checkControlText(block.text, "control.ini");
        EXPECT_EQ(check.verdict, ControlVerdict::Understood) << block.text << check.report;
    }
}

TEST(HandbookControlFile, EachExampleFileIsUnderstood) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(kDocs / "beispiele")) {
        if (entry.path().extension() == ".ini") {
            ++files;
            const ControlCheck check = checkControlFile(entry.path());
            EXPECT_EQ(check.verdict, ControlVerdict::Understood) << check.report;
            EXPECT_NE(handbook().text().find(entry.path().filename().string()), std::string::npos);
        }
    }
    EXPECT_EQ(files, 3);
}

TEST(HandbookControlFile, ShowsWhatTheCheckPrints) {
    const std::string command = "$ quendal --check-control control.ini\n";
    const auto blocks = handbook().blocks("console");
    const auto shown = std::find_if(blocks.begin(), blocks.end(), [&](const FencedBlock& block) {
        return block.text.substr(0, command.size()) == command;
    });
    ASSERT_NE(shown, blocks.end());
    EXPECT_EQ(shown->text.substr(command.size()),
              checkControlText(handbook().blocks("ini").front().text, "control.ini").report);
}

TEST(HandbookControlFile, ExplainsEveryKey) {
    const auto headings = handbook().headings();
    for (const TeacherKeyRow& row : teacherKeyTable()) {
        EXPECT_NE(std::find(headings.begin(), headings.end(), row.name), headings.end())
            << row.name;
    }
}

TEST(HandbookControlFile, NumbersTheExercisesAsTheProgramDoes) {
    const std::map<StartTab, const char*> heads = {{StartTab::Animations, "| Text | Animation |"},
                                                   {StartTab::Demos, "| Text | Klick-Demo |"},
                                                   {StartTab::Tasks, "| Text | Aufgabe |"}};
    for (const auto& [tab, head] : heads) {
        std::vector<TableRow> expected;
        for (const ExerciseRow& row : exerciseTable()) {
            if (row.tab == tab) {
                expected.push_back({std::to_string(row.key), row.caption});
            }
        }
        EXPECT_EQ(handbook().table(head), expected) << head;
    }
}

TEST(HandbookControlFile, NumbersTheConcentrationsAsTheProgramDoes) {
    const auto rows = handbook().table("| Text | Konzentration |");
    ASSERT_EQ(rows.size(), kConcentrationTexts.size() + 1);
    for (std::size_t i = 0; i < kConcentrationTexts.size(); ++i) {
        EXPECT_EQ(rows[i], (TableRow{std::to_string(i + 1),
                                     std::string(kConcentrationTexts.at(i)) + " mol/L"}));
    }
}

TEST(HandbookTask, ListsTheRequiredPoints) {
    const auto rows = handbook().table("| Konzentration | Sollstellen");
    ASSERT_EQ(rows.size(), kConcentrationTexts.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const double concentration = leadingNumber(kConcentrationTexts.at(i));
        std::string list = rows[i].at(1);
        list.erase(std::remove(list.begin(), list.end(), ' '), list.end());
        EXPECT_EQ(leadingNumber(rows[i].at(0)), concentration);
        EXPECT_EQ(list, requiredPointsFor(concentration));
    }
}

TEST(HandbookMark, WorksItsExamplesOutLikeTheProgram) {
    const auto rows = handbook().table("| Titrationspunkte | Lösungen | Hilfen |");
    EXPECT_GE(rows.size(), 8U);
    for (const TableRow& row : rows) {
        const std::string& time = row.at(3);
        const TaskFigures figures{.duration = std::stoi(time) * 60.0 +
                                              std::stoi(time.substr(time.find(':') + 1)),
                                  .task = 1000,
                                  .points = std::stoi(row.at(0)),
                                  .helpUsed = std::stoi(row.at(2)),
                                  .solveUsed = std::stoi(row.at(1))};
        const int score = scoreOf(figures);
        std::string shown = row.at(4);
        if (const std::string minus = "−"; shown.substr(0, minus.size()) == minus) {
            shown = "-" + shown.substr(minus.size());
        }
        EXPECT_EQ(shown, std::to_string(score)) << time;
        EXPECT_EQ(row.at(5), std::to_string(markOf(1000, score))) << time;
    }
}

TEST(HandbookMark, TellsTheWorkedExampleOfItsText) {
    const int score =
        scoreOf({.duration = 680, .task = 1000, .points = 4, .helpUsed = 1, .solveUsed = 2});
    EXPECT_NE(handbook().text().find("= 800 − 20 − 5 = " + std::to_string(score) + "      Note " +
                                     std::to_string(markOf(1000, score))),
              std::string::npos);
}

TEST(HandbookMark, HasTheLimitsOfTheMarks) {
    const auto rows = handbook().table("| Punktzahl | Note | |");
    ASSERT_EQ(rows.size(), 6U);
    for (std::size_t i = 0; i < 5; ++i) {
        const int least = std::stoi(rows[i].at(0));
        EXPECT_EQ(std::to_string(markOf(1000, least)), rows[i].at(1));
        EXPECT_EQ(std::to_string(markOf(1000, least - 1)), rows[i + 1].at(1));
    }
}

double weakPH(int ml) {
    const WeakCase which = *weakCaseOf(1.0, std::max(10 - ml, 0), std::max(ml - 10, 0));
    return weakReading(which, {.concentration = 1.0,
                               .acidMol = 0.01,
                               .baseMol = ml / 1000.0,
                               .totalVol = (10 + ml) / 1000.0})
        ->pH;
}

std::string potential(int ml) {
    const SilverReading reading = silverReading(1.0, 0.01, ml / 1000.0, (10 + ml) / 1000.0);
    return reading.computed ? germanNumber(reading.potential, 2) : "–";
}

TEST(HandbookSolutions, AreThoseOfTheModels) {
    const auto rows = handbook().table("| V(Z) | pH, starke Säure |");
    EXPECT_EQ(rows.size(), 7U);
    for (const TableRow& row : rows) {
        const int ml = std::stoi(row.at(0));
        const double strong = strongAcidPoint(1.0, ml / 1000.0, (10 + ml) / 1000.0).reading;
        EXPECT_EQ(row, (TableRow{std::to_string(ml) + " mL", germanNumber(strong, 2),
                                 germanNumber(weakPH(ml), 3), potential(ml),
                                 germanNumber(strongConductivity(1.0, ml).ionTotal, 2),
                                 germanNumber(weakConductivity(1.0, ml).ionTotal, 2),
                                 germanNumber(silverConductivity(1.0, ml).ionTotal, 2)}));
    }
}

TEST(HandbookReports, ShowLinesAsTheProgramWritesThem) {
    const auto blocks = handbook().blocks("json");
    ASSERT_EQ(blocks.size(), 1U);
    ReportRecord record{.time = "2026-11-23T08:21:07+01:00",
                        .learner = "Mia",
                        .task = "Morvik // Quendal - Starke Säure mit starker Base",
                        .event = "progress"};
    record.points = 1;
    std::string expected = reportLine(record);
    record.time = "2026-11-23T08:32:40+01:00";
    record.event = "result";
    record.points = 7;
    record.errors = 4;
    record.score = scoreOf({.duration = 690, .task = 1000, .points = 7, .solveUsed = 2});
    record.mark = markOf(1000, *record.score);
    record.markText = "Sehr gut";
    EXPECT_EQ(blocks.front().text, expected + reportLine(record));
}

class NoPainter final : public ChartPainter {
  public:
    void render(const ChartView&, PictureBox&, double) override {}
};

TEST(HandbookCurves, AreReadByTheProgram) {
    const auto blocks = handbook().blocks("text");
    const auto shown = std::find_if(blocks.begin(), blocks.end(), [](const FencedBlock& block) {
        return block.text.substr(0, 1) == "#";
    });
    ASSERT_NE(shown, blocks.end());
    for (const std::string& text :
         {shown->text, contentOf(kDocs / "beispiele" / "phstark10.crv")}) {
        NoPainter painter;
        ChartDocument document(painter, "handbook");
        std::string fault;
        EXPECT_TRUE(readCurve(text, document, fault)) << fault;
        EXPECT_NE(text.find("Messung der 10b"), std::string::npos);
    }
}

TEST(HandbookCurves, NameFilesThatAreThere) {
    const auto rows = handbook().table("| Titration | Dateien für");
    EXPECT_EQ(rows.size(), 8U);
    for (const TableRow& row : rows) {
        std::istringstream words(row.at(1));
        for (std::string word; words >> word;) {
            if (word != "bis") {
                const std::string name = word.substr(0, word.find(".crv") + 4);
                EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(QUENDAL_SOURCE_DIR) /
                                                    "data" / name))
                    << name;
            }
        }
    }
}

// The name of a heading in a link: lower case, blanks as "-", no other signs.
std::string anchor(const std::string& heading) {
    std::string name = "#";
    for (const char c : heading) {
        const bool kept = std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' ||
                          c == '-' || static_cast<unsigned char>(c) >= 0x80;
        name += c == ' ' ? "-" : kept ? std::string(1, static_cast<char>(std::tolower(c))) : "";
    }
    return name;
}

TEST(Handbook, LinksLeadSomewhere) {
    std::vector<std::string> anchors;
    for (const std::string& heading : handbook().headings()) {
        anchors.push_back(anchor(heading));
    }
    for (const std::string& target : handbook().targets()) {
        if (target.front() == '#') {
            EXPECT_NE(std::find(anchors.begin(), anchors.end(), target), anchors.end()) << target;
        } else {
            EXPECT_TRUE(std::filesystem::exists(kDocs / target)) << target;
        }
    }
}

TEST(Handbook, PicturesAreShownAndSmall) {
    constexpr std::uintmax_t kMostBytes = 150'000;
    int pictures = 0;
    for (const auto& entry : std::filesystem::directory_iterator(kDocs / "handbuch")) {
        if (entry.path().extension() == ".png") {
            ++pictures;
            const std::string place = "handbuch/" + entry.path().filename().string();
            EXPECT_NE(handbook().text().find(place), std::string::npos) << place;
            EXPECT_LT(entry.file_size(), kMostBytes) << place;
        }
    }
    EXPECT_GT(pictures, 15);
}

} // namespace
} // namespace quendal::test
