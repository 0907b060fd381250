// Clicks and keys as the window system delivers them, for whoever stands in for the learner. A
// click goes to the window at the widget's place, so it does nothing to what can't be seen or
// reached.
#pragma once

#include <QPointF>
#include <QString>

class QWidget;

namespace quendal {

void clickAt(QWidget& widget, QPointF place, Qt::MouseButton button = Qt::LeftButton);
void clickMiddle(QWidget& widget);
// To the widget that has the focus of the window that `widget` stands in.
void pressKey(QWidget& widget, int key, const QString& text = {});
// Alt and the letter that the text marks with "&".
void pressMnemonic(QWidget& window, const QString& text);
void typeText(QWidget& widget, const QString& text);

} // namespace quendal
