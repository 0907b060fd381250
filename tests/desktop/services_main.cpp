// The tests of the desktop's services run without a screen.
#include "desktop/windows/look.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <clocale>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    quendal::look::apply(*qApp);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
