#include "desktop/boxes/desktop_calculator.h"

#include "desktop/boxes/about_box.h"
#include "desktop/boxes/calculator_display.h"
#include "desktop/script/synthetic_input.h"
#include "desktop/services/observer_link.h"
#include "host/geometry.h"
#include "host/host_observer.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

// Far outside of any screen; keeps a broken number from becoming a place.
constexpr double kFarthest = 100000;

int pixels(double twips, double scale) {
    const double place = twips / kTwipsPerUnit * scale;
    return std::isfinite(place)
               ? static_cast<int>(std::lround(std::clamp(place, -kFarthest, kFarthest)))
               : 0;
}

void clickRow(QListWidget& list, int row) {
    if (QListWidgetItem* item = list.item(row); item != nullptr) {
        list.scrollToItem(item);
        clickAt(*list.viewport(), list.visualItemRect(item).center());
    }
}

void answer(CalculatorWindow& window, const BoxReply& reply) {
    if (reply.kind == BoxReply::Kind::Cancel) {
        clickMiddle(window.abortButton());
        return;
    }
    if (reply.kind == BoxReply::Kind::Value) {
        typeText(window.display().line(), QString::fromStdString(reply.text));
    } else if (reply.kind == BoxReply::Kind::Preset && window.offered() != nullptr) {
        clickRow(*window.offered(), reply.preset - 1);
    }
    clickMiddle(window.takeButton());
}

} // namespace

std::optional<double> DesktopCalculator::Show(int, int, double x, double y,
                                              const CalcPresets& presets) {
    const double scale = boxScale();
    CalculatorWindow window(presets, history_, scale);
    const QPoint place(pixels(x, scale), pixels(y, scale));
    if (link_.observer == nullptr) {
        window.run({}, place);
        return window.value();
    }
    const BoxReply reply = link_.observer->boxOpened({.kind = BoxKind::Calculator,
                                                      .title = kCalculatorCaption,
                                                      .text = {},
                                                      .proposal = {},
                                                      .presets = presets.lines()});
    window.run([&window, reply] { answer(window, reply); }, place);
    return window.value();
}

void DesktopCalculator::ShowAbout() {
    AboutBox box(options_, boxScale());
    if (link_.observer == nullptr) {
        box.run();
        return;
    }
    BoxEvent event;
    event.kind = BoxKind::About;
    event.title = box.windowTitle().toStdString();
    link_.observer->boxOpened(event);
    box.run([&box] { clickMiddle(box.okButton()); });
}

} // namespace quendal
