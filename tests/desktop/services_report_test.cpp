#include "desktop/services/ini_host_control.h"
#include "desktop/services/report_file.h"
#include "host/log_capture.h"
#include "services_host.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits>

namespace quendal {
namespace {

QList<QJsonObject> linesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QList<QJsonObject> objects;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        EXPECT_TRUE(line.endsWith('\n'));
        const QJsonDocument document = QJsonDocument::fromJson(line);
        EXPECT_TRUE(document.isObject()) << line.constData();
        objects.append(document.object());
    }
    return objects;
}

class ReportTest : public testing::Test {
  protected:
    QTemporaryDir folder_;
    LogCapture log_;
    test::ServiceHost host_;
};

TEST_F(ReportTest, ProgressAndResultAreLinesOfTheirOwn) {
    ReportFile reports(folder_.filePath("tief/unten/reports.jsonl"));
    IniHostControl control(reports, host_.link);
    host_.link.observer = &host_.observer;
    control.UserName = "J\xC3\xBCrgen \"J\"\n\\";
    control.setTask("Starke S\xC3\xA4ure");
    control.ReportProgress(2, 3, 0, 0, "", "", "STATUS", 0, 10, 1);
    control.ReportResult(895, 2, "Gut", 1, "");

    const QList<QJsonObject> lines = linesOf(reports.path());
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0]["event"], "progress");
    EXPECT_EQ(lines[0]["learner"].toString(), QString::fromUtf8("Jürgen \"J\"\n\\"));
    EXPECT_EQ(lines[0]["task"].toString(), QString::fromUtf8("Starke Säure"));
    EXPECT_EQ(lines[0]["points"], 2);
    EXPECT_EQ(lines[0]["errors"], 3);
    EXPECT_TRUE(lines[0]["score"].isNull());
    EXPECT_EQ(lines[1]["event"], "result");
    EXPECT_EQ(lines[1]["points"], 2);
    EXPECT_EQ(lines[1]["errors"], 3);
    EXPECT_EQ(lines[1]["score"], 895);
    EXPECT_EQ(lines[1]["mark"], 2.0);
    EXPECT_EQ(lines[1]["markText"], "Gut");
    const QDateTime time = QDateTime::fromString(lines[1]["time"].toString(), Qt::ISODate);
    EXPECT_LT(std::abs(time.secsTo(QDateTime::currentDateTime())), 60);
    const QRegularExpression form(R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d[+-]\d\d:\d\d$)");
    EXPECT_TRUE(form.match(lines[1]["time"].toString()).hasMatch());

    EXPECT_EQ(host_.observer.progress, std::pair(2, 3));
    EXPECT_EQ(host_.observer.results, std::vector<int>{895});
    EXPECT_TRUE(log_.lines.empty());
}

TEST_F(ReportTest, HalfALineSwallowsNoOther) {
    const QString path = folder_.filePath("reports.jsonl");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"time\":\"2026-");
    file.close();
    ReportFile reports(path);
    reports.append({.learner = "Mia", .task = "", .event = "progress"});
    reports.append({.learner = "Mia", .task = "", .event = "result"});
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[0], "{\"time\":\"2026-");
    EXPECT_TRUE(QJsonDocument::fromJson(lines[1]).isObject());
    EXPECT_TRUE(QJsonDocument::fromJson(lines[2]).isObject());
    EXPECT_TRUE(lines[3].isEmpty());
}

TEST_F(ReportTest, IsOnTheDiskAtOnceAndAppendsToWhatIsThere) {
    const QString path = folder_.filePath("r.jsonl");
    ReportFile(path).append({.event = "progress"});
    ReportFile again(path);
    again.append({.event = "result"});
    EXPECT_EQ(linesOf(path).size(), 2);
}

TEST_F(ReportTest, TheTaskIsTheCaptionOfTheFormOnTheScreen) {
    class Probe final : public Form {
      public:
        Probe() : Form("frm_Probe", {100, 100}) { setCaption("Titration"); }
        void Form_Activate() override {
            onActivate();
            CoreLib().Windows.Unload(*this);
        }
        std::function<void()> onActivate;
    };
    ReportFile reports(folder_.filePath("r.jsonl"));
    IniHostControl control(reports, host_.link);
    Probe form;
    form.onActivate = [&control] {
        control.ReportProgress(1, 0, 0, 0, "", "", "STATUS", 0, 10, 1);
    };
    host_.windows.ShowModal(form);
    EXPECT_EQ(linesOf(reports.path()).front()["task"], "Titration");
}

TEST_F(ReportTest, AFileThatCannotBeWrittenIsReportedOnce) {
    for (const QString& path : {folder_.path(), QString("/dev/null/x/y.jsonl"),
                                QString("/dev/full"), QString("/proc/keine/reports.jsonl")}) {
        ReportFile reports(path);
        log_.lines.clear();
        reports.append({.event = "progress"});
        reports.append({.event = "progress"});
        EXPECT_EQ(log_.lines.size(), 1U) << path.toStdString();
    }
}

TEST(ReportLine, BadBytesAndNumbersStillGiveJson) {
    ReportRecord record{.learner = "a\xFF\xC3"
                                   "b\x01",
                        .event = "result"};
    record.score = -3430;
    record.mark = std::numeric_limits<double>::quiet_NaN();
    const std::string line = reportLine(record);
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(line));
    ASSERT_TRUE(document.isObject()) << line;
    EXPECT_TRUE(document["mark"].isNull());
    EXPECT_EQ(document["score"], -3430);
    EXPECT_EQ(line.find('\n'), line.size() - 1);
}

TEST(ReportFileTest, StandsInTheUsersFolder) {
    EXPECT_TRUE(ReportFile::defaultPath().endsWith("/quendal/reports.jsonl"));
    EXPECT_TRUE(QFileInfo(ReportFile::defaultPath()).isAbsolute());
}

} // namespace
} // namespace quendal
