#include "desktop/boxes/about_box.h"
#include "desktop/boxes/box_window.h"
#include "desktop/boxes/desktop_calculator.h"
#include "desktop/boxes/desktop_message_box.h"
#include "desktop/boxes/wrapped_text.h"
#include "desktop/charts/qcustomplot_chart_painter.h"
#include "desktop/pictures/icon_library.h"
#include "desktop/script/synthetic_input.h"
#include "services_host.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>

#include <gtest/gtest.h>

namespace quendal {
namespace {

// The box on the screen; null when there is none.
BoxWindow* openBox() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* box = qobject_cast<BoxWindow*>(window); box != nullptr && box->isVisible()) {
            return box;
        }
    }
    return nullptr;
}

class BoxTest : public testing::Test {
  protected:
    // Does something to the box as soon as it is open.
    template <class Act>
    void whenOpen(Act act) {
        QTimer::singleShot(20, qApp, [act] {
            BoxWindow* box = openBox();
            ASSERT_NE(box, nullptr);
            act(*box);
        });
    }
    void watch(BoxReply reply) {
        host_.link.observer = &host_.observer;
        host_.observer.replies.push_back(std::move(reply));
    }

    test::ServiceHost host_;
    IconLibrary icons_{host_.fake.files, ""};
    DesktopMessageBox boxes_{icons_, host_.link};
};

QPushButton* buttonOf(const BoxWindow& box, const QString& text) {
    for (auto* button : box.findChildren<QPushButton*>()) {
        if (button->text().remove('&') == text) {
            return button;
        }
    }
    return nullptr;
}

TEST_F(BoxTest, YesAndNoByClick) {
    whenOpen([](BoxWindow& box) { clickMiddle(*buttonOf(box, "Ja")); });
    EXPECT_EQ(boxes_.YesNo("Wirklich?", "Frage"), BoxAnswer::Yes);
    whenOpen([](BoxWindow& box) { clickMiddle(*buttonOf(box, "Nein")); });
    EXPECT_EQ(boxes_.YesNo("Wirklich?", ""), BoxAnswer::No);
    EXPECT_EQ(openBox(), nullptr);
}

TEST_F(BoxTest, YesAndNoByKeyboard) {
    const std::pair<int, BoxAnswer> rows[] = {{Qt::Key_Return, BoxAnswer::Yes},
                                              {Qt::Key_Enter, BoxAnswer::Yes},
                                              {Qt::Key_Escape, BoxAnswer::No}};
    for (const auto& [key, answer] : rows) {
        whenOpen([key = key](BoxWindow& box) { pressKey(box, key); });
        EXPECT_EQ(boxes_.YesNo("Wirklich?", "Frage"), answer) << key;
    }
    whenOpen([](BoxWindow& box) { typeText(box, "n"); });
    EXPECT_EQ(boxes_.YesNo("Wirklich?", "Frage"), BoxAnswer::No);
    whenOpen([](BoxWindow& box) { typeText(box, "J"); });
    EXPECT_EQ(boxes_.YesNo("Wirklich?", "Frage"), BoxAnswer::Yes);
}

TEST_F(BoxTest, ClosingTheWindowCountsAsNo) {
    whenOpen([](BoxWindow& box) { box.close(); });
    EXPECT_EQ(boxes_.YesNo("Wirklich?", "Frage"), BoxAnswer::No);
}

TEST_F(BoxTest, InputGivesWhatWasTypedOrTheProposalOrNothing) {
    whenOpen([](BoxWindow& box) { pressKey(box, Qt::Key_Return); });
    EXPECT_EQ(boxes_.Input("Gib Deinen Namen ein:", "Name?", "schüler"), "schüler");
    whenOpen([](BoxWindow& box) {
        typeText(box, "Zoë J.");
        pressKey(box, Qt::Key_Return);
    });
    EXPECT_EQ(boxes_.Input("Gib Deinen Namen ein:", "Name?", "schüler"), "Zoë J.");
    whenOpen([](BoxWindow& box) { pressKey(box, Qt::Key_Escape); });
    EXPECT_EQ(boxes_.Input("Gib Deinen Namen ein:", "Name?", "schüler"), "");
    whenOpen([](BoxWindow& box) { clickMiddle(*buttonOf(box, "Abbrechen")); });
    EXPECT_EQ(boxes_.Input("Gib Deinen Namen ein:", "Name?", "schüler"), "");
}

TEST_F(BoxTest, InputTakesTwoHundredCharacters) {
    whenOpen([](BoxWindow& box) {
        EXPECT_EQ(box.findChild<QLineEdit*>("input")->text().size(), 200);
        typeText(box, QString(300, 'x'));
        pressKey(box, Qt::Key_Return);
    });
    EXPECT_EQ(boxes_.Input("?", "", std::string(500, 'a')), std::string(200, 'x'));
}

TEST_F(BoxTest, AnObserverIsToldAndAnswersByClicks) {
    watch({.kind = BoxReply::Kind::Yes, .text = {}});
    EXPECT_EQ(boxes_.YesNo("Weiter?", "T"), BoxAnswer::Yes);
    watch({.kind = BoxReply::Kind::No, .text = {}});
    EXPECT_EQ(boxes_.YesNo("Weiter?", "T"), BoxAnswer::No);
    watch({.kind = BoxReply::Kind::Text, .text = "Mia \xC3\x9F"});
    EXPECT_EQ(boxes_.Input("Name:", "N", "x"), "Mia \xC3\x9F");
    watch({.kind = BoxReply::Kind::Cancel, .text = {}});
    EXPECT_EQ(boxes_.Input("Name:", "N", "x"), "");
    for (int i = 0; i < 3; ++i) {
        watch({.kind = BoxReply::Kind::Ok, .text = {}});
    }
    boxes_.Ok("a\r\nb", "");
    boxes_.Info("c", "Punktberechnung");
    boxes_.Alarm("d", "Alarm", "");

    const auto& seen = host_.observer.boxes;
    ASSERT_EQ(seen.size(), 7U);
    EXPECT_EQ(seen[0].kind, BoxKind::YesNo);
    EXPECT_EQ(seen[2].proposal, "x");
    EXPECT_EQ(seen[2].text, "Name:");
    EXPECT_EQ(seen[4].kind, BoxKind::Ok);
    EXPECT_EQ(seen[4].text, "a\r\nb");
    EXPECT_EQ(seen[5].kind, BoxKind::Info);
    EXPECT_EQ(seen[5].title, "Punktberechnung");
    EXPECT_EQ(seen[6].kind, BoxKind::Alarm);
}

TEST_F(BoxTest, TimersOfTheFormGoOn) {
    class Ticking final : public Form {
      public:
        Ticking() : Form("frm_T", {10, 10}) {}
        Timer tmr{*this, "tmr", 5};
        int beats = 0;
    };
    Ticking form;
    form.tmr.onTimer = [&form] {
        if (++form.beats == 5) {
            openBox()->finish(1);
        }
    };
    host_.windows.Show(form);
    form.tmr.setEnabled(true);
    boxes_.Ok("Warte", "");
    EXPECT_EQ(form.beats, 5);
    host_.windows.Unload(form);
}

TEST_F(BoxTest, AWindowThatGoesAwayBeneathTakesNoBoxWithIt) {
    QPointer<QWidget> below = new QWidget;
    below->resize(600, 400);
    below->show();
    below->activateWindow();
    whenOpen([below](BoxWindow& box) {
        delete below;
        pressKey(box, Qt::Key_Return);
    });
    EXPECT_EQ(boxes_.YesNo("Noch da?", ""), BoxAnswer::Yes);
    EXPECT_EQ(below, nullptr);
}

TEST_F(BoxTest, BoxesNest) {
    whenOpen([this](BoxWindow& outer) {
        whenOpen([](BoxWindow& inner) { inner.finish(7); });
        outer.setObjectName("outer");
        outer.hide();
        EXPECT_EQ(boxes_.YesNo("innen", ""), BoxAnswer::No);
        outer.show();
        outer.finish(6);
    });
    EXPECT_EQ(boxes_.YesNo("außen", ""), BoxAnswer::Yes);
}

TEST_F(BoxTest, LongTextsStayInsideTheScreen) {
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    for (const std::string& text :
         {std::string(3000, 'W'), std::string("Wort ") + std::string(200, '\n') + "Ende"}) {
        whenOpen([screen](BoxWindow& box) {
            EXPECT_TRUE(screen.contains(box.geometry()));
            auto* words = box.findChild<WrappedText*>("text");
            EXPECT_TRUE(
                box.rect().contains(QRect(words->mapTo(&box, QPoint(0, 0)), words->size())));
            // All of it is there: shown whole or to be scrolled to.
            EXPECT_LE(words->document()->size().width(), words->viewport()->width() + 1);
            pressKey(box, Qt::Key_Escape);
        });
        boxes_.Ok(text, std::string(200, 'T'));
    }
}

TEST_F(BoxTest, AboutNamesVersionAndLicence) {
    SoundOptions product{.Mode = 0, .Title = "Quendal", .ProductName = "Quendal", .Version = "9.9"};
    QCustomPlotChartPainter painter;
    DesktopCalculator calculator(host_.fake.files, painter, product, host_.link);
    whenOpen([](BoxWindow& box) {
        QString all;
        for (const auto* text : box.findChildren<WrappedText*>()) {
            all += text->toPlainText() + '\n';
        }
        for (const char* part : {"Quendal", "9.9", "GPL-3.0-or-later", "Qt", "QCustomPlot"}) {
            EXPECT_TRUE(all.contains(part)) << part;
        }
        pressKey(box, Qt::Key_Escape);
    });
    calculator.ShowAbout();
    watch({.kind = BoxReply::Kind::Ok, .text = {}});
    calculator.ShowAbout();
    EXPECT_EQ(host_.observer.boxes.back().kind, BoxKind::About);
    EXPECT_EQ(host_.observer.boxes.back().title, "Quendal");
}

} // namespace
} // namespace quendal
