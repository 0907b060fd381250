// Ctrl with plus, minus and 0: the scale of all windows, and how it is kept.
#include "desktop/services/user_settings.h"
#include "desktop/windows/look.h"
#include "desktop/windows/scroll_room.h"

#include <QApplication>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

namespace quendal {
namespace {

TEST(Zoom, StepsUpAndDownAndEnds) {
    EXPECT_EQ(look::zoomFrom(1, 1), 1.1);
    EXPECT_EQ(look::zoomFrom(1, -1), 0.9);
    EXPECT_EQ(look::zoomFrom(1.75, 0), 1);
    EXPECT_EQ(look::zoomFrom(3, 1), 3);
    EXPECT_EQ(look::zoomFrom(0.7, -1), 0.7);
}

TEST(Zoom, IsKeptAndNonsenseIsNot) {
    QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    EXPECT_EQ(keptZoom(), 1);
    keepZoom(1.5);
    EXPECT_EQ(keptZoom(), 1.5);
    keepZoom(1e9);
    EXPECT_EQ(keptZoom(), 1);
}

class ScrolledWindow : public ::testing::Test {
  protected:
    QWidget window;
    QWidget content{&window};
    ScrollRoom room{window, content};
};

TEST_F(ScrolledWindow, ShowsNoBarsWhereAllFits) {
    room.arrange({0, 20, 400, 300}, {400, 300});
    EXPECT_EQ(content.geometry(), QRect(0, 20, 400, 300));
    for (const QScrollBar* bar : window.findChildren<QScrollBar*>()) {
        EXPECT_TRUE(bar->isHidden());
    }
}

TEST_F(ScrolledWindow, ScrollsToWhatHasTheFocusAndNoFarther) {
    room.arrange({0, 20, 400, 300}, {1000, 800});
    EXPECT_EQ(content.size(), QSize(1000, 800));
    room.reveal({900, 700, 50, 30});
    const QRect shown = QRect(900, 700, 50, 30).translated(content.pos());
    EXPECT_TRUE(QRect(0, 20, 400, 300).contains(shown));
    const QPoint before = content.pos();
    room.reveal({900, 700, 50, 30});
    EXPECT_EQ(content.pos(), before);
    room.reveal({0, 0, 10, 10});
    EXPECT_EQ(content.pos(), QPoint(0, 20));
}

} // namespace
} // namespace quendal

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
