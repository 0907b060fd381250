#include "desktop/windows/painted_peer.h"

#include "desktop/windows/form_window.h"
#include "desktop/windows/look.h"

#include <QMouseEvent>
#include <QPainter>

namespace quendal {

namespace {

class Canvas final : public QWidget, public Spoken {
  public:
    Canvas(QWidget* parent, PaintedPeer& peer) : QWidget(parent), peer_(peer) {}

    QAccessible::Role spokenRole() const override { return peer_.role(); }
    bool pressable() const override { return isEnabled() && peer_.wantsPresses(); }
    void pressSpoken() override {
        if (isVisible() && pressable()) {
            peer_.pressMiddle();
        }
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        if (peer_.control() != nullptr) {
            QPainter painter(this);
            peer_.paint(painter, rect());
        }
    }
    void mousePressEvent(QMouseEvent* event) override { event->setAccepted(peer_.pressed(*event)); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }

  private:
    PaintedPeer& peer_;
};

} // namespace

void FittedText::paint(QPainter& painter, const QRectF& box, const QString& text,
                       const FontSpec& spec, double scale, Qt::Alignment align, Wrap wrap) {
    if (text.isEmpty() || box.isEmpty()) {
        return;
    }
    const bool known =
        text == text_ && spec == spec_ && box.size() == size_ && scale == scale_ && wrap == wrap_;
    if (!known) {
        text_ = text;
        spec_ = spec;
        size_ = box.size();
        scale_ = scale;
        wrap_ = wrap;
        font_ = fittedFont(spec, scale, text, box.size(), wrap);
    }
    painter.setFont(font_);
    drawFitted(painter, box, text, align, wrap);
}

PaintedPeer::PaintedPeer(Control& control, FormWindow& window) : WidgetPeer(control, window) {
    setWidget(new Canvas(&window.content(), *this));
    if (wantsPresses()) {
        widget()->setCursor(Qt::PointingHandCursor);
    }
}

bool PaintedPeer::wantsPresses() const {
    return control() != nullptr && (control()->onClick || control()->onMouse);
}

void PaintedPeer::pressMiddle() {
    const QPointF at = unitsAt(QRectF(widget()->rect()).center());
    report([this, at] { control()->userMouse(at.x(), at.y(), MouseButton::Left); });
}

QAccessible::Role PaintedPeer::role() const {
    if (control() == nullptr) {
        return QAccessible::Client;
    }
    switch (control()->kind()) {
    case ControlKind::Label:
    case ControlKind::TermLabel:
        return QAccessible::StaticText;
    case ControlKind::Title:
        return QAccessible::Heading;
    case ControlKind::StatusBar:
        return QAccessible::StatusBar;
    case ControlKind::Separator:
    case ControlKind::Line:
        return QAccessible::Separator;
    case ControlKind::Frame:
    case ControlKind::Panel:
        // One that has no name only holds others together.
        return spokenName(*control()).isEmpty() ? QAccessible::Client : QAccessible::Grouping;
    default:
        return QAccessible::Graphic;
    }
}

QPointF PaintedPeer::unitsAt(QPointF pixel) const {
    return pixel / scale();
}

bool PaintedPeer::pressed(const QMouseEvent& event) {
    if (!wantsPresses()) {
        return false;
    }
    const QPointF at = unitsAt(event.position());
    const auto button = event.button() == Qt::RightButton ? MouseButton::Right : MouseButton::Left;
    report([this, at, button] { control()->userMouse(at.x(), at.y(), button); });
    return true;
}

void PaintedPeer::show() {
    widget()->update();
}

QColor PaintedPeer::textColour() const {
    const QColor ground = groundOf(*control());
    return control()->enabledThroughContainers() ? look::textOn(control()->textColor(), ground)
                                                 : look::readable(look::kCalmInk, ground);
}

Qt::Alignment PaintedPeer::across() const {
    switch (control()->textAlign()) {
    case TextAlign::Centre:
        return Qt::AlignHCenter;
    case TextAlign::Right:
        return Qt::AlignRight;
    case TextAlign::Left:
        break;
    }
    return Qt::AlignLeft;
}

QString PaintedPeer::text() const {
    return shownText(control()->text());
}

} // namespace quendal
