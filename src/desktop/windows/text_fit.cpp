#include "desktop/windows/text_fit.h"

#include "desktop/windows/look.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr double kLeastShare = 0.6; // of the size asked for
constexpr int kLeastPixels = 7;

int flagsFor(Wrap wrap) {
    return Qt::TextShowMnemonic | (wrap == Wrap::Words ? Qt::TextWordWrap : 0);
}

// Width of the longest word: wrapping can't help where it is too long.
double widestWord(const QFontMetricsF& metrics, const QString& text) {
    double widest = 0;
    for (const QString& word : text.split(QRegularExpression(QStringLiteral("\\s+")))) {
        widest = std::max(widest, metrics.horizontalAdvance(withoutMnemonic(word)));
    }
    return widest;
}

bool fits(const QFont& font, const QString& text, QSizeF box, Wrap wrap) {
    const QFontMetricsF metrics(font);
    if (wrap == Wrap::Words && widestWord(metrics, text) > box.width()) {
        return false;
    }
    const QRectF room(0, 0, wrap == Wrap::Words ? box.width() : 1e6, 1e6);
    const QRectF used = metrics.boundingRect(room, flagsFor(wrap), text);
    // A font's height holds room for accents that a line at the edge can do without.
    return used.width() <= box.width() + 0.5 && used.height() <= box.height() + 1.0;
}

} // namespace

QFont fittedFont(const FontSpec& spec, double scale, const QString& text, QSizeF box, Wrap wrap) {
    QFont font = look::font(spec, scale);
    const int asked = font.pixelSize();
    const int least = std::max(kLeastPixels, static_cast<int>(std::ceil(asked * kLeastShare)));
    for (int size = asked; size > least && !fits(font, text, box, wrap);) {
        font.setPixelSize(--size);
    }
    return font;
}

void drawFitted(QPainter& painter, const QRectF& box, const QString& text, Qt::Alignment align,
                Wrap wrap) {
    if (fits(painter.font(), text, box.size(), wrap)) {
        painter.drawText(box, static_cast<int>(align) | flagsFor(wrap), text);
        return;
    }
    const QFontMetricsF metrics(painter.font());
    QString rest = withoutMnemonic(text);
    if (wrap == Wrap::None) {
        rest = metrics.elidedText(rest.replace('\n', ' '), Qt::ElideRight, box.width());
    }
    while (wrap == Wrap::Words && rest.size() > 1 &&
           !fits(painter.font(), rest + QChar(0x2026), box.size(), wrap)) {
        rest.chop(1);
    }
    if (wrap == Wrap::Words) {
        rest += QChar(0x2026);
    }
    painter.save();
    painter.setClipRect(box);
    painter.drawText(box, static_cast<int>(align) | (wrap == Wrap::Words ? Qt::TextWordWrap : 0),
                     rest);
    painter.restore();
}

QString withoutMnemonic(const QString& text) {
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && i + 1 < text.size()) {
            ++i;
        } else if (text[i] == '&') {
            continue;
        }
        plain += text[i];
    }
    return plain;
}

QString shownText(const std::string& text) {
    QString shown = QString::fromStdString(text);
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    shown.replace('\r', '\n');
    return shown;
}

} // namespace quendal
