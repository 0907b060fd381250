#include "desktop/boxes/about_box.h"

#include "desktop/boxes/wrapped_text.h"
#include "desktop/services/product.h"
#include "desktop/windows/accessible.h"
#include "desktop/windows/look.h"
#include "desktop/windows/text_fit.h"
#include "host/calculator.h"
#include "host/sound.h"

#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <qcustomplot.h>

namespace quendal {

namespace {

constexpr double kWidth = 400; // design px, of a paragraph
constexpr double kHeight = 200;

constexpr const char* kWhat =
    "Quendal zeigt, was bei einer Titration geschieht: im Becherglas, zwischen den Teilchen und "
    "auf der Kurve. Wer mag, rechnet jeden Punkt selbst nach und bekommt Hilfe, wo sie gebraucht "
    "wird.";

constexpr const char* kLicence =
    "Freie Software unter der GNU General Public License, Version 3 oder später "
    "(GPL-3.0-or-later). Du darfst das Programm benutzen, weitergeben und verändern; es kommt "
    "ohne jede Gewähr.";

QString orElse(const std::string& text, const char* otherwise) {
    return text.empty() ? QString(otherwise) : shownText(text);
}

// Parts what stands above it from what stands below.
class Rule final : public QWidget, public Spoken {
  public:
    Rule(int height, QWidget* parent) : QWidget(parent) { setFixedHeight(height); }
    QAccessible::Role spokenRole() const override { return QAccessible::Separator; }

  protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), look::kBorder); }
};

QString builtWith() {
    return QString("Erstellt mit Qt %1 (LGPL 3) und QCustomPlot %2 (GPL 3); Symbole aus Breeze "
                   "(LGPL 3).")
        .arg(qVersion(), QCUSTOMPLOT_VERSION_STR);
}

} // namespace

AboutBox::AboutBox(const SoundOptions& product, double scale)
    : BoxWindow(orElse(product.Title, kProductName), scale) {
    body().setSpacing(px(10));
    addText(orElse(product.ProductName, kProductName), 24, true);
    addText("Version " + orElse(product.Version, kProductVersion), 14);
    addLine();
    addText(kWhat, 14);
    addText(kLicence, 13);
    addText(builtWith(), 13);
    ok_ = &addButton("&OK", 1);
    setEscapeCode(1);
}

void AboutBox::addText(const QString& text, double size, bool bold) {
    auto* words =
        new WrappedText(text, look::font(size, scale(), bold), {px(kWidth), px(kHeight)}, this);
    if (bold) {
        words->setTextColor(look::kAccentInk);
        words->setPlainText(text);
    }
    body().addWidget(words);
}

void AboutBox::addLine() {
    body().addWidget(new Rule(std::max(1, px(1)), this));
}

} // namespace quendal
