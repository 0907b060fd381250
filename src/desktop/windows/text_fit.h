// Text that never leaves its control: fonts are measured and shrunk step by step, and only what
// still doesn't fit is elided.
#pragma once

#include "host/font.h"

#include <QFont>
#include <QSizeF>
#include <QString>

class QPainter;
class QRectF;

namespace quendal {

enum class Wrap { None, Words };

// The font for `spec` at `scale`, as many pixels smaller as it takes for `text` to fit into `box`,
// but never below the least share of its size that can still be read. "&" marks of mnemonics don't
// count.
QFont fittedFont(const FontSpec& spec, double scale, const QString& text, QSizeF box, Wrap wrap);

// Draws in the font of the painter; what doesn't fit is elided at its end.
void drawFitted(QPainter& painter, const QRectF& box, const QString& text, Qt::Alignment align,
                Wrap wrap);

// The text without the marks of mnemonics: "&Datei" is "Datei", "&&" is "&".
QString withoutMnemonic(const QString& text);

// UTF-8, with "\r\n" and "\r" as line ends.
QString shownText(const std::string& text);

} // namespace quendal
