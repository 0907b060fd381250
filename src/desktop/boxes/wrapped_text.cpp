#include "desktop/boxes/wrapped_text.h"

#include "desktop/windows/look.h"

#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr int kLineSpacing = 118; // percent

} // namespace

WrappedText::WrappedText(const QString& text, const QFont& font, QSize most, QWidget* parent)
    : QTextEdit(parent) {
    setFont(font);
    setReadOnly(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setTextInteractionFlags(Qt::NoTextInteraction);
    viewport()->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document()->setDocumentMargin(0);
    document()->setDefaultFont(font);
    setPlainText(text);
    setAccessibleName(text);
    verticalScrollBar()->setAccessibleName(QStringLiteral("Senkrecht rollen"));
    spaceLines();
    fit(most);
}

void WrappedText::spaceLines() {
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    QTextBlockFormat spacing;
    spacing.setLineHeight(kLineSpacing, QTextBlockFormat::ProportionalHeight);
    all.mergeBlockFormat(spacing);
}

void WrappedText::fit(QSize most) {
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    setLineWrapColumnOrWidth(most.width());
    const int needed = static_cast<int>(std::ceil(document()->idealWidth())) + 1;
    const int width = std::min(most.width(), needed);
    setLineWrapColumnOrWidth(width);
    const int height = static_cast<int>(std::ceil(document()->size().height())) + 1;
    if (height <= most.height()) {
        setFixedSize(width, height);
        return;
    }
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(width + verticalScrollBar()->sizeHint().width(), most.height());
}

// Arrows and page keys scroll; the rest is the box's.
void WrappedText::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QTextEdit::keyPressEvent(event);
        break;
    default:
        event->ignore();
    }
}

} // namespace quendal
