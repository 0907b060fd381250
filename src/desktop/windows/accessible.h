// What painted widgets are to a screen reader, which can't look at pixels.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace quendal {

// A widget that says its role itself. Name and description are those of the widget.
class Spoken {
  public:
    virtual ~Spoken() = default;
    virtual QAccessible::Role spokenRole() const = 0;
    // Whether a screen reader can press it, and the press.
    virtual bool pressable() const { return false; }
    virtual void pressSpoken() {}
};

// From now on every widget that is Spoken is told of as it says. Called once.
void installAccessible();

// The place from which a window speaks what has just changed. Nothing is seen of it.
class LiveText final : public QWidget, public Spoken {
  public:
    explicit LiveText(QWidget* window);
    QAccessible::Role spokenRole() const override { return QAccessible::Notification; }
    void say(const QString& text);
};

} // namespace quendal
