#include "desktop/boxes/calculator_display.h"
#include "desktop/boxes/calculator_window.h"
#include "desktop/boxes/desktop_calculator.h"
#include "desktop/charts/qcustomplot_chart_painter.h"
#include "desktop/script/synthetic_input.h"
#include "services_host.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>

#include <gtest/gtest.h>

namespace quendal {
namespace {

CalculatorWindow* openCalculator() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* box = qobject_cast<CalculatorWindow*>(window);
            box != nullptr && box->isVisible()) {
            return box;
        }
    }
    return nullptr;
}

class CalculatorTest : public testing::Test {
  protected:
    CalculatorTest() { presets_.Init(8); }

    std::optional<double> show(std::function<void(CalculatorWindow&)> act, double x = 1500,
                               double y = 1500) {
        QTimer::singleShot(20, qApp, [act = std::move(act)] {
            CalculatorWindow* window = openCalculator();
            ASSERT_NE(window, nullptr);
            act(*window);
            window->finish(CalculatorWindow::kAborted); // ends what the test left open
        });
        return calculator_.Show(0, 0, x, y, presets_);
    }
    // The keys of a line of text; "\n" is Return.
    static void keys(CalculatorWindow& window, const QString& text) {
        for (const QChar& c : text) {
            c == '\n' ? pressKey(window, Qt::Key_Return) : typeText(window, c);
        }
    }
    static QString note(const CalculatorWindow& window) {
        return window.findChild<QLabel*>("note")->text();
    }
    static void click(const CalculatorWindow& window, const QString& key) {
        auto* button = window.findChild<QPushButton*>("key " + key);
        ASSERT_NE(button, nullptr) << key.toStdString();
        clickMiddle(*button);
    }
    static void clickRow(QListWidget& list, int row) {
        clickAt(*list.viewport(), list.visualItemRect(list.item(row)).center());
    }

    test::ServiceHost host_;
    QCustomPlotChartPainter painter_;
    SoundOptions options_;
    DesktopCalculator calculator_{host_.fake.files, painter_, options_, host_.link};
    CalcPresets presets_;
};

TEST_F(CalculatorTest, ReturnWorksOutAndReturnAgainTakesOver) {
    const auto value = show([](CalculatorWindow& window) {
        keys(window, "(0,014 - 0,004)/0,02\n");
        EXPECT_EQ(window.display().text(), "0,5");
        EXPECT_EQ(note(window), "(0,014 - 0,004)/0,02 =");
        keys(window, "\n");
    });
    ASSERT_TRUE(value);
    EXPECT_DOUBLE_EQ(*value, 0.5);
}

TEST_F(CalculatorTest, TakeOverWorksOutFirst) {
    const auto value = show([](CalculatorWindow& window) {
        keys(window, "-log(10^-7)");
        clickMiddle(window.takeButton());
    });
    ASSERT_TRUE(value);
    EXPECT_DOUBLE_EQ(*value, 7);
}

TEST_F(CalculatorTest, TheValueIsTakenInFullNotAsShown) {
    EXPECT_EQ(show([](CalculatorWindow& window) { keys(window, "1/3\n\n"); }), 1.0 / 3.0);
}

TEST_F(CalculatorTest, EscapeAndTheButtonGiveNothing) {
    EXPECT_FALSE(show([](CalculatorWindow& window) {
        keys(window, "12");
        pressKey(window, Qt::Key_Escape);
    }));
    EXPECT_FALSE(show([](CalculatorWindow& window) { clickMiddle(window.abortButton()); }));
}

TEST_F(CalculatorTest, AFaultIsToldAndLosesNothing) {
    const std::pair<const char*, const char*> rows[] = {{"1/0", "Durch 0 kann man nicht teilen"},
                                                        {"log(0)", "log gibt es nur über 0"},
                                                        {"2*)3", "Das kann ich nicht lesen"},
                                                        {"", "Da steht noch nichts"}};
    for (const auto& [line, word] : rows) {
        EXPECT_FALSE(show([line = line, word = word](CalculatorWindow& window) {
            keys(window, line);
            keys(window, "\n");
            EXPECT_EQ(note(window), word);
            EXPECT_EQ(window.display().text(), line);
            clickMiddle(window.takeButton());
            EXPECT_TRUE(window.isVisible());
            EXPECT_EQ(window.display().text(), line);
            keys(window, "5");
            EXPECT_EQ(note(window), "");
        })) << line;
    }
}

TEST_F(CalculatorTest, KeypadTypesEverything) {
    show([](CalculatorWindow& window) {
        for (const char* key :
             {"(", "1", "2", "3", "+", "4", "5", "6", "-",   "7", "8", "9", ")", "*",
              "0", ",", "5", "/", "2", "^", "2", "+", "log", "1", "E", "2", ")"}) {
            click(window, key);
        }
        EXPECT_EQ(window.display().text(), "(123+456-789)*0,5/2^2+log(1E2)");
        click(window, "\u2190");
        EXPECT_EQ(window.display().text(), "(123+456-789)*0,5/2^2+log(1E2");
        click(window, "=");
        EXPECT_EQ(window.display().text(), "-24,25");
        click(window, "C");
        EXPECT_EQ(window.display().text(), "");
    });
}

TEST_F(CalculatorTest, BehindAResultANumberStartsAnewAndAnOperatorGoesOn) {
    show([](CalculatorWindow& window) {
        keys(window, "2+3=");
        EXPECT_EQ(window.display().text(), "5");
        keys(window, "*4=");
        EXPECT_EQ(window.display().text(), "20");
        keys(window, "7");
        EXPECT_EQ(window.display().text(), "7");
        keys(window, "=log(7");
        EXPECT_EQ(window.display().text(), "log(7");
    });
}

TEST_F(CalculatorTest, LettersThatBelongNowhereAreNotTaken) {
    show([](CalculatorWindow& window) {
        keys(window, "1a2bx!$\u00E43");
        EXPECT_EQ(window.display().text(), "123");
    });
}

TEST_F(CalculatorTest, OfferedLinesAreTakenByClickAndByKey) {
    presets_.Add(" ", "(0,009 - 0,01)/0,019");
    presets_.Add(" ", "-log(0,1)");
    presets_.Finish();
    const auto value = show([](CalculatorWindow& window) {
        ASSERT_NE(window.offered(), nullptr);
        clickRow(*window.offered(), 1);
        EXPECT_EQ(window.display().text(), "-log(0,1)");
        clickRow(*window.offered(), 0);
        EXPECT_EQ(window.display().text(), "(0,009 - 0,01)/0,019");
        window.offered()->setFocus();
        pressKey(window, Qt::Key_Down);
        pressKey(window, Qt::Key_Return);
        EXPECT_EQ(window.display().text(), "-log(0,1)");
        EXPECT_TRUE(window.isVisible());
        keys(window, "\n\n");
    });
    EXPECT_EQ(value, 1.0);
}

TEST_F(CalculatorTest, WithoutOfferedLinesThereIsNoListOfThem) {
    show([](CalculatorWindow& window) { EXPECT_EQ(window.offered(), nullptr); });
}

TEST_F(CalculatorTest, HistoryGivesLinesAndResultsBackInTheNextCalculatorToo) {
    show([](CalculatorWindow& window) { keys(window, "2*3=4*5="); });
    show([](CalculatorWindow& window) {
        auto* history = window.findChild<QListWidget*>("history");
        ASSERT_EQ(history->count(), 4);
        clickRow(*history, 0);
        EXPECT_EQ(window.display().text(), "4*5");
        clickRow(*history, 3);
        EXPECT_EQ(window.display().text(), "6");
    });
}

TEST_F(CalculatorTest, AnObserverGetsTheLinesAndAnswersByClicks) {
    presets_.Add(" ", "1/0");
    presets_.Add(" ", "14-1");
    host_.link.observer = &host_.observer;
    using Kind = BoxReply::Kind;
    host_.observer.replies = {{.kind = Kind::Preset, .text = {}, .preset = 2},
                              {.kind = Kind::Preset, .text = {}, .preset = 1},
                              {.kind = Kind::Preset, .text = {}, .preset = 9},
                              {.kind = Kind::Value, .text = "1,5E-3"},
                              {.kind = Kind::Cancel, .text = {}}};
    EXPECT_EQ(calculator_.Show(0, 0, 0, 0, presets_), 13.0);
    EXPECT_EQ(calculator_.Show(0, 0, 0, 0, presets_), std::nullopt); // can't be worked out
    EXPECT_EQ(calculator_.Show(0, 0, 0, 0, presets_), std::nullopt); // isn't there
    EXPECT_EQ(calculator_.Show(0, 0, 0, 0, presets_), 0.0015);
    EXPECT_EQ(calculator_.Show(0, 0, 0, 0, presets_), std::nullopt);
    EXPECT_EQ(host_.observer.boxes.front().kind, BoxKind::Calculator);
    EXPECT_EQ(host_.observer.boxes.front().title, kCalculatorCaption);
    EXPECT_EQ(host_.observer.boxes.front().presets, presets_.lines());
}

TEST_F(CalculatorTest, StandsWhereItIsAskedToAndInsideTheScreen) {
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    show([](CalculatorWindow& window) { EXPECT_EQ(window.pos(), QPoint(20, 40)); }, 300, 600);
    for (const double far : {-1e9, 1e9, std::nan("")}) {
        show(
            [screen](CalculatorWindow& window) {
                EXPECT_TRUE(screen.contains(window.geometry().topLeft()));
            },
            far, far);
    }
}

} // namespace
} // namespace quendal
