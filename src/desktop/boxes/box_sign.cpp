#include "desktop/boxes/box_sign.h"

#include "desktop/windows/look.h"

#include <QPainter>
#include <QPainterPath>

namespace quendal {

namespace {

// Everything is drawn in a square of 32 units.
constexpr double kUnits = 32;

const QColor kWarning(196, 120, 16);

QPainterPath triangle() {
    QPainterPath path(QPointF(16, 4));
    path.lineTo(29, 27);
    path.lineTo(3, 27);
    path.closeSubpath();
    return path;
}

void drawGround(QPainter& painter, BoxSign sign) {
    if (sign == BoxSign::Alarm) {
        painter.setPen(QPen(kWarning, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(kWarning);
        painter.drawPath(triangle());
        return;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::kAccent);
    painter.drawEllipse(QRectF(1, 1, 30, 30));
}

// A stroke with a dot below or above it.
void drawStroke(QPainter& painter, double from, double to, double dot) {
    painter.drawLine(QPointF(16, from), QPointF(16, to));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QPointF(16, dot), 2.2, 2.2);
}

void drawHook(QPainter& painter) {
    QPainterPath hook(QPointF(11.2, 12.2));
    hook.cubicTo(11.2, 5.4, 20.8, 5.4, 20.8, 12);
    hook.cubicTo(20.8, 15.8, 16, 15.8, 16, 19.4);
    painter.drawPath(hook);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QPointF(16, 24.2), 2.2, 2.2);
}

} // namespace

BoxSignView::BoxSignView(BoxSign sign, int size, QWidget* parent) : QWidget(parent), sign_(sign) {
    setFixedSize(size, size);
}

void BoxSignView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width() / kUnits, height() / kUnits);
    drawGround(painter, sign_);
    painter.setPen(QPen(Qt::white, 3.6, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    switch (sign_) {
    case BoxSign::Info:
        drawStroke(painter, 14.5, 23.4, 8.6);
        break;
    case BoxSign::Question:
        drawHook(painter);
        break;
    case BoxSign::Alarm:
        drawStroke(painter, 12.4, 18.4, 23.6);
        break;
    }
}

} // namespace quendal
