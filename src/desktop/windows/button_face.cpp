#include "desktop/windows/button_face.h"

#include "desktop/pictures/icon_library.h"
#include "desktop/windows/look.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr double kPadding = 10; // design px beside the content
constexpr double kNarrowPadding = 5;
constexpr double kIconGap = 7;
constexpr double kNarrow = 90; // buttons below it get the narrow padding

} // namespace

ButtonFace::ButtonFace(QWidget* parent, IconLibrary& icons)
    : QAbstractButton(parent), icons_(icons) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

void ButtonFace::setStyle(Style style) {
    style_ = std::move(style);
    setCursor(Qt::PointingHandCursor);
    update();
}

void ButtonFace::setScale(double scale) {
    scale_ = scale;
    update();
}

ButtonFace::Colours ButtonFace::colours() const {
    if (!isEnabled()) {
        return {look::kGround, look::kBorder, look::readable(look::kCalmInk, look::kGround)};
    }
    const bool coloured = style_.fill.isValid();
    Colours made =
        coloured ? Colours{style_.fill, style_.border, look::readable(style_.border, style_.fill)}
                 : Colours{look::kPanel, look::kStrongBorder, look::kInk};
    if (style_.isDefault && !coloured) {
        made.border = look::kAccentInk;
    }
    if (isDown()) {
        made.fill = coloured ? style_.fill.darker(110) : look::kAccentWash.darker(107);
        made.border = coloured ? style_.border : look::kAccentInk;
    } else if (underMouse()) {
        made.fill = coloured ? style_.fill.lighter(104) : look::kAccentWash;
        made.border = coloured ? style_.border : look::kAccent;
    }
    if (style_.ink.isValid()) {
        made.ink = look::readable(style_.ink, made.fill);
    }
    return made;
}

void ButtonFace::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Colours shown = colours();
    const bool strong = style_.fill.isValid() || style_.isDefault;
    const double border = std::max(1.0, (strong ? 1.5 : 1.0) * scale_);
    const double corner = look::kButtonCorner * scale_;
    look::drawBox(painter, rect(), corner, shown.fill, shown.border, border);
    paintContent(painter, shown.ink);
    if (hasFocus()) {
        look::drawFocus(painter, look::focusRoom(rect(), strong, scale_), corner, scale_);
    }
}

void ButtonFace::paintContent(QPainter& painter, const QColor& ink) {
    const double padding = (width() < kNarrow * scale_ ? kNarrowPadding : kPadding) * scale_;
    QRectF room = QRectF(rect()).adjusted(padding, 2, -padding, -2);
    const double ratio = devicePixelRatioF();
    const double design = IconLibrary::designSize(style_.icon);
    const double fit = std::min(scale_, (height() - 4) / design);
    const QPixmap icon =
        icons_.pixmap(style_.icon, fit, ratio, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const QSizeF iconSize = icon.isNull() ? QSizeF(0, 0) : icon.deviceIndependentSize();
    const double gap = icon.isNull() || text().isEmpty() ? 0 : kIconGap * scale_;
    const QSizeF textRoom(std::max(0.0, room.width() - iconSize.width() - gap), room.height());

    const QFont font = fittedFont(style_.font, scale_, text(), textRoom, Wrap::Words);
    const QRectF used = QFontMetricsF(font).boundingRect(
        QRectF({0, 0}, textRoom), Qt::TextWordWrap | Qt::TextShowMnemonic, text());
    const double textWidth = std::min(textRoom.width(), std::ceil(used.width()) + 1);
    const double whole = iconSize.width() + gap + textWidth;
    double left = room.left();
    if (style_.align == Qt::AlignHCenter) {
        left += std::max(0.0, (room.width() - whole) / 2);
    } else if (style_.align == Qt::AlignRight) {
        left += std::max(0.0, room.width() - whole);
    }
    if (!icon.isNull()) {
        painter.drawPixmap(
            QPointF(std::round(left), std::round(room.center().y() - iconSize.height() / 2)), icon);
    }
    painter.setPen(ink);
    // Several lines in the middle stand in the middle themselves.
    const Qt::Alignment lines = icon.isNull() ? style_.align : Qt::AlignLeft;
    fitted_.paint(painter,
                  {left + iconSize.width() + gap, room.top(), textWidth + 0.5, room.height()},
                  text(), style_.font, scale_, lines | Qt::AlignVCenter, Wrap::Words);
}

} // namespace quendal
