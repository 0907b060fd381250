#include "desktop/pictures/sprite_text.h"

#include <QFont>
#include <QFontMetricsF>

#include <algorithm>
#include <array>

namespace quendal {

namespace {

constexpr int kLetterSize = 512; // px of the font that the outlines are taken from

// Only faces that have a stand-in on every system; all others are drawn in Arial. So no file makes
// the program look for fonts that there aren't.
QString knownFamily(const std::string& family) {
    constexpr std::array kKnown{"Times New Roman", "Courier New"};
    for (const char* known : kKnown) {
        if (family == known) {
            return QString::fromLatin1(known);
        }
    }
    return QStringLiteral("Arial");
}

QFont letterFont(const WmfFont& font) {
    QFont made(knownFamily(font.family));
    made.setPixelSize(kLetterSize);
    made.setBold(font.bold);
    made.setItalic(font.italic);
    made.setHintingPreference(QFont::PreferNoHinting);
    return made;
}

// Of the size: an average letter as those count it who ask for a width, in both weights of Arial.
constexpr double kAverageLetter = 904.0 / 2048;
constexpr double kAverageBoldLetter = 983.0 / 2048;

// How much wider than the font has them the letters are to be.
double widening(const WmfFont& font, double scale) {
    constexpr double kMost = 8; // wider or narrower than that nobody can read them
    const double usual = (font.bold ? kAverageBoldLetter : kAverageLetter) * kLetterSize * scale;
    return font.width > 0 && usual > 0 ? std::clamp(font.width / usual, 1 / kMost, kMost) : 1;
}

// A text in units of its font, from the start of its base line.
struct SetText {
    QPainterPath letters;
    double width = 0;
};

SetText setText(const WmfText& text, const QFont& font, double scale) {
    const QString shown = QString::fromStdString(text.text);
    SetText set;
    if (text.advances.empty() || scale <= 0) {
        set.letters.addText(0, 0, font, shown);
        set.width = QFontMetricsF(font).horizontalAdvance(shown);
        return set;
    }
    // One character of the code page is one unit of UTF-16.
    for (qsizetype i = 0; i < shown.size(); ++i) {
        set.letters.addText(set.width, 0, font, shown.mid(i, 1));
        set.width += text.advances[static_cast<std::size_t>(i)] / scale;
    }
    return set;
}

double shareOf(WmfText::Across across) {
    return across == WmfText::Across::Left ? 0 : across == WmfText::Across::Centre ? 0.5 : 1;
}

double baseline(WmfText::Down down, const QFontMetricsF& metrics) {
    return down == WmfText::Down::Top      ? metrics.ascent()
           : down == WmfText::Down::Bottom ? -metrics.descent()
                                           : 0;
}

} // namespace

std::vector<SpriteOutline> textOutlines(const WmfText& text, const QTransform& toPixels) {
    const QFont font = letterFont(text.font);
    const QFontMetricsF metrics(font);
    const double cell = metrics.ascent() + metrics.descent();
    const double scale =
        text.font.height / (text.font.meaning == WmfFont::Height::Cell ? cell : kLetterSize);
    const double across = scale * widening(text.font, scale);
    const SetText set = setText(text, font, across);

    QTransform place;
    place.translate(text.place.x, text.place.y);
    place.rotate(-text.font.angle);
    place.scale(across, scale);
    place.translate(-set.width * shareOf(text.across), baseline(text.down, metrics));
    const QTransform whole = place * toPixels;
    std::vector<SpriteOutline> outlines;
    if (text.ground) {
        QPainterPath ground;
        ground.addRect(0, -metrics.ascent(), set.width, cell);
        outlines.push_back({whole.map(ground), *text.ground});
    }
    outlines.push_back({whole.map(set.letters), text.color});
    outlines.back().path.setFillRule(Qt::WindingFill);
    return outlines;
}

} // namespace quendal
