// The display of the popup calculator: the line being typed, and below it what was worked out or
// why that can't be done. What stands in the line is never lost.
#pragma once

#include <QWidget>

#include <optional>

class QLabel;
class QLineEdit;

namespace quendal {

class CalculatorDisplay final : public QWidget {
    Q_OBJECT
  public:
    CalculatorDisplay(double scale, QWidget* parent);

    QLineEdit& line() { return *line_; }
    QString text() const;

    // In place of all that stands there.
    void take(const QString& text);
    // At the cursor; right behind a result a number starts anew and an operator goes on with it.
    void type(const QString& text);
    void erase();
    void clear();

    // Works the line out. A result takes its place; a fault is told and leaves it as it is. Gives
    // the result that already stands there without working it out again.
    std::optional<double> evaluate();
    // The line is the result of the last evaluation, untouched.
    bool showsResult() const;

  signals:
    void worked(const QString& term, const QString& result);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void showFault(const QString& text);
    void edited();

    QLineEdit* line_;
    QLabel* note_;
    std::optional<double> result_; // that the line shows
};

} // namespace quendal
