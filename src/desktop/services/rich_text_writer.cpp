#include "desktop/services/rich_text_writer.h"

#include "desktop/files/table_grid.h"
#include "desktop/windows/look.h"
#include "desktop/windows/text_fit.h"
#include "host/font.h"
#include "host/geometry.h"

#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr int kLineSpacing = 120;  // percent
constexpr double kCellPadding = 5; // design px
constexpr double kTableMargin = 6;
constexpr int kBulletIndent = 300; // twips

Qt::Alignment alignment(RtfAlign align) {
    switch (align) {
    case RtfAlign::Centre:
        return Qt::AlignHCenter;
    case RtfAlign::Right:
        return Qt::AlignRight;
    case RtfAlign::Justified:
        return Qt::AlignJustify;
    case RtfAlign::Left:
        break;
    }
    return Qt::AlignLeft;
}

// Line breaks inside a paragraph, as the toolkit writes them.
QString shown(const std::string& text) {
    return QString::fromStdString(text).replace('\n', QChar::LineSeparator);
}

} // namespace

RichTextWriter::RichTextWriter(QTextDocument& document, double scale)
    : cursor_(&document), scale_(scale) {
    document.clear();
    document.setDefaultFont(look::font(points(12), scale));
    cursor_ = QTextCursor(&document);
}

double RichTextWriter::px(int twips) const {
    return twips / kTwipsPerUnit * scale_;
}

void RichTextWriter::write(const std::vector<RtfBlock>& blocks) {
    cursor_.beginEditBlock();
    for (const RtfBlock& block : blocks) {
        std::visit([this](const auto& part) { write(part); }, block);
    }
    cursor_.endEditBlock();
}

QTextCharFormat RichTextWriter::charFormat(const RtfStyle& style) const {
    QTextCharFormat format;
    QFont font = look::font(points(style.points), scale_, style.bold);
    font.setItalic(style.italic);
    font.setUnderline(style.underline);
    format.setFont(font);
    const QColor ground = style.ground ? look::toQColor(*style.ground) : look::kPanel;
    format.setForeground(style.color ? look::textOn(*style.color, ground) : look::kInk);
    if (style.ground) {
        format.setBackground(ground);
    }
    if (style.script != RtfScript::Normal) {
        format.setVerticalAlignment(style.script == RtfScript::Super
                                        ? QTextCharFormat::AlignSuperScript
                                        : QTextCharFormat::AlignSubScript);
    }
    return format;
}

QTextBlockFormat RichTextWriter::blockFormat(const RtfParagraph& paragraph) const {
    RtfLayout layout = paragraph.layout;
    if (paragraph.bullet && layout.first >= 0) { // the text hangs to the right of its sign
        layout.left += kBulletIndent;
        layout.first = -kBulletIndent;
    }
    QTextBlockFormat format;
    format.setAlignment(alignment(layout.align));
    format.setLeftMargin(std::max(0.0, px(layout.left)));
    format.setRightMargin(std::max(0.0, px(layout.right)));
    format.setTextIndent(px(layout.first));
    format.setTopMargin(std::max(0.0, px(layout.before)));
    format.setBottomMargin(std::max(0.0, px(layout.after)));
    format.setLineHeight(kLineSpacing, QTextBlockFormat::ProportionalHeight);
    if (layout.ruleBelow) {
        format.setProperty(QTextFormat::BlockTrailingHorizontalRulerWidth,
                           QTextLength(QTextLength::PercentageLength, 100));
    }
    format.setTabPositions(tabPositions(layout));
    return format;
}

// RTF counts them from the page's edge, the toolkit from where the first line begins.
QList<QTextOption::Tab> RichTextWriter::tabPositions(const RtfLayout& layout) const {
    std::vector<int> stops = layout.tabs;
    if (layout.first < 0) { // what hangs is followed by a tab to the margin
        stops.push_back(layout.left);
    }
    std::sort(stops.begin(), stops.end());
    QList<QTextOption::Tab> tabs;
    for (const int stop : stops) {
        if (const int place = stop - layout.left - layout.first; place > 0) {
            tabs.append(QTextOption::Tab(px(place), QTextOption::LeftTab));
        }
    }
    return tabs;
}

void RichTextWriter::startBlock(const RtfParagraph& paragraph) {
    const QTextBlockFormat format = blockFormat(paragraph);
    if (fresh_) {
        cursor_.setBlockFormat(format);
    } else {
        cursor_.insertBlock(format);
    }
    // Merged: the first block of a table's cell carries what the cell has been joined with.
    cursor_.mergeBlockCharFormat(charFormat(paragraph.mark));
    fresh_ = false;
    if (paragraph.bullet) {
        cursor_.insertText("\u2022\t", charFormat(paragraph.mark));
    }
}

void RichTextWriter::write(const RtfParagraph& paragraph) {
    startBlock(paragraph);
    for (const RtfRun& run : paragraph.runs) {
        cursor_.insertText(shown(run.text), charFormat(run.style));
    }
}

void RichTextWriter::fillCell(const RtfCell& cell, QTextTable& table, int row, int column) {
    QTextTableCell place = table.cellAt(row, column);
    // The present format knows what the cell has been joined with.
    QTextTableCellFormat format = place.format().toTableCellFormat();
    const double line = std::max(1.0, scale_);
    const auto edge = [line](bool drawn) { return drawn ? line : 0.0; };
    const auto style = [](bool drawn) {
        return drawn ? QTextFrameFormat::BorderStyle_Solid : QTextFrameFormat::BorderStyle_None;
    };
    const RtfEdges& border = cell.layout.border;
    format.setTopBorder(edge(border.top));
    format.setBottomBorder(edge(border.bottom));
    format.setLeftBorder(edge(border.left));
    format.setRightBorder(edge(border.right));
    format.setTopBorderStyle(style(border.top));
    format.setBottomBorderStyle(style(border.bottom));
    format.setLeftBorderStyle(style(border.left));
    format.setRightBorderStyle(style(border.right));
    format.setBorderBrush(look::kCalmInk);
    format.setPadding(kCellPadding * scale_);
    if (cell.layout.ground) {
        format.setBackground(look::toQColor(*cell.layout.ground));
    }
    if (cell.layout.centred) {
        format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
    }
    place.setFormat(format);
    cursor_ = place.firstCursorPosition();
    fresh_ = true;
    for (const RtfParagraph& paragraph : cell.paragraphs) {
        write(paragraph);
    }
}

void RichTextWriter::write(const RtfTable& source) {
    const TableGrid grid(source);
    QTextTableFormat format;
    format.setBorder(0);
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setLeftMargin(std::max(0.0, px(grid.leftEdge())));
    format.setTopMargin(kTableMargin * scale_);
    format.setBottomMargin(kTableMargin * scale_);
    QList<QTextLength> widths;
    for (int column = 0; column < grid.columns(); ++column) {
        widths.append(QTextLength(QTextLength::FixedLength, std::max(1.0, px(grid.width(column)))));
    }
    format.setColumnWidthConstraints(widths);
    QTextTable* table = cursor_.insertTable(grid.rows(), grid.columns(), format);
    for (const TableGrid::Span& span : grid.spans()) {
        table->mergeCells(span.row, span.column, span.rows, span.columns);
        fillCell(*span.cell, *table, span.row, span.column);
    }
    cursor_ = table->lastCursorPosition();
    cursor_.movePosition(QTextCursor::NextBlock);
    fresh_ = true;
}

void RichTextWriter::addNotice(const QString& text) {
    RtfParagraph paragraph;
    paragraph.layout.before = 200;
    paragraph.mark.italic = true;
    paragraph.runs.push_back({.text = text.toStdString(), .style = paragraph.mark});
    write(paragraph);
}

} // namespace quendal
