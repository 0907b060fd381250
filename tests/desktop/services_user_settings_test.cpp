#include "desktop/services/user_settings.h"
#include "host/log_capture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quendal {
namespace {

// What the file of the settings holds belongs to whoever writes to the home folder.
class UserSettings : public testing::Test {
  protected:
    UserSettings() { qputenv("XDG_CONFIG_HOME", folder_.path().toUtf8()); }
    ~UserSettings() override { qputenv("XDG_CONFIG_HOME", before_); }

    // In a folder of its own, because the toolkit remembers a file that it has read.
    void write(const QByteArray& content) {
        const QString home = folder_.filePath(QString::number(++homes_));
        QDir().mkpath(home + "/quendal");
        qputenv("XDG_CONFIG_HOME", home.toUtf8());
        QFile file(home + "/quendal/quendal.ini");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir folder_;
    LogCapture log_;

  private:
    int homes_ = 0;
    QByteArray before_ = qgetenv("XDG_CONFIG_HOME");
};

TEST_F(UserSettings, OfAFirstStartSayNothing) {
    EXPECT_EQ(keptZoom(), 1);
    EXPECT_TRUE(log_.lines.empty());
}

TEST_F(UserSettings, ThatMakeNoSenseCountForNothingAndAreTold) {
    for (const char* zoom : {"1e9", "-1", "0", "nan", "inf", "1,5", "groß", "", "@Invalid()"}) {
        log_.lines.clear();
        write(QByteArray("[General]\nZoom=") + zoom + "\n");
        EXPECT_EQ(keptZoom(), 1) << zoom;
        ASSERT_EQ(log_.lines.size(), 1U) << zoom;
        EXPECT_NE(log_.lines[0].find("zählt nicht"), std::string::npos) << log_.lines[0];
    }
}

TEST_F(UserSettings, AreWrittenOverWhatWasBroken) {
    write(QByteArray(5000, '\xff') + "[General\n=\n\\x");
    keptZoom();
    keepZoom(1.5);
    EXPECT_EQ(keptZoom(), 1.5);
}

TEST_F(UserSettings, ThatCannotBeKeptAreTold) {
    qputenv("XDG_CONFIG_HOME", folder_.filePath("a file/below").toUtf8());
    QFile file(folder_.filePath("a file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    keepZoom(1.5);
    ASSERT_EQ(log_.lines.size(), 1U);
    EXPECT_NE(log_.lines[0].find("kann nicht"), std::string::npos) << log_.lines[0];
    EXPECT_EQ(keptZoom(), 1);
}

} // namespace
} // namespace quendal
