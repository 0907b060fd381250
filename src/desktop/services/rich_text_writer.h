// Puts the blocks of a help text into a text document of the toolkit.
#pragma once

#include "desktop/files/rtf_document.h"

#include <QTextCursor>
#include <QTextOption>

namespace quendal {

class RichTextWriter {
  public:
    RichTextWriter(QTextDocument& document, double scale);

    void write(const std::vector<RtfBlock>& blocks);
    // A paragraph of its own at the end, for the learner.
    void addNotice(const QString& text);

  private:
    void write(const RtfParagraph& paragraph);
    void write(const RtfTable& table);
    void startBlock(const RtfParagraph& paragraph);
    QTextBlockFormat blockFormat(const RtfParagraph& paragraph) const;
    QList<QTextOption::Tab> tabPositions(const RtfLayout& layout) const;
    QTextCharFormat charFormat(const RtfStyle& style) const;
    void fillCell(const RtfCell& cell, class QTextTable& table, int row, int column);
    double px(int twips) const;

    QTextCursor cursor_;
    double scale_;
    bool fresh_ = true; // the cursor stands in a block that is still empty
};

} // namespace quendal
