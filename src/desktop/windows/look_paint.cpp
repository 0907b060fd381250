#include "desktop/windows/look_paint.h"

#include "desktop/windows/look.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include <algorithm>

namespace quendal {

namespace {

bool has(const QStyleOption* option, QStyle::StateFlag flag) {
    return option->state.testFlag(flag);
}

struct ButtonColours {
    QColor fill;
    QColor border;
};

ButtonColours buttonColours(const QStyleOption* option) {
    if (!has(option, QStyle::State_Enabled)) {
        return {look::kGround, look::kBorder};
    }
    if (has(option, QStyle::State_Sunken)) {
        return {look::kAccentWash.darker(106), look::kAccentInk};
    }
    if (has(option, QStyle::State_MouseOver)) {
        return {look::kAccentWash, look::kAccent};
    }
    return {look::kPanel, look::kStrongBorder};
}

QColor indicatorColour(const QStyleOption* option, bool on) {
    if (!has(option, QStyle::State_Enabled)) {
        return look::kCalmInk;
    }
    return on || has(option, QStyle::State_MouseOver) ? look::kAccentInk : look::kCalmInk;
}

QRectF squareIn(const QRect& rect) {
    const double side = std::min(rect.width(), rect.height());
    return {rect.center().x() + 0.5 - side / 2, rect.center().y() + 0.5 - side / 2, side, side};
}

// An open arrow head that points down, `size` wide, around `centre`.
void drawChevron(QPainter& painter, QPointF centre, double size, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, size * 0.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF corners[] = {centre + QPointF(-size / 2, -size / 4),
                               centre + QPointF(0, size / 4),
                               centre + QPointF(size / 2, -size / 4)};
    painter.drawPolyline(corners, 3);
    painter.restore();
}

} // namespace

void drawFieldBox(QPainter& painter, const QStyleOption* option, const QWidget* widget) {
    const double scale = look::scaleOf(widget);
    const bool enabled = has(option, QStyle::State_Enabled);
    const QColor fill = enabled ? look::kPanel : look::kGround;
    const bool focus = has(option, QStyle::State_HasFocus);
    const QColor border = enabled ? look::kStrongBorder : look::kBorder;
    painter.save();
    look::drawBox(painter, option->rect, look::kButtonCorner * scale, fill, border,
                  std::max(1.0, scale));
    if (focus) {
        look::drawFocus(painter, option->rect, look::kButtonCorner * scale, scale);
    }
    painter.restore();
}

void drawButton(QPainter& painter, const QStyleOption* option, const QWidget* widget) {
    const double scale = look::scaleOf(widget);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const bool isDefault =
        button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
    ButtonColours colours = buttonColours(option);
    if (isDefault && has(option, QStyle::State_Enabled)) {
        colours.border = look::kAccentInk;
    }
    painter.save();
    look::drawBox(painter, option->rect, look::kButtonCorner * scale, colours.fill, colours.border,
                  std::max(1.0, (isDefault ? 1.5 : 1.0) * scale));
    if (has(option, QStyle::State_HasFocus)) {
        look::drawFocus(painter, look::focusRoom(option->rect, isDefault, scale),
                        look::kButtonCorner * scale, scale);
    }
    painter.restore();
}

void drawCheck(QPainter& painter, const QStyleOption* option, const QWidget* widget) {
    const double scale = look::scaleOf(widget);
    const bool on = has(option, QStyle::State_On);
    const QColor colour = indicatorColour(option, on);
    const QRectF box = squareIn(option->rect);
    painter.save();
    look::drawBox(painter, box, 4 * scale, on ? colour : look::kPanel, colour,
                  std::max(1.0, 1.4 * scale));
    if (on) {
        const double side = box.width();
        QPainterPath tick(box.topLeft() + QPointF(side * 0.22, side * 0.53));
        tick.lineTo(box.topLeft() + QPointF(side * 0.43, side * 0.73));
        tick.lineTo(box.topLeft() + QPointF(side * 0.79, side * 0.28));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Qt::white, side * 0.13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(tick);
    }
    painter.restore();
}

void drawOption(QPainter& painter, const QStyleOption* option, const QWidget* widget) {
    const double scale = look::scaleOf(widget);
    const bool on = has(option, QStyle::State_On);
    const QColor colour = indicatorColour(option, on);
    const QRectF box = squareIn(option->rect);
    painter.save();
    look::drawBox(painter, box, box.width() / 2, look::kPanel, colour, std::max(1.0, 1.4 * scale));
    if (on) {
        const double rim = box.width() * 0.27;
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawEllipse(box.adjusted(rim, rim, -rim, -rim));
    }
    painter.restore();
}

void drawComboBox(QPainter& painter, const QStyleOptionComplex* option, const QWidget* widget) {
    drawFieldBox(painter, option, widget);
    const double field = kArrowField * look::scaleOf(widget);
    const QPointF centre(option->rect.right() - field / 2, option->rect.center().y() + 0.5);
    const bool enabled = has(option, QStyle::State_Enabled);
    drawChevron(painter, centre, field * 0.38, enabled ? look::kInk : look::kCalmInk);
}

void drawScrollBar(QPainter& painter, const QStyleOptionComplex* option, const QWidget* widget,
                   const QRect& slider) {
    painter.fillRect(option->rect, look::kGround);
    const double inset = 2 * look::scaleOf(widget);
    const QRectF thumb = QRectF(slider).adjusted(inset, inset, -inset, -inset);
    const bool active = option->activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
    const double radius = std::min(thumb.width(), thumb.height()) / 2;
    painter.save();
    look::drawBox(painter, thumb, radius, active ? look::kCalmInk : look::kStrongBorder, {}, 0);
    painter.restore();
}

// A tab is a rounded head that joins the white page below when it is chosen.
void drawTab(QPainter& painter, const QStyleOption* option, const QWidget* widget) {
    const double scale = look::scaleOf(widget);
    const bool chosen = has(option, QStyle::State_Selected);
    const double gap = 2 * scale;
    const double line = std::max(1.0, scale);
    const double corner = look::kCorner * scale;
    QRectF head = QRectF(option->rect).adjusted(gap, chosen ? gap : 2 * gap, -gap, corner * 2);
    painter.save();
    painter.setClipRect(option->rect);
    const bool hover = has(option, QStyle::State_MouseOver) && has(option, QStyle::State_Enabled);
    const QColor fill = chosen ? look::kPanel : hover ? look::kAccentWash : QColor(233, 239, 240);
    look::drawBox(painter, head, corner, fill, look::kBorder, line);
    if (chosen) {
        const QRectF mark(head.left() + corner, head.top(), head.width() - 2 * corner, 3 * scale);
        painter.setClipRect(option->rect);
        look::drawBox(painter, mark, mark.height() / 2, look::kAccent, {}, 0);
    } else {
        painter.fillRect(QRectF(option->rect.left(), option->rect.bottom() + 1 - line,
                                option->rect.width(), line),
                         look::kBorder);
    }
    painter.restore();
}

void drawTabLabel(QPainter& painter, const QStyleOptionTab& tab, const QWidget* widget) {
    const bool chosen = has(&tab, QStyle::State_Selected);
    painter.save();
    QFont font = painter.font();
    font.setBold(chosen);
    painter.setFont(font);
    const bool enabled = has(&tab, QStyle::State_Enabled);
    painter.setPen(enabled ? (chosen ? look::kAccentInk : look::kInk) : look::kCalmInk);
    painter.drawText(tab.rect, Qt::AlignCenter | Qt::TextShowMnemonic, tab.text);
    if (has(&tab, QStyle::State_HasFocus) && chosen) {
        const double scale = look::scaleOf(widget);
        const QRectF ring = QRectF(tab.rect).adjusted(6 * scale, 8 * scale, -6 * scale, -4 * scale);
        look::drawFocus(painter, ring, 4 * scale, scale);
    }
    painter.restore();
}

void drawMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item, const QWidget* widget) {
    painter.save();
    painter.fillRect(item.rect, look::kGround);
    const bool open = has(&item, QStyle::State_Sunken);
    if (open || has(&item, QStyle::State_Selected)) {
        const double inset = 2 * look::scaleOf(widget);
        look::drawBox(painter, QRectF(item.rect).adjusted(inset, inset, -inset, -inset),
                      4 * look::scaleOf(widget), look::kAccentWash, {}, 0);
    }
    painter.setPen(open ? look::kAccentInk : look::kInk);
    painter.drawText(item.rect, Qt::AlignCenter | Qt::TextShowMnemonic, item.text);
    painter.restore();
}

} // namespace quendal
