#include "desktop/services/data_folder.h"
#include "host/log_capture.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quendal {
namespace {

TEST(DataFolderTest, AnAskedFolderIsTaken) {
    const QTemporaryDir folder;
    LogCapture log;
    EXPECT_EQ(DataFolder(folder.path()).DataPath(), folder.path().toStdString() + "/");
    EXPECT_EQ(DataFolder(folder.path() + "//").DataPath(), folder.path().toStdString() + "/");
    EXPECT_EQ(DataFolder("/").DataPath(), "/");
    EXPECT_TRUE(log.lines.empty());
}

TEST(DataFolderTest, OneThatIsNotThereIsKeptAndReported) {
    LogCapture log;
    EXPECT_EQ(DataFolder("/gibt/es/nicht").DataPath(), "/gibt/es/nicht/");
    EXPECT_EQ(log.lines.size(), 1U);
}

TEST(DataFolderTest, ARelativeFolderCountsFromTheWorkingFolder) {
    LogCapture log;
    EXPECT_EQ(DataFolder("daten").DataPath(), QDir::currentPath().toStdString() + "/daten/");
}

TEST(DataFolderTest, WithoutAnOptionTheProgramsOwnPrefixIsSearchedFirst) {
    const QStringList tried = DataFolder::candidates("/opt/quendal/bin");
    ASSERT_EQ(tried.size(), 3);
    EXPECT_EQ(tried[0], "/opt/quendal/bin/data");
    EXPECT_EQ(tried[1], "/opt/quendal/bin/../share/quendal/data");
    EXPECT_TRUE(QDir::isAbsolutePath(tried[2])) << tried[2].toStdString();
}

TEST(DataFolderTest, ABuildFolderHasThoseOfTheSourceTree) {
    LogCapture log;
    const QDir found(QString::fromStdString(DataFolder(QString()).DataPath()));
    EXPECT_EQ(found.canonicalPath(), QDir(QString(QUENDAL_SOURCE_DIR) + "/data").canonicalPath());
    EXPECT_TRUE(log.lines.empty());
}

} // namespace
} // namespace quendal
