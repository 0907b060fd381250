// Base of the peers that draw their control themselves.
#pragma once

#include "desktop/windows/accessible.h"
#include "desktop/windows/text_fit.h"
#include "desktop/windows/widget_peer.h"

class QMouseEvent;
class QPainter;

namespace quendal {

// A text with the font that fits its box, measured once until something changes.
class FittedText {
  public:
    void paint(QPainter& painter, const QRectF& box, const QString& text, const FontSpec& spec,
               double scale, Qt::Alignment align, Wrap wrap);

  private:
    QString text_;
    FontSpec spec_;
    QSizeF size_;
    double scale_ = 0;
    Wrap wrap_ = Wrap::None;
    QFont font_;
};

class PaintedPeer : public WidgetPeer {
  public:
    PaintedPeer(Control& control, FormWindow& window);

    // `box` is the whole control in pixels.
    virtual void paint(QPainter& painter, const QRectF& box) = 0;
    // Presses go to the control where somebody waits for them, else to what lies behind.
    bool pressed(const QMouseEvent& event);
    // Somebody waits for presses on the control.
    bool wantsPresses() const;
    // As a click in its middle.
    void pressMiddle();
    // What it is to a screen reader.
    QAccessible::Role role() const;

  protected:
    void show() override;
    // A place on the widget in the control's scale units.
    virtual QPointF unitsAt(QPointF pixel) const;
    QColor textColour() const;
    Qt::Alignment across() const;
    QString text() const;
};

} // namespace quendal
