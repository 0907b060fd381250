#include "desktop/windows/accessible.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>

namespace quendal {

namespace {

// The cast is made anew each time: while a widget is taken down it is Spoken no more.
class AccessibleSpoken final : public QAccessibleWidget {
  public:
    explicit AccessibleSpoken(QWidget* widget) : QAccessibleWidget(widget) {}

    QAccessible::Role role() const override {
        const Spoken* self = spoken();
        return self == nullptr ? QAccessible::Client : self->spokenRole();
    }
    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (const Spoken* self = spoken(); self != nullptr && self->pressable()) {
            names.prepend(pressAction());
        }
        return names;
    }
    void doAction(const QString& name) override {
        if (Spoken* self = spoken(); self != nullptr && name == pressAction()) {
            self->pressSpoken();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

  private:
    Spoken* spoken() const { return dynamic_cast<Spoken*>(widget()); }
};

// Qt's own one is named after the chosen item, so that nobody learns what is being chosen.
class AccessibleList final : public QAccessibleWidget {
  public:
    explicit AccessibleList(QComboBox* combo) : QAccessibleWidget(combo, QAccessible::ComboBox) {}

    QString text(QAccessible::Text kind) const override {
        const QString item = combo()->currentText();
        if (kind == QAccessible::Value) {
            return item;
        }
        const QString said = QAccessibleWidget::text(kind);
        return kind != QAccessible::Name ? said
               : said.isEmpty()          ? item
                                         : said + QStringLiteral(": ") + item;
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = isOpen();
        state.collapsed = !isOpen();
        return state;
    }
    QStringList actionNames() const override {
        return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == showMenuAction()) {
            isOpen() ? combo()->hidePopup() : combo()->showPopup();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

  private:
    QComboBox* combo() const { return static_cast<QComboBox*>(object()); }
    bool isOpen() const { return combo()->view()->isVisible(); }
};

QAccessibleInterface* makeSpoken(const QString& /*className*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget != nullptr && dynamic_cast<Spoken*>(widget) != nullptr) {
        return new AccessibleSpoken(widget); // the library owns it
    }
    if (auto* combo = qobject_cast<QComboBox*>(object); combo != nullptr && !combo->isEditable()) {
        return new AccessibleList(combo);
    }
    return nullptr;
}

} // namespace

void installAccessible() {
    QAccessible::installFactory(makeSpoken);
}

LiveText::LiveText(QWidget* window) : QWidget(window) {
    setObjectName(QStringLiteral("live"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 1, 1);
    lower();
    hide(); // until there is something to say
}

// Readers differ in what they listen to: a name that changes, or a message that appears.
void LiveText::say(const QString& text) {
    setAccessibleName(text);
    if (isHidden()) {
        show();
        return;
    }
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

} // namespace quendal
