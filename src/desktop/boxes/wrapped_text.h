// A text that wraps, even inside a word that is too long, and scrolls before it is clipped.
#pragma once

#include "desktop/windows/accessible.h"

#include <QTextEdit>

namespace quendal {

class WrappedText final : public QTextEdit, public Spoken {
    Q_OBJECT
  public:
    // As small as the text allows, at most `most` pixels large.
    WrappedText(const QString& text, const QFont& font, QSize most, QWidget* parent);
    QAccessible::Role spokenRole() const override { return QAccessible::StaticText; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void spaceLines();
    void fit(QSize most);
};

} // namespace quendal
