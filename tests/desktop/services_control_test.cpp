#include "desktop/files/control_file.h"
#include "desktop/services/ini_host_control.h"
#include "desktop/services/observer_link.h"
#include "desktop/services/report_file.h"
#include "host/log_capture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quendal {
namespace {

std::optional<ControlKeys> parse(std::string_view text) {
    std::string fault;
    const auto keys = parseControlFile(text, fault);
    EXPECT_EQ(keys.has_value(), fault.empty());
    return keys;
}

TEST(ControlFile, ReadsKeysOfItsSection) {
    const auto keys = parse("\xEF\xBB\xBF; Klasse 10b\r\n"
                            "[quendal_control]\r\n"
                            "MODUS = 3\r\n"
                            "  modus_calc=2 ; nur Essigs\xC3\xA4ure\r\n"
                            "# Konzentration\n"
                            "Con = \"5\" # 1,4\n"
                            "TITEL = \"  a ; b # c  \"\r"
                            "[Anderes Programm]\n"
                            "das hier ist egal\n"
                            "[QUENDAL_CONTROL]\n"
                            "POINTS = wahr");
    ASSERT_TRUE(keys);
    const ControlKeys expected = {{"MODUS", "3"},
                                  {"MODUS_CALC", "2"},
                                  {"CON", "5"},
                                  {"TITEL", "  a ; b # c  "},
                                  {"POINTS", "wahr"}};
    EXPECT_EQ(*keys, expected);
}

TEST(ControlFile, OfAKeyTwiceTheFirstCounts) {
    EXPECT_EQ(parse("[QUENDAL_CONTROL]\nCON=1\ncon=5")->at("CON"), "1");
}

TEST(ControlFile, AnEmptyTextIsNotSet) {
    EXPECT_TRUE(parse("[QUENDAL_CONTROL]\nCON=\nMODUS=\"\"\nCALC = ; leer\n")->empty());
}

TEST(ControlFile, ATextMayHoldSignsThatOnlyLookLikeAComment) {
    EXPECT_EQ(parse("[QUENDAL_CONTROL]\nA=x#1;2=3")->at("A"), "x#1;2=3");
}

TEST(ControlFile, RefusesWhatIsNoControlFile) {
    const std::string noise("\x7F"
                            "ELF\0\x01\x02",
                            7);
    const std::string rows[] = {
        "",
        "; nur ein Kommentar\n",
        noise,
        std::string("[QUENDAL_CONTROL]\nCON=1\n\0", 25),
        "[QUENDAL_CONTROL]\nCON=\xE4\n",
        "[QUENDAL_CONTROL]\nein Satz ohne Schluessel\n",
        "[QUENDAL_CONTROL]\n= 3\n",
        "[QUENDAL_CONTROL]\nA B = 3\n",
        "[QUENDAL_CONTROL]\nCON = \"5\n",
        "[QUENDAL_CONTROL]\nCON = \"5\" 6\n",
        "[QUENDAL_CONTROL\nCON=1\n",
        "CON=1\n[QUENDAL_CONTROL]\n",
        "[OTHER]\nCON=1\n",
    };
    for (const std::string& row : rows) {
        std::string fault;
        EXPECT_FALSE(parseControlFile(row, fault)) << row;
        EXPECT_NE(fault, "") << row;
    }
}

TEST(ControlFile, RefusesMoreThanAMegabyte) {
    std::string big = "[QUENDAL_CONTROL]\nCON=1\n";
    big.resize(kControlFileLimit, '\n');
    EXPECT_TRUE(parse(big));
    big += '\n';
    EXPECT_FALSE(parse(big));
}

TEST(ControlFile, NamesTheLineThatIsWrong) {
    std::string fault;
    parseControlFile("[QUENDAL_CONTROL]\r\nCON=1\r\nUnsinn\r\n", fault);
    EXPECT_NE(fault.find("Zeile 3"), std::string::npos) << fault;
}

class IniHostControlTest : public testing::Test {
  protected:
    QString write(const QString& name, const QByteArray& bytes) const {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    std::string get(const char* key) { return control_.Query("QUENDAL_CONTROL", "GET", key); }

    QTemporaryDir folder_;
    ObserverLink link_;
    ReportFile reports_{folder_.filePath("reports.jsonl")};
    IniHostControl control_{reports_, link_};
    LogCapture log_;
};

TEST_F(IniHostControlTest, WhatTheSystemSetsStays) {
    const QString system = write("system.ini", "[QUENDAL_CONTROL]\nMODUS=3\n");
    const QString asked = write("asked.ini", "[QUENDAL_CONTROL]\nmodus=1\nCON=2\n");
    const QString user = write("user.ini", "[QUENDAL_CONTROL]\nMODUS=2\nCON=5\nCALC=0\n");
    control_.load({.system = {system}, .asked = asked, .user = {user}});
    EXPECT_EQ(get("MODUS"), "3");
    EXPECT_EQ(get("con"), "2");
    EXPECT_EQ(get("CALC"), "0");
    EXPECT_EQ(get("HELP"), "");
    EXPECT_TRUE(log_.lines.empty());
}

TEST_F(IniHostControlTest, OtherSectionsAndVerbsGiveNothing) {
    control_.setKey("CON", "3");
    EXPECT_EQ(get("CON"), "3");
    EXPECT_EQ(control_.Query("OTHER", "GET", "CON"), "");
    EXPECT_EQ(control_.Query("QUENDAL_CONTROL", "PUT", "CON"), "");
}

TEST_F(IniHostControlTest, AMalformedFileIsReportedOnceAndTreatedAsAbsent) {
    const QString noise = write("noise.ini", QByteArray(1 << 20, '\x8F'));
    const QString good = write("good.ini", "[QUENDAL_CONTROL]\nCON=4\n");
    control_.load({.system = {noise}, .asked = good, .user = {}});
    EXPECT_EQ(get("CON"), "4");
    ASSERT_EQ(log_.lines.size(), 1U);
    EXPECT_NE(log_.lines[0].find("noise.ini"), std::string::npos);
}

TEST_F(IniHostControlTest, OnlyAnAskedFileIsMissed) {
    control_.load(
        {.system = {folder_.filePath("s")}, .asked = {}, .user = {folder_.filePath("u")}});
    EXPECT_TRUE(log_.lines.empty());
    control_.load({.system = {}, .asked = folder_.filePath("a"), .user = {}});
    EXPECT_EQ(log_.lines.size(), 1U);
}

TEST_F(IniHostControlTest, ADeviceOrFolderIsNoFile) {
    control_.load({.system = {"/dev/zero"}, .asked = folder_.path(), .user = {}});
    EXPECT_EQ(log_.lines.size(), 2U);
}

TEST_F(IniHostControlTest, LoadingAgainForgetsWhatWasThere) {
    const QString good = write("good.ini", "[QUENDAL_CONTROL]\nCON=4\n");
    control_.load({.system = {}, .asked = good, .user = {}});
    control_.load({});
    EXPECT_EQ(get("CON"), "");
}

TEST(ControlPlacesTest, TheSystemsFoldersAndTheUsersAreTwoThings) {
    const ControlPlaces places = ControlPlaces::standard("x.ini");
    ASSERT_EQ(places.user.size(), 1);
    EXPECT_TRUE(places.user.front().endsWith("/quendal/control.ini"));
    EXPECT_FALSE(places.system.isEmpty());
    EXPECT_FALSE(places.system.contains(places.user.front()));
    EXPECT_EQ(places.asked, "x.ini");
}

} // namespace
} // namespace quendal
