#include "host/chart.h"
#include "host/disk_file_service.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

class NoPainter final : public ChartPainter {
  public:
    void render(const ChartView&, PictureBox&, double) override {}
};

struct Reading {
    NoPainter painter;
    ChartDocument document{painter, "test"};
    std::string fault;
    bool good = false;

    explicit Reading(std::string_view text) { good = readCurve(text, document, fault); }
};

TEST(CurveReader, ReadsACurve) {
    const Reading reading("# Berechnet aus der Ladungsbilanz\n"
                          "# x-Achse: V(NaOH) in mL\n"
                          "#y-Achse:pH\n"
                          "V(NaOH);Berechnete Kurve;Probe\n"
                          "0,0;0,09;1\n"
                          "0.1; 0.10 ;1E-01\n"
                          " 20 ;+13,52;-2\n");
    ASSERT_TRUE(reading.good) << reading.fault;
    EXPECT_EQ(reading.document.xTitle, "V(NaOH) in mL");
    EXPECT_EQ(reading.document.yTitle, "pH");
    ASSERT_EQ(reading.document.seriesCount(), 2);
    const ChartSeries& curve = reading.document.Series(1);
    EXPECT_EQ(curve.name, "Berechnete Kurve");
    ASSERT_EQ(curve.Data.Count(), 3);
    EXPECT_EQ(curve.Data.Y(1), 0.09);
    EXPECT_EQ(curve.Data.X(2), 0.1);
    EXPECT_EQ(curve.Data.Y(2), 0.1);
    EXPECT_EQ(curve.Data.LastX(), 20);
    EXPECT_EQ(curve.Data.Y(3), 13.52);
    EXPECT_EQ(reading.document.Series(2).Data.Y(3), -2);
}

TEST(CurveReader, TakesTheTitlesFromTheHeaderWithoutAxisLines) {
    const Reading reading("V in mL;pH\n0;1\n");
    ASSERT_TRUE(reading.good);
    EXPECT_EQ(reading.document.xTitle, "V in mL");
    EXPECT_EQ(reading.document.yTitle, "pH");
}

TEST(CurveReader, BearsForeignFiles) {
    const Reading reading("\xEF\xBB\xBF\r\n# x-Achse: Volumen\r\n\r\nx;y\r\n0;1\r\n  \r\n1;2");
    ASSERT_TRUE(reading.good) << reading.fault;
    EXPECT_EQ(reading.document.xTitle, "Volumen");
    EXPECT_EQ(reading.document.Series(1).name, "y");
    EXPECT_EQ(reading.document.Series(1).Data.Count(), 2);
}

TEST(CurveReader, TakesHeadingsOutOfQuotes) {
    const Reading reading("\"V in mL\";\"pH\";\"Probe \"\"A\"\"\";\"\";\"\n0;1;2;3;4\n");
    ASSERT_TRUE(reading.good) << reading.fault;
    EXPECT_EQ(reading.document.xTitle, "V in mL");
    EXPECT_EQ(reading.document.yTitle, "pH");
    EXPECT_EQ(reading.document.Series(1).name, "pH");
    EXPECT_EQ(reading.document.Series(2).name, "Probe \"A\"");
    EXPECT_EQ(reading.document.Series(3).name, "");
    EXPECT_EQ(reading.document.Series(4).name, "\"");
}

struct FaultRow {
    const char* text;
    const char* begins; // of the fault
};

const FaultRow kFaults[] = {
    {"", "Es stehen keine"},
    {"# nur Text\n", "Es stehen keine"},
    {"x;y\n", "Es stehen keine"},
    {"0;1\n1;2\n", "Zeile 1: Vor den Zahlen"},
    {"\n\nx\n0\n", "Zeile 3: Die Kopfzeile"},
    {"x,y\n0,1\n", "Zeile 1: Die Kopfzeile"},
    {"x;y\n0;1\n1\n", "Zeile 3: Die Zahl der Spalten"},
    {"x;y\n0;1;2\n", "Zeile 2: Die Zahl der Spalten"},
    {"x;y\n0;1;\n", "Zeile 2: Die Zahl der Spalten"},
    {"x;y\n0;\n", "Zeile 2: Eine Spalte"},
    {"x;y\n;1\n", "Zeile 2: Eine Spalte"},
    {"x;y\n0;abc\n", "Zeile 2: Eine Spalte"},
    {"x;y\n0;nan\n", "Zeile 2: Eine Spalte"},
    {"x;y\n0;inf\n", "Zeile 2: Eine Spalte"},
    {"x;y\n0;1E999\n", "Zeile 2: Eine Spalte"},
    {"x;y\n0;-1E999\n", "Zeile 2: Eine Spalte"},
    {"x;y\n0;1.000,5\n", "Zeile 2: Eine Spalte"},
    {"x;y\n0;1 2\n", "Zeile 2: Eine Spalte"},
    {"x;y\n0;--1\n", "Zeile 2: Eine Spalte"},
    {"x;y\n0;1\n2;x\n3;4\n", "Zeile 3: Eine Spalte"},
    {"GIF89a\x01\x02\n;\xFF\xFE\n", "Zeile 2: Die Datei ist kein Text in UTF-8."},
    {"x;y\n0;1\n# St\xE4rke\n", "Zeile 3: Die Datei ist kein Text in UTF-8."},
    {"\xFF\xFEx\0;\0y\0\n", "Zeile 1: Die Datei ist kein Text in UTF-8."},
};

TEST(CurveReader, NamesTheLineOfTheFault) {
    for (const FaultRow& row : kFaults) {
        const Reading reading(row.text);
        EXPECT_FALSE(reading.good) << row.text;
        EXPECT_EQ(reading.fault.rfind(row.begins, 0), 0U) << row.text << ": " << reading.fault;
        EXPECT_EQ(reading.document.seriesCount(), 0);
    }
}

TEST(CurveReader, ReadsTheCurvesOfTheProgram) {
    for (const char* name :
         {"ph", "phstark06", "phstark08", "phstark10", "phstark12", "phstark14"}) {
        const std::string path = std::string(QUENDAL_SOURCE_DIR "/data/") + name + ".crv";
        const auto text = DiskFileService().read(path);
        ASSERT_TRUE(text) << path;
        const Reading reading(*text);
        ASSERT_TRUE(reading.good) << path << ": " << reading.fault;
        const SeriesData& curve = reading.document.Series(1).Data;
        EXPECT_GE(curve.Count(), 200) << path;
        EXPECT_EQ(curve.X(1), 0) << path;
        EXPECT_GE(curve.LastX(), 20) << path;
        EXPECT_NE(reading.document.xTitle.find("mL"), std::string::npos) << path;
        EXPECT_EQ(reading.document.yTitle.rfind("pH", 0), 0U) << path;
    }
}

TEST(CurveReader, AZeroByteIsNoNumber) {
    EXPECT_FALSE(Reading(std::string_view("x;y\n0;1\0\n", 9)).good);
}

std::string rows(int count) {
    std::string text = "x;y\n";
    for (int i = 0; i < count; ++i) {
        text += "1;2\n";
    }
    return text;
}

TEST(CurveReader, RowsAreBounded) {
    EXPECT_EQ(Reading(rows(100'000)).document.Series(1).Data.Count(), 100'000);
    EXPECT_EQ(Reading(rows(100'001)).fault.rfind("Zeile 100002: ", 0), 0U);
}

std::string columns(int series) {
    std::string header = "x";
    std::string row = "0";
    for (int i = 0; i < series; ++i) {
        header += ";y";
        row += ";1";
    }
    return header + "\n" + row + "\n";
}

TEST(CurveReader, SeriesAreBounded) {
    EXPECT_EQ(Reading(columns(32)).document.seriesCount(), 32);
    EXPECT_FALSE(Reading(columns(33)).good);
}

} // namespace
} // namespace quendal
