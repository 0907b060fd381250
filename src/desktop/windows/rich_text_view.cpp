#include "desktop/windows/rich_text_view.h"

#include "desktop/services/rich_text_reader.h"
#include "desktop/windows/look.h"
#include "host/log.h"

#include <QFont>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTextFrame>

#include <cmath>

namespace quendal {

namespace {

constexpr double kMargin = 14;       // design px around the text
constexpr double kLongestLine = 760; // design px; longer lines are hard to read

} // namespace

RichTextView::RichTextView(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    setFrameShape(QFrame::StyledPanel);
    setUndoRedoEnabled(false);
    verticalScrollBar()->setAccessibleName(QStringLiteral("Senkrecht rollen"));
    horizontalScrollBar()->setAccessibleName(QStringLiteral("Waagerecht rollen"));
}

void RichTextView::showFile(const QString& path, double scale) {
    if (path == path_ && scale == scale_) {
        return;
    }
    const double before =
        verticalScrollBar()->maximum() > 0
            ? static_cast<double>(verticalScrollBar()->value()) / verticalScrollBar()->maximum()
            : 0;
    const bool sameText = path == path_;
    path_ = path;
    scale_ = scale;
    document()->clear();
    document()->setDefaultFont(look::font(look::kTextSize, scale));
    QString fault;
    if (!path.isEmpty() && !loadRichText(path, *document(), fault, scale)) {
        logLine("help text " + path.toStdString() + ": " + fault.toStdString());
    }
    fitLines();
    moveCursor(QTextCursor::Start);
    if (sameText) {
        verticalScrollBar()->setValue(
            static_cast<int>(std::lround(before * verticalScrollBar()->maximum())));
    }
}

void RichTextView::resizeEvent(QResizeEvent* event) {
    fitLines();
    QTextBrowser::resizeEvent(event);
}

// Lines of a comfortable length, in the middle of a wide window.
void RichTextView::fitLines() {
    const double side =
        std::max(kMargin * scale_, (viewport()->width() - kLongestLine * scale_) / 2);
    QTextFrameFormat page = document()->rootFrame()->frameFormat();
    if (page.leftMargin() != side || page.topMargin() != kMargin * scale_) {
        page.setMargin(kMargin * scale_);
        page.setLeftMargin(side);
        page.setRightMargin(side);
        document()->rootFrame()->setFrameFormat(page);
    }
}

} // namespace quendal
