// The face of a button: icon, text with its mnemonic, two colours.
#pragma once

#include "desktop/windows/painted_peer.h"

#include <QAbstractButton>

namespace quendal {

class IconLibrary;

class ButtonFace final : public QAbstractButton {
  public:
    struct Style {
        QColor fill;   // invalid: the plain look
        QColor border; // and accent of the text
        QColor ink;    // invalid: the look's own
        FontSpec font;
        std::string icon;
        Qt::Alignment align = Qt::AlignHCenter;
        bool isDefault = false; // Enter presses it from anywhere on the form
    };

    ButtonFace(QWidget* parent, IconLibrary& icons);
    void setStyle(Style style);
    void setScale(double scale);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Colours {
        QColor fill;
        QColor border;
        QColor ink;
    };
    Colours colours() const;
    void paintContent(QPainter& painter, const QColor& ink);

    IconLibrary& icons_;
    Style style_;
    FittedText fitted_;
    double scale_ = 1;
};

} // namespace quendal
