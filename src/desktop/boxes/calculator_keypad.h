// The keys of the popup calculator.
#pragma once

#include <QWidget>

namespace quendal {

class CalculatorKeypad final : public QWidget {
    Q_OBJECT
  public:
    CalculatorKeypad(double scale, QWidget* parent);

  signals:
    void typed(const QString& text); // what the key puts into the display
    void cleared();
    void erased();
    void asked(); // for the result

  private:
    void addKey(int index);

    double scale_;
};

} // namespace quendal
