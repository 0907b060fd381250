#include "desktop/script/synthetic_input.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>

// Shortcuts are looked up before a key becomes an event, by this routine of the library, which its
// own tests use.
extern Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* receiver, unsigned long time,
                                                      int key, Qt::KeyboardModifiers modifiers,
                                                      const QString& text, bool repeated,
                                                      unsigned short count);

namespace quendal {

namespace {

void sendMouse(QWindow& window, QEvent::Type type, QPointF place, Qt::MouseButton button) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
    QMouseEvent event(type, place, window.mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

void sendKey(QWindow& window, QEvent::Type type, int key, const QString& text) {
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&window, &event);
}

} // namespace

void clickAt(QWidget& widget, QPointF place, Qt::MouseButton button) {
    const QPointer<QWindow> window = widget.window()->windowHandle();
    const QPointF inWindow = widget.mapTo(widget.window(), place);
    if (window != nullptr) {
        sendMouse(*window, QEvent::MouseButtonPress, inWindow, button);
    }
    if (window != nullptr) { // the press may have closed it
        sendMouse(*window, QEvent::MouseButtonRelease, inWindow, button);
    }
}

void clickMiddle(QWidget& widget) {
    clickAt(widget, QRectF(widget.rect()).center());
}

void pressKey(QWidget& widget, int key, const QString& text) {
    const QPointer<QWindow> window = widget.window()->windowHandle();
    if (window != nullptr) {
        sendKey(*window, QEvent::KeyPress, key, text);
    }
    if (window != nullptr) {
        sendKey(*window, QEvent::KeyRelease, key, text);
    }
}

void pressMnemonic(QWidget& window, const QString& text) {
    const QKeySequence keys = QKeySequence::mnemonic(text);
    QWindow* handle = window.windowHandle();
    if (!keys.isEmpty() && handle != nullptr) {
        qt_sendShortcutOverrideEvent(handle, 0, keys[0].key(), Qt::AltModifier, {}, false, 1);
    }
}

void typeText(QWidget& widget, const QString& text) {
    for (const QChar& character : text) {
        pressKey(widget, character.toUpper().unicode(), character);
    }
}

} // namespace quendal
