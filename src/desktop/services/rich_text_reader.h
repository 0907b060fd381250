// Help texts: RTF files into text documents.
#pragma once

#include <QString>

class QTextDocument;

namespace quendal {

// Fills `document` with the text of the file; lengths and type are drawn at `scale` pixels for a
// design px. A file that is missing or broken leaves a short sentence for the learner in it, behind
// what could be read; the result is then false and `fault` says why, in German.
bool loadRichText(const QString& path, QTextDocument& document, QString& fault, double scale = 1);

} // namespace quendal
