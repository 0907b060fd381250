// One scale for everything: places, fonts, inner size; and no text outside its control.
#include "desktop/window_rig.h"

#include "desktop/windows/look.h"
#include "desktop/windows/term_layout.h"
#include "desktop/windows/text_fit.h"

#include <QFontMetricsF>
#include <QMenuBar>
#include <QScreen>

#include <cmath>

namespace quendal::test {

namespace {

class ScaleTest : public WindowTest, public testing::WithParamInterface<QSize> {
  protected:
    GalleryForm form;
};

TEST_P(ScaleTest, TheScaleIsTheSmallerOfBothAndTheRestIsReported) {
    const FormWindow& window = show(form, GetParam());
    const double menu = window.findChild<QMenuBar*>()->height();
    const Size design = form.designSize();
    const double across = GetParam().width() / design.width;
    const double down = (GetParam().height() - menu) / design.height;
    EXPECT_DOUBLE_EQ(window.scale(), std::min(across, down));
    EXPECT_NEAR(form.inner().width, GetParam().width() / window.scale(), 1e-9);
    EXPECT_NEAR(form.inner().height, (GetParam().height() - menu) / window.scale(), 1e-9);
    EXPECT_GE(form.resizes, 1);
    host.windows().Unload(form);
}

TEST_P(ScaleTest, EveryControlStandsInsideItsContainer) {
    const FormWindow& window = show(form, GetParam());
    for (const Control* control : form.controls()) {
        const WidgetPeer* peer = window.peerOf(*control);
        if (peer != nullptr) {
            const QRect room = peer->widget()->parentWidget()->rect().adjusted(-1, -1, 1, 1);
            EXPECT_TRUE(room.contains(peer->widget()->geometry())) << control->fullName();
        }
    }
    host.windows().Unload(form);
}

TEST_P(ScaleTest, EveryTextFitsIntoItsControl) {
    const FormWindow& window = show(form, GetParam());
    for (const Control* control : form.controls()) {
        const WidgetPeer* peer = window.peerOf(*control);
        if (peer == nullptr || control->text().empty()) {
            continue;
        }
        QSizeF room = peer->widget()->size();
        if (control->kind() == ControlKind::TermLabel) {
            const TermLayout layout(control->text(), control->font(), window.scale(), room);
            EXPECT_LE(layout.width(), room.width()) << control->fullName();
            EXPECT_LE(layout.height(), room.height()) << control->fullName();
        } else if (const auto* label = dynamic_cast<const ctl_Label*>(control)) {
            if (label->angle() != 0) {
                room.transpose();
            }
            const QString text = shownText(label->text());
            const QFont font = fittedFont(label->font(), window.scale(), text, room, Wrap::Words);
            const QRectF used = QFontMetricsF(font).boundingRect(
                QRectF(0, 0, room.width(), 1e5), Qt::TextWordWrap | Qt::TextShowMnemonic, text);
            EXPECT_LE(used.height(), room.height() + 1) << label->fullName();
            EXPECT_LE(used.width(), room.width() + 1) << label->fullName();
        }
    }
    host.windows().Unload(form);
}

TEST_P(ScaleTest, FontsAreWholePixelsNearTheScaledSize) {
    const FormWindow& window = show(form, GetParam());
    const double wanted = form.check.font().size * window.scale();
    const int size = widgetOf(form.check).font().pixelSize();
    EXPECT_LE(size, std::ceil(wanted));
    EXPECT_GE(size, std::floor(wanted * 0.9));
    host.windows().Unload(form);
}

INSTANTIATE_TEST_SUITE_P(Screens, ScaleTest,
                         testing::Values(QSize(1024, 768), QSize(1366, 768), QSize(1920, 1080),
                                         QSize(3840, 2160)));

class WindowScaleTest : public WindowTest {
  protected:
    void zoom(int count) {
        FormWindowOwner& owner = host.windows();
        owner.zoomAsked(count);
    }
};

TEST_F(WindowScaleTest, AFormThatScalesItselfIsShownOneToOne) {
    Form form("frm_Stage", {400, 300});
    form.setScalesItself(true);
    const FormWindow& window = show(form, {900, 700});
    EXPECT_EQ(window.scale(), 1.0);
    EXPECT_EQ(form.inner(), (Size{900, 700}));
    host.windows().Unload(form);
}

TEST_F(WindowScaleTest, ADialogLeavesRoomOnTheScreenAndKeepsItsShape) {
    Form form("frm_Dialog", {400, 300});
    host.windows().Show(form);
    const FormWindow& window = *host.windows().windowOf(form);
    const QRect screen = window.screen()->availableGeometry();
    EXPECT_LE(window.width(), screen.width() * 0.9 + 1);
    EXPECT_LE(window.scale(), 2.2);
    EXPECT_NEAR(form.inner().width, 400, 2);
    EXPECT_NEAR(form.inner().height, 300, 2);
    host.windows().Unload(form);
}

TEST_F(WindowScaleTest, AFormAtAPlaceOfItsOwnStaysOnTheScreenWhateverTheZoom) {
    Form below("frm_Below", {1000, 690});
    below.setWindowState(WindowState::Maximised);
    Form form("frm_Placed", {400, 300});
    form.moveTo({400, 90, 580, 590});
    const auto seen = [this, &form] {
        const FormWindow& window = *host.windows().windowOf(form);
        EXPECT_TRUE(window.screen()->availableGeometry().contains(window.geometry()))
            << look::zoom();
        EXPECT_GE(window.content().height() / window.scale(), 300 - 1) << look::zoom();
        EXPECT_LE(window.content().height(), window.height()) << look::zoom();
    };
    look::setZoom(1);
    host.windows().Show(below);
    host.windows().windowOf(below)->setWindowModality(Qt::ApplicationModal);
    host.windows().Show(form);
    for (int step = 0; step < 8; ++step) {
        zoom(1);
        seen();
    }
    host.windows().Unload(form);
    host.windows().Show(form); // anew, when all is large already
    seen();
    zoom(0);
    seen();
    host.windows().Unload(form);
    host.windows().Unload(below);
}

// 640 x 480 is the size that the toolkit gives to every window that has none yet.
TEST_F(WindowScaleTest, AZoomedDialogKeepsToAScreenOfTheToolkitsOwnSize) {
    Form form("frm_Dialog", {960, 600});
    host.windows().setScreen({640, 480});
    look::setZoom(3);
    host.windows().Show(form);
    EXPECT_EQ(host.windows().windowOf(form)->size(), QSize(640, 480));
    host.windows().Unload(form);
    host.windows().setScreen({});
    look::setZoom(1);
}

TEST_F(WindowScaleTest, WhatHasTheFocusStaysInSightWhenTheScaleChanges) {
    Form form("frm_Large", {1000, 690});
    form.setWindowState(WindowState::Maximised);
    ctl_Button but_Low{form, "but_Low"};
    but_Low.setPlace(860, 640, 120, 30);
    look::setZoom(1);
    host.windows().Show(form);
    but_Low.setFocus();
    FormWindow& window = *host.windows().windowOf(form);
    const QWidget& button = *window.peerOf(but_Low)->widget();
    for (int step = 0; step < 6; ++step) {
        zoom(1);
        const QRect place(button.mapTo(&window, QPoint(0, 0)), button.size());
        EXPECT_TRUE(window.rect().contains(place)) << look::zoom();
    }
    zoom(0);
    host.windows().Unload(form);
}

TEST_F(WindowScaleTest, NeighboursMeetWithoutAGapAtAnyScale) {
    for (double scale = 0.7; scale < 3; scale += 0.173) {
        const QRect one = pixelRect({10, 10, 33, 20}, scale);
        const QRect two = pixelRect({43, 10, 50, 20}, scale);
        EXPECT_EQ(one.right() + 1, two.left());
    }
}

TEST(TextFit, ATextThatFitsKeepsItsSize) {
    EXPECT_EQ(fittedFont({.size = 14}, 2, "pH", {400, 100}, Wrap::None).pixelSize(), 28);
}

TEST(TextFit, ATextThatIsTooLongShrinksStepByStepButStaysReadable) {
    const QString text = "Beeinflussung der elektrischen Leitfähigkeit";
    const int narrow = fittedFont({.size = 14}, 1, text, {220, 20}, Wrap::None).pixelSize();
    EXPECT_LT(narrow, 14);
    EXPECT_GE(fittedFont({.size = 14}, 1, text, {5, 20}, Wrap::None).pixelSize(), 8);
}

TEST(TextFit, AWrappedTextShrinksUntilItsLinesFit) {
    const QString text = "Klicke auf die Pipette, um 10 mL Salzsäure fließen zu lassen";
    const QSizeF room(200, 34);
    const QFont font = fittedFont({.size = 16}, 1, text, room, Wrap::Words);
    const QRectF used =
        QFontMetricsF(font).boundingRect(QRectF(0, 0, room.width(), 1e5), Qt::TextWordWrap, text);
    EXPECT_LE(used.height(), room.height() + 1);
    EXPECT_LT(font.pixelSize(), 16);
}

TEST(TextFit, MarksOfMnemonicsDontCount) {
    EXPECT_EQ(withoutMnemonic("&Neu && &alt"), "Neu & alt");
    EXPECT_EQ(withoutMnemonic("a&"), "a");
    EXPECT_EQ(shownText("a\r\nb\rc"), "a\nb\nc");
}

TEST(TermLayout, ScriptsStandBelowAndAboveTheLine) {
    const TermLayout plain("cV", {.size = 20}, 1);
    const TermLayout lowered("cµV", {.size = 20}, 1);
    const TermLayout raised("c^V", {.size = 20}, 1);
    EXPECT_LT(lowered.width(), plain.width());
    EXPECT_GE(lowered.descent(), plain.descent());
    EXPECT_GT(raised.ascent(), lowered.ascent());
}

TEST(TermLayout, AFractionIsStackedAroundTheAxis) {
    const TermLayout flat("n", {.size = 20}, 1);
    const TermLayout fraction("(n)/(V)", {.size = 20}, 1);
    EXPECT_GT(fraction.height(), 1.6 * flat.height());
    EXPECT_LT(fraction.width(), TermLayout("n / V", {.size = 20}, 1).width());
    EXPECT_GT(fraction.ascent(), fraction.descent());
}

TEST(TermLayout, ATermShrinksIntoItsBox) {
    const QSizeF box(80, 30);
    const TermLayout layout("c = (nµS - nµZ)/(VµS + VµZ)", {.size = 20}, 1, box);
    EXPECT_LT(layout.pixelSize(), 20);
    EXPECT_GE(layout.pixelSize(), 8);
}

TEST(TermLayout, OddBytesAreNoTrouble) {
    for (const char* text : {"", "µ", "^", "(", "((a)/(b", "\xff\xfe", "(a)/(", "|||"}) {
        EXPECT_GE(TermLayout(text, {.size = 12}, 1, {50, 20}).width(), 0) << text;
    }
}

TEST(Look, TextCanBeReadOnItsGround) {
    for (const QColor& ground : {look::kGround, look::kPanel}) {
        EXPECT_GE(look::contrast(look::kInk, ground), 4.5);
        EXPECT_GE(look::contrast(look::kCalmInk, ground), 4.5);
        EXPECT_GE(look::contrast(look::kAccentInk, ground), 4.5);
        EXPECT_GE(look::contrast(look::kRight, ground), 4.5);
        EXPECT_GE(look::contrast(look::kWrong, ground), 4.5);
        for (int n = 0; n < 16; ++n) {
            EXPECT_GE(look::contrast(look::textOn(palette(n), ground), ground), 4.5) << n;
        }
    }
    const QColor light(192, 255, 192);
    EXPECT_GE(look::contrast(look::readable(QColor(0, 128, 0), light), light), 4.5);
}

} // namespace

} // namespace quendal::test
